#include "graph/qt/frmunesit.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "expr/numtext.h"
#include "graph/graphwindow.h"
#include "graph/qt/dialogbuttons.h"
#include "platform/qt/qtstring.h"

namespace velmora::graph_qt {

FrmUnesit::FrmUnesit(graph::GraphWindow& window, platform::MessageBox& messages, bool parametric,
                     QWidget* parent)
    : QDialog(parent), window_(window), messages_(messages), parametric_(parametric) {
  setObjectName(parametric ? QStringLiteral("frmUnTP") : QStringLiteral("frmunesit"));
  setWindowTitle(parametric ? QStringLiteral("Tangent/Normal to Parametric Function")
                            : QStringLiteral("Tangent/Normal to Cartesian Function"));
  const auto& boxes = window.Boxes();
  std::string shown = "Y = " + boxes.txtY().Text;
  if (parametric) shown += " ; X = " + boxes.txtX().Text;
  label1_ = new QLabel(qtplatform::ToQString(shown), this);
  label1_->setObjectName(QStringLiteral("Label1"));
  auto* draw = new QGroupBox(QStringLiteral("Draw:"), this);
  draw->setObjectName(QStringLiteral("Label2"));
  tangent_ = new QRadioButton(QStringLiteral("Tangent"), draw);
  tangent_->setObjectName(QStringLiteral("chkTangent0"));
  normal_ = new QRadioButton(QStringLiteral("Normal"), draw);
  normal_->setObjectName(QStringLiteral("chkTangent1"));
  tangent_->setChecked(true);
  auto* kinds = new QHBoxLayout(draw);
  kinds->addWidget(tangent_);
  kinds->addWidget(normal_);
  auto* point = new QLabel(
      parametric ? QStringLiteral("Through the point K:") : QStringLiteral("Through the point X:"), this);
  text1_ = new QLineEdit(this);
  text1_->setObjectName(QStringLiteral("Text1"));
  point->setBuddy(text1_);
  const OkCancelRow keys = MakeOkCancelRow(this);
  ok_ = keys.ok;
  cancel_ = keys.cancel;
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label1_);
  layout->addWidget(draw);
  layout->addWidget(point);
  layout->addWidget(text1_);
  layout->addLayout(keys.row);
  connect(ok_, &QPushButton::clicked, this, &FrmUnesit::Ok);
}

void FrmUnesit::Ok() {
  const std::string text = qtplatform::ToStdString(text1_->text());
  if (text.empty()) {
    messages_.Show("Enter point value.", std::string(graph::GraphWindow::kDefaultTitle),
                   platform::MsgIcon::Information);
    return;
  }
  const auto value = window_.EvaluatePoint(text);
  if (!value) return;
  text1_->setText(qtplatform::ToQString(expr::NumberToText(*value)));
  hide();
  const bool normal = normal_->isChecked();
  if (parametric_) {
    window_.ApplyParametricTangent(normal, *value);
  } else {
    window_.ApplyTangent(normal, *value);
  }
  emit Drawn();
  accept();
}

}  // namespace velmora::graph_qt
