#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QMainWindow>
#include <QPointer>
#include <QStringList>

#include "app/command.h"
#include "app/framecommands.h"
#include "app/menustate.h"
#include "app/windowmanager.h"
#include "expr/graphfields.h"
#include "graph/historylog.h"
#include "graph/qt/framelink.h"
#include "platform/colordialog.h"
#include "platform/filedialog.h"
#include "platform/inputbox.h"
#include "platform/messagebox.h"
#include "platform/recentlist.h"
#include "platform/settingsstore.h"
#include "platform/shellopen.h"

class QMdiArea;
class QMdiSubWindow;

namespace velmora::graph {
struct Example;
}
namespace velmora::graph_qt {
class FrmFunc;
}

namespace velmora::app {

class FrameMenus;
class FrameStatusBar;
class FrameToolbars;
class ToolWindowHost;

// The platform services of the frame and its graph windows. All must
// outlive the frame.
struct FrameServices {
  platform::SettingsStore* settings = nullptr;  // required
  platform::MessageBox* messages = nullptr;     // required
  platform::InputBox* input = nullptr;          // required
  platform::ColorDialog* colours = nullptr;
  platform::FileDialog* files = nullptr;
  platform::ShellLauncher* shell = nullptr;  // null: help entries open nothing
  std::string historyPath;                   // GraphLog.txt; empty: the user's default
  QString programFolder;                     // where the help file is looked for
  QString readMePath;                        // the page the Help menu's "Read Me" opens
  QString helpPath;                          // the manual's first page (Help > Contents)
};

// `frmMain`, the main frame: a multiple-document area for up to twenty graph
// windows, the menus and the four toolbar bands of the menu and toolbar
// tables, and the status bar of four panels. Every command takes the active
// graph window, calls its routine and ends with UpdateStatus().
class FrmMain final : public QMainWindow,
                      public graph_qt::FrameLink,
                      public expr::ActiveWindow,
                      private GraphWindowFactory {
  Q_OBJECT

 public:
  explicit FrmMain(FrameServices services, QWidget* parent = nullptr);
  ~FrmMain() override;

  // The frame's load after the single-instance test: the recent functions,
  // the toolbar layout, "Graph 1", the Exit caption, and the command line
  // (a matrix file for the Matrix Calculator).
  void Load(const QStringList& arguments);

  // Runs a menu or toolbar command and refreshes the frame.
  void Run(Command command);
  // Shows the frame where and as it was when it last closed (place, size,
  // maximized), or at its default size on a first start.
  void ShowAsLastClosed();

  // The frame's own parts of the commands.
  void NewGraphWindow();
  void Exit();
  // Window > Tile: every open window side by side, fitted into the area
  // (TileGrid), the active one staying active. A window may get smaller
  // than its controls need; it repaints at its new size.
  void Tile();
  // Window > Cascade, the active window staying active.
  void Cascade();

  // The active graph window, or null.
  graph_qt::FrmFunc* ActiveGraphWindow() const;
  // The open graph windows in the order they were made.
  std::vector<graph_qt::FrmFunc*> GraphWindows() const;
  QString Tag(const graph_qt::FrmFunc* window) const;
  void Activate(graph_qt::FrmFunc* window);

  const WindowManager& Windows() const { return windows_; }
  const std::string& StatusText() const { return statusText_; }
  platform::RecentList& Recent() { return recent_; }
  FrameMenus& Menus() const { return *menus_; }
  FrameToolbars& Bars() const { return *toolbars_; }
  FrameStatusBar& Status() const { return *status_; }
  QMdiArea* Area() const { return area_; }
  // The tool windows (MathPad, the calculators, the analysis tools).
  ToolWindowHost& Tools() const { return *tools_; }

  // ---- graph_qt::FrameLink ------------------------------------------------------
  void UpdateStatus() override;
  void MarkFunctionType(int type) override;
  void ShowStatusText(const std::string& text) override;
  void WindowClosing(graph_qt::FrmFunc* window) override;

  // ---- expr::ActiveWindow ----------------------------------------------------------
  expr::GraphFields* ActiveGraph() override;

 signals:
  // After every refresh of the frame (UpdateStatus), resize and change of
  // window state: for the state probe of the test scripts.
  void StateChanged();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  // The bands are shown and hidden from the View menu only.
  QMenu* createPopupMenu() override { return nullptr; }

 private:
  void CreateGraphWindow(const std::string& caption) override;
  void BuildFrame();
  void WindowActivated(QMdiSubWindow* sub);
  void ChooseRecent(int entry);
  void ChooseExample(const graph::Example* example);
  void FillWindowList();
  void ToggleBand(int band);
  void OpenHelp(const QString& target);
  void About();
  FrameView View() const;
  QMdiSubWindow* SubWindowOf(const graph_qt::FrmFunc* window) const;

  FrameServices services_;
  graph::HistoryLog history_;
  platform::RecentList recent_;
  WindowManager windows_;
  FrameCommands commands_;
  QMdiArea* area_ = nullptr;
  FrameMenus* menus_ = nullptr;
  FrameToolbars* toolbars_ = nullptr;
  FrameStatusBar* status_ = nullptr;
  std::unique_ptr<ToolWindowHost> tools_;
  // The graph windows in the order they were made, with their tags.
  struct Child {
    QPointer<graph_qt::FrmFunc> window;
    QString tag;
  };
  std::vector<Child> children_;
  std::string statusText_;
  bool helpFile_ = false;    // the help file is beside the program
  bool destroying_ = false;  // the frame is going: calls from its windows do nothing
};

}  // namespace velmora::app
