#include "app/framemenus.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include "app/menucaption.h"
#include "platform/qt/qtstring.h"

namespace velmora::app {

QString ControlName(std::string_view name, int index) {
  QString text = qtplatform::ToQString(name);
  if (index >= 0) text += QStringLiteral("(%1)").arg(index);
  return text;
}

QString PlainCaption(const std::string& text) {
  QString caption = qtplatform::ToQString(text);
  caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
  return caption;
}

void SetLongCaption(QAction* action, const std::string& text) {
  const QString caption = PlainCaption(ElideMiddle(text));
  if (action->text() != caption) action->setText(caption);
  const QString whole = QString::fromStdString(text);
  if (action->statusTip() != whole) action->setStatusTip(whole);
}

namespace {

// The shared converter under this file's short name.
constexpr auto& ToQt = qtplatform::ToQString;

}  // namespace

FrameMenus::FrameMenus(QMenuBar* bar, QObject* parent) : QObject(parent) {
  for (const TopMenu& top : MenuBar()) {
    QMenu* menu = bar->addMenu(ToQt(top.caption));
    menu->setObjectName(ToQt(top.name));
    if (top.name == kExamplesMenu) {
      AddExamples(menu);
      continue;
    }
    AddItems(menu, top.items);
    if (top.name == kWindowMenu) {
      windowMenu_ = menu;
      windowSeparator_ = menu->addSeparator();
      windowSeparator_->setVisible(false);
      connect(menu, &QMenu::aboutToShow, this, &FrameMenus::WindowMenuAboutToShow);
    }
  }
}

void FrameMenus::AddItems(QMenu* menu, std::span<const MenuItem> items) {
  for (const MenuItem& item : items) {
    if (item.IsSeparator()) {
      QAction* separator = menu->addSeparator();
      separator->setObjectName(ControlName(item.name, item.index));
      if (item.name == kRecentPlace) AddRecent(menu);
      continue;
    }
    if (!item.submenu.empty()) {
      QMenu* sub = menu->addMenu(ToQt(item.caption));
      sub->setObjectName(ControlName(item.name, item.index));
      sub->menuAction()->setObjectName(ControlName(item.name, item.index));
      AddItems(sub, item.submenu);
      continue;
    }
    QAction* action = menu->addAction(ToQt(item.caption));
    action->setObjectName(ControlName(item.name, item.index));
    if (!item.shortcut.empty()) action->setShortcut(QKeySequence(ToQt(item.shortcut)));
    if (item.check != CheckRule::None) action->setCheckable(true);
    entries_.push_back({action, item.enable, item.check, item.checkValue});
    const Command command = item.command;
    connect(action, &QAction::triggered, this, [this, command] { emit CommandChosen(command); });
  }
}

void FrameMenus::AddRecent(QMenu* menu) {
  // The separator just added is mnuSeparator2, shown only with entries.
  recentSeparator_ = menu->actions().back();
  recentSeparator_->setVisible(false);
  for (int i = 1; i <= platform::RecentList::kEntries; ++i) {
    QAction* action = menu->addAction(QString());
    action->setObjectName(ControlName("mnuRecent", i));
    action->setVisible(false);
    recent_[static_cast<std::size_t>(i - 1)] = action;
    connect(action, &QAction::triggered, this, [this, i] { emit RecentChosen(i); });
  }
}

void FrameMenus::AddExamples(QMenu* menu) {
  for (const graph::ExampleSubmenu& submenu : graph::ExampleMenus()) {
    QMenu* sub = menu->addMenu(ToQt(submenu.caption));
    sub->setObjectName(ToQt(submenu.array) + QStringLiteral("Menu"));
    int index = 0;
    for (const graph::Example& example : submenu.entries) {
      QAction* action = sub->addAction(ToQt(example.caption));
      action->setObjectName(ControlName(submenu.array, index++));
      entries_.push_back({action, EnableRule::NeedsWindow, CheckRule::None, 0});
      const graph::Example* chosen = &example;
      connect(action, &QAction::triggered, this, [this, chosen] { emit ExampleChosen(chosen); });
    }
  }
}

void FrameMenus::Refresh(const FrameView& view, const platform::RecentList& recent) {
  for (const Entry& entry : entries_) {
    const bool enabled = IsEnabled(entry.enable, view);
    if (entry.action->isEnabled() != enabled) entry.action->setEnabled(enabled);
    if (entry.check != CheckRule::None) {
      const bool checked = IsChecked(entry.check, entry.checkValue, view);
      if (entry.action->isChecked() != checked) entry.action->setChecked(checked);
    }
  }
  // The recent functions: the captions up to the first empty one, and the
  // separator when the first is not empty.
  if (recentSeparator_ != nullptr) recentSeparator_->setVisible(recent.SeparatorVisible());
  for (int i = 1; i <= platform::RecentList::kEntries; ++i) {
    QAction* action = recent_[static_cast<std::size_t>(i - 1)];
    SetLongCaption(action, recent.Caption(i));
    action->setVisible(i <= recent.VisibleEntries());
  }
}

void FrameMenus::SetWindowList(const std::vector<QString>& titles, int active) {
  if (windowMenu_ == nullptr) return;
  for (QAction* action : windowActions_) {
    windowMenu_->removeAction(action);
    action->deleteLater();
  }
  windowActions_.clear();
  windowSeparator_->setVisible(!titles.empty());
  for (std::size_t i = 0; i < titles.size(); ++i) {
    const QString number = i < 9 ? QStringLiteral("&%1 ").arg(i + 1) : QStringLiteral("%1 ").arg(i + 1);
    QAction* action = windowMenu_->addAction(QString());
    SetLongCaption(action, titles[i].toStdString());
    action->setText(number + action->text());
    action->setObjectName(QStringLiteral("mnuWinList(%1)").arg(i));
    action->setCheckable(true);
    action->setChecked(static_cast<int>(i) == active);
    const int position = static_cast<int>(i);
    connect(action, &QAction::triggered, this, [this, position] { emit WindowChosen(position); });
    windowActions_.push_back(action);
  }
}

QAction* FrameMenus::Action(const QString& name, int index) const {
  const QString control = index >= 0 ? QStringLiteral("%1(%2)").arg(name).arg(index) : name;
  for (const Entry& entry : entries_) {
    if (entry.action->objectName() == control) return entry.action;
  }
  for (QAction* action : recent_) {
    if (action != nullptr && action->objectName() == control) return action;
  }
  for (QAction* action : windowActions_) {
    if (action->objectName() == control) return action;
  }
  return nullptr;
}

}  // namespace velmora::app
