#pragma once

#include <array>
#include <vector>

#include <QObject>
#include <QString>

#include "app/menustate.h"
#include "app/menutable.h"
#include "graph/examplecatalogue.h"
#include "platform/recentlist.h"

class QAction;
class QMenu;
class QMenuBar;

namespace velmora::app {

// The frame's menu bar, built from the menu table: every entry a QAction
// named after its control ("mnuFile(0)", "mnued1"), the recent functions
// ("mnuRecent(1)" to "mnuRecent(8)" after "mnuSeparator2"), the Examples
// menu from the example catalogue ("mnuComon(0)" ...) and the Window
// menu's list of graph windows. Refresh() sets what can be used and what is
// checked from the frame's state.
class FrameMenus final : public QObject {
  Q_OBJECT

 public:
  FrameMenus(QMenuBar* bar, QObject* parent);

  void Refresh(const FrameView& view, const platform::RecentList& recent);
  // The Window menu's list: captions of the open graph windows, the active
  // one checked.
  void SetWindowList(const std::vector<QString>& titles, int active);

  // An entry by its control name, with the index for an array entry.
  QAction* Action(const QString& name, int index = -1) const;

 signals:
  void CommandChosen(velmora::app::Command command);
  void RecentChosen(int entry);  // 1 to 8
  void ExampleChosen(const velmora::graph::Example* example);
  void WindowChosen(int position);  // in the list given to SetWindowList
  void WindowMenuAboutToShow();

 private:
  struct Entry {
    QAction* action;
    EnableRule enable;
    CheckRule check;
    int checkValue;
  };
  void AddItems(QMenu* menu, std::span<const MenuItem> items);
  void AddRecent(QMenu* menu);
  void AddExamples(QMenu* menu);

  std::vector<Entry> entries_;
  QAction* recentSeparator_ = nullptr;
  std::array<QAction*, platform::RecentList::kEntries> recent_{};
  QMenu* windowMenu_ = nullptr;
  QAction* windowSeparator_ = nullptr;
  std::vector<QAction*> windowActions_;
};

// The control name of an entry as its QAction's object name.
QString ControlName(std::string_view name, int index);

// A text as a menu caption that shows it as it stands ("&" doubled).
QString PlainCaption(const std::string& text);

// Gives an entry that shows a user's text (a recent function, a window's
// title) that text as its caption, cut in the middle when it is long
// (ElideMiddle), and the whole text as its status tip.
void SetLongCaption(QAction* action, const std::string& text);

}  // namespace velmora::app
