#include "app/framestatusbar.h"

#include <QLabel>

namespace velmora::app {

FrameStatusBar::FrameStatusBar(QWidget* parent) : QStatusBar(parent) {
  setObjectName(QStringLiteral("SS1"));
  setSizeGripEnabled(true);
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    auto* label = new QLabel(QStringLiteral("#"), this);
    label->setObjectName(QStringLiteral("Panel%1").arg(i + 1));
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setMargin(1);
    label->setTextFormat(Qt::PlainText);
    panels_[i] = label;
  }
  // Panel 1 takes what panels 2 to 4 leave; those keep a steady minimum so
  // the caption does not jump as the numbers change.
  panels_[0]->setMinimumWidth(120);
  panels_[1]->setMinimumWidth(80);
  panels_[2]->setMinimumWidth(160);
  panels_[3]->setMinimumWidth(70);
  addWidget(panels_[0], 1);
  for (std::size_t i = 1; i < panels_.size(); ++i) addWidget(panels_[i], 0);
}

void FrameStatusBar::SetPanels(const StatusTexts& texts) {
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    const QString text = QString::fromStdString(texts[i]);
    if (panels_[i]->text() != text) panels_[i]->setText(text);
  }
}

QString FrameStatusBar::PanelText(int panel) const {
  if (panel < 1 || panel > 4) return {};
  return panels_[static_cast<std::size_t>(panel - 1)]->text();
}

}  // namespace velmora::app
