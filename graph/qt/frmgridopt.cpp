#include "graph/qt/frmgridopt.h"

#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QValidator>

#include "graph/qt/paperpreview.h"
#include "platform/qt/qtstring.h"

namespace velmora::graph_qt {
namespace {

using Options = graph::PlottingOptions;
using qtplatform::ToQString;
using qtplatform::ToStdString;

// The key filter of the scale note's boxes.
class ScaleNoteValidator final : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& input, int& /*pos*/) const override {
    for (const QChar c : input) {
      if (c.unicode() > 0x7F || !Options::ScaleNoteKeyAllowed(static_cast<char>(c.unicode()))) return Invalid;
    }
    return Acceptable;
  }
};

}  // namespace

FrmGridOpt::FrmGridOpt(platform::SettingsStore& settings, platform::MessageBox& messages,
                       graph::GraphWindow* active, QWidget* parent)
    : QDialog(parent), settings_(settings), messages_(messages), active_(active) {
  setObjectName(QStringLiteral("frmGridOpt"));
  setWindowTitle(ToQString(Options::kCaption));

  // Frame1: the grid step; Frame2: the numbers of the scale note.
  auto* frame1 = new QGroupBox(tr("Grid step"), this);
  frame1->setObjectName(QStringLiteral("Frame1"));
  auto* frame2 = new QGroupBox(tr("Scale note"), this);
  frame2->setObjectName(QStringLiteral("Frame2"));
  auto* form1 = new QFormLayout(frame1);
  auto* form2 = new QFormLayout(frame2);
  const auto boxes = Options::TextBoxes();
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    auto* edit = new QLineEdit(this);
    edit->setObjectName(ToQString(boxes[i].control));
    texts_[i] = edit;
    auto* label = new QLabel(ToQString(boxes[i].caption), this);
    label->setBuddy(edit);
    (i < 2 ? form1 : form2)->addRow(label, edit);
    connect(edit, &QLineEdit::textEdited, this,
            [this, i](const QString& text) { model_.texts[i] = ToStdString(text); });
  }
  texts_[Options::kTxtX1]->setValidator(new ScaleNoteValidator(texts_[Options::kTxtX1]));
  texts_[Options::kTxtY1]->setValidator(new ScaleNoteValidator(texts_[Options::kTxtY1]));

  auto* checkColumn = new QVBoxLayout;
  for (const auto& box : Options::CheckBoxes()) {
    auto* check = new QCheckBox(ToQString(box.caption), this);
    check->setObjectName(QStringLiteral("Check%1").arg(box.number));
    check->setVisible(box.visible);
    checks_[box.number - 1] = check;
    if (box.visible) checkColumn->addWidget(check);
    const int number = box.number;
    connect(check, &QCheckBox::clicked, this, [this, number] { CheckClicked(number); });
  }

  auto* paperRow = new QGridLayout;
  auto* label4 = new QLabel(QStringLiteral("Select Graph Paper type:"), this);
  label4->setObjectName(QStringLiteral("Label4"));
  const auto captions = Options::PaperCaptions();
  for (int i = 0; i < 3; ++i) {
    images_[i] = new QLabel(this);
    images_[i]->setObjectName(QStringLiteral("Image%1").arg(i + 1));
    images_[i]->setPixmap(QPixmap::fromImage(PaperPicture(i)));
    images_[i]->setFrameShape(QFrame::Box);
    images_[i]->setCursor(Qt::PointingHandCursor);
    images_[i]->installEventFilter(this);
    papers_[i] = new QRadioButton(ToQString(captions[static_cast<std::size_t>(i)]), this);
    papers_[i]->setObjectName(QStringLiteral("Option2_%1").arg(i));
    paperRow->addWidget(images_[i], 0, i, Qt::AlignCenter);
    paperRow->addWidget(papers_[i], 1, i, Qt::AlignCenter);
    connect(papers_[i], &QRadioButton::clicked, this, [this, i] { PaperClicked(i); });
  }

  apply_ = new QPushButton(QStringLiteral("&Apply"), this);
  apply_->setObjectName(QStringLiteral("Command1"));
  apply_->setDefault(true);
  cancel_ = new QPushButton(QStringLiteral("Cancel"), this);
  cancel_->setObjectName(QStringLiteral("Command2"));
  reset_ = new QPushButton(QStringLiteral("&Reset"), this);
  reset_->setObjectName(QStringLiteral("Command3"));
  connect(apply_, &QPushButton::clicked, this, &FrmGridOpt::Apply);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(reset_, &QPushButton::clicked, this, &FrmGridOpt::Reset);

  auto* frames = new QVBoxLayout;
  frames->addWidget(frame1);
  frames->addWidget(frame2);
  frames->addStretch(1);
  auto* upper = new QHBoxLayout;
  upper->addLayout(frames);
  upper->addLayout(checkColumn, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(reset_);
  buttons->addStretch(1);
  buttons->addWidget(apply_);
  buttons->addWidget(cancel_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(upper);
  layout->addWidget(label4);
  layout->addLayout(paperRow);
  layout->addLayout(buttons);

  model_.Load(settings_);
  ShowModel();
}

void FrmGridOpt::ShowModel() {
  for (int i = 0; i < 4; ++i) texts_[i]->setText(ToQString(model_.texts[static_cast<std::size_t>(i)]));
  for (int n = 1; n <= Options::kChecks; ++n) {
    const QSignalBlocker block(checks_[n - 1]);
    checks_[n - 1]->setChecked(model_.Check(n));
  }
  for (int i = 0; i < 3; ++i) {
    const QSignalBlocker block(papers_[i]);
    papers_[i]->setChecked(model_.Option2 == i);
  }
  texts_[Options::kTxtX1]->setEnabled(model_.txtX1Enabled);
  texts_[Options::kTxtY1]->setEnabled(model_.txtY1Enabled);
  checks_[Options::kCheckTicksOnly - 1]->setEnabled(model_.Check3Enabled);
}

void FrmGridOpt::CheckClicked(int number) {
  model_.SetCheck(number, checks_[number - 1]->isChecked());
  if (number == Options::kCheckHideGrid) model_.Check1Click();
  if (number == Options::kCheckAssignAxes) model_.Check2Click(active_);
  ShowModel();
}

void FrmGridOpt::PaperClicked(int index) {
  model_.Option2Click(index);
  ShowModel();
}

bool FrmGridOpt::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    for (int i = 0; i < 3; ++i) {
      if (watched == images_[i]) {
        PaperClicked(i);
        return true;
      }
    }
  }
  return QDialog::eventFilter(watched, event);
}

void FrmGridOpt::Reset() {
  model_.Reset();
  ShowModel();
}

void FrmGridOpt::Apply() {
  model_.Apply(settings_, messages_, active_);
  emit Applied();
  accept();
}

}  // namespace velmora::graph_qt
