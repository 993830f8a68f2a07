#include "app/frametoolbars.h"

#include <set>

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "app/toolicons.h"
#include "platform/qt/qtstring.h"

namespace velmora::app {
namespace {

// The shared converter under this file's short name.
constexpr auto& ToQt = qtplatform::ToQString;

constexpr int kIconSize = 24;

}  // namespace

FrameToolbars::FrameToolbars(QMainWindow* frame) : QObject(frame), frame_(frame) {
  for (const ToolbarSpec& spec : Toolbars()) {
    auto* bar = new QToolBar(ToQt(spec.name), frame);
    bar->setObjectName(ToQt(spec.name));
    bar->setFloatable(false);
    bar->setIconSize(QSize(kIconSize, kIconSize));
    bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    for (const ToolButton& button : spec.buttons) {
      auto* tool = new QToolButton(bar);
      tool->setObjectName(ToQt(button.key));
      tool->setIcon(ToolIcon(button.key));
      tool->setText(ToQt(button.text));
      tool->setToolTip(ToQt(button.tip));
      tool->setAutoRaise(true);
      if (!button.menu.empty()) {
        auto* menu = new QMenu(tool);
        menu->setObjectName(ToQt(button.key) + QStringLiteral("Menu"));
        for (const ToolMenuItem& item : button.menu) {
          if (item.text == "-") {
            menu->addSeparator();
            continue;
          }
          QAction* action = menu->addAction(ToQt(item.text));
          action->setObjectName(ToQt(item.key));
          entries_.push_back({action, item.enable, item.zoomEntry});
          const Command command = item.command;
          connect(action, &QAction::triggered, this, [this, command] { emit CommandChosen(command); });
        }
        tool->setMenu(menu);
        // A button with a command of its own runs it and offers the menu
        // beside it; one without opens the menu at once.
        tool->setPopupMode(button.command == Command::None ? QToolButton::InstantPopup
                                                           : QToolButton::MenuButtonPopup);
      }
      if (button.command != Command::None) {
        const Command command = button.command;
        connect(tool, &QToolButton::clicked, this, [this, command] { emit CommandChosen(command); });
      }
      QAction* placed = bar->addWidget(tool);
      placed->setObjectName(ToQt(button.key) + QStringLiteral("Place"));
      tool->setProperty("enableRule", static_cast<int>(button.enable));
      buttons_.push_back(tool);
    }
    frame->addToolBar(Qt::TopToolBarArea, bar);
    bars_[static_cast<std::size_t>(spec.band - 1)] = bar;
  }
}

QToolBar* FrameToolbars::Band(int band) const {
  if (band < 1 || band > 4) return nullptr;
  return bars_[static_cast<std::size_t>(band - 1)];
}

void FrameToolbars::Apply(const ToolbarLayout& layout) {
  // Band 3 starts a row of its own unless the layout has exactly one row.
  frame_->removeToolBarBreak(bars_[2]);
  if (layout.rows != 1) frame_->insertToolBarBreak(bars_[2]);
  // A band is as wide as its buttons and the last band of a row takes what
  // is left, so the stored widths are not imposed: as minimum widths, those
  // of a maximized frame made the next frame as wide as the screen, and
  // narrower widths would hide buttons behind a chevron in a row with room.
  for (std::size_t i = 0; i < 4; ++i) SetBandVisible(static_cast<int>(i + 1), layout.visible[i]);
}

ToolbarLayout FrameToolbars::Current() const {
  ToolbarLayout layout;
  std::set<int> rows;
  for (std::size_t i = 0; i < 4; ++i) {
    layout.visible[i] = visible_[i];
    // The width the band's buttons take, not the stretch the last band of a
    // row is given.
    layout.widthTwips[i] = PixelsToTwips(bars_[i]->sizeHint().width());
    if (bars_[i]->isVisible()) rows.insert(bars_[i]->geometry().top());
  }
  layout.rows = rows.empty() ? 1 : static_cast<int>(rows.size());
  return layout;
}

bool FrameToolbars::HidesButtons(int band) const {
  const QToolBar* bar = Band(band);
  if (bar == nullptr || !bar->isVisible()) return false;
  // The chevron is the toolbar's extension button, shown only when some
  // buttons do not fit.
  for (const QToolButton* button : bar->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
    if (button->objectName() == QLatin1String("qt_toolbar_ext_button")) return button->isVisible();
  }
  return false;
}

void FrameToolbars::SetBandVisible(int band, bool visible) {
  if (band < 1 || band > 4) return;
  visible_[static_cast<std::size_t>(band - 1)] = visible;
  bars_[static_cast<std::size_t>(band - 1)]->setVisible(visible);
}

void FrameToolbars::Refresh(const FrameView& view) {
  for (QToolButton* button : buttons_) {
    const bool enabled = IsEnabled(static_cast<EnableRule>(button->property("enableRule").toInt()), view);
    if (button->isEnabled() != enabled) button->setEnabled(enabled);
  }
  for (const Entry& entry : entries_) {
    const bool enabled = IsEnabled(entry.enable, view);
    if (entry.action->isEnabled() != enabled) entry.action->setEnabled(enabled);
    if (entry.zoomEntry >= 0) {
      // The zoom drop-down shows the active window's texts.
      const QString text = view.hasActive
                               ? QString::fromStdString(ZoomMenuText(entry.zoomEntry, view.zoom))
                               : QString::fromStdString(ZoomMenuText(entry.zoomEntry, graph::ZoomMenu{}));
      if (entry.action->text() != text) entry.action->setText(text);
    }
  }
}

QToolButton* FrameToolbars::Button(const QString& key) const {
  for (QToolButton* button : buttons_) {
    if (button->objectName() == key) return button;
  }
  return nullptr;
}

QAction* FrameToolbars::MenuEntry(const QString& key) const {
  for (const Entry& entry : entries_) {
    if (entry.action->objectName() == key) return entry.action;
  }
  return nullptr;
}

}  // namespace velmora::app
