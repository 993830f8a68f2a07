#include "app/frmmain.h"

#include <algorithm>
#include <cstdio>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>
#include <QTimer>

#include "app/framegeometry.h"
#include "app/framemenus.h"
#include "app/framestatusbar.h"
#include "app/frametoolbars.h"
#include "app/graphchildadapter.h"
#include "app/outputcommands.h"
#include "app/statuspanels.h"
#include "app/tilegrid.h"
#include "app/toolbarlayout.h"
#include "app/toolicons.h"
#include "app/toolregistry.h"
#include "app/toolwindowhost.h"
#include "graph/examplecatalogue.h"
#include "graph/qt/frmfunc.h"
#include "mathpad/historyhandover.h"
#include "output/clsresize.h"

#ifndef VELMORA_VERSION
#define VELMORA_VERSION "0.1.0"
#endif

namespace velmora::app {
namespace {

// The frame's size at a first start, and the smallest a graph window gets.
constexpr int kStartWidth = 1024;
constexpr int kStartHeight = 720;
const QSize kSmallestGraphWindow(160, 120);

std::string HistoryPath(const std::string& given) {
  return given.empty() ? graph::HistoryLog::DefaultPath() : given;
}

}  // namespace

FrmMain::FrmMain(FrameServices services, QWidget* parent)
    : QMainWindow(parent),
      services_(std::move(services)),
      history_(HistoryPath(services_.historyPath)),
      recent_(*services_.settings, platform::RecentList::kFunctions),
      windows_(*services_.messages, *this),
      tools_(std::make_unique<ToolWindowHost>(this)) {
  RegisterToolWindows(*tools_, services_);
  BuildFrame();
}

FrmMain::~FrmMain() {
  // The graph windows go first, while the frame's members still stand; on
  // the way out (focus leaving their boxes, their close) they may still
  // call the frame, which then does nothing.
  destroying_ = true;
  area_->disconnect(this);
  for (const Child& child : children_) {
    if (child.window) child.window->disconnect(this);
  }
  for (QMdiSubWindow* sub : area_->subWindowList()) delete sub;
  children_.clear();
}

void FrmMain::BuildFrame() {
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(QStringLiteral("Velmora"));
  setWindowIcon(ProgramIcon());
  area_ = new QMdiArea(this);
  area_->setObjectName(QStringLiteral("MDIArea"));
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCentralWidget(area_);
  menus_ = new FrameMenus(menuBar(), this);
  toolbars_ = new FrameToolbars(this);
  status_ = new FrameStatusBar(this);
  setStatusBar(status_);
  resize(kStartWidth, kStartHeight);

  connect(menus_, &FrameMenus::CommandChosen, this, &FrmMain::Run);
  connect(menus_, &FrameMenus::RecentChosen, this, &FrmMain::ChooseRecent);
  connect(menus_, &FrameMenus::ExampleChosen, this, &FrmMain::ChooseExample);
  connect(menus_, &FrameMenus::WindowMenuAboutToShow, this, &FrmMain::FillWindowList);
  connect(menus_, &FrameMenus::WindowChosen, this, [this](int position) {
    if (position >= 0 && position < static_cast<int>(children_.size())) Activate(children_[position].window);
  });
  connect(toolbars_, &FrameToolbars::CommandChosen, this, &FrmMain::Run);
  connect(area_, &QMdiArea::subWindowActivated, this, &FrmMain::WindowActivated);
}

void FrmMain::Load(const QStringList& arguments) {
  recent_.LoadRecent();
  recent_.ShowRecent();
  toolbars_->Apply(LoadToolbars(*services_.settings));
  helpFile_ = !services_.programFolder.isEmpty() &&
              QFileInfo::exists(QDir(services_.programFolder).filePath(QString::fromUtf8(kHelpFile.data())));
  Run(Command::New);
  if (QAction* exit = menus_->Action(QString::fromUtf8(kExitName.data()), kExitIndex)) {
    exit->setText(QString::fromUtf8(kExitCaption.data(), static_cast<qsizetype>(kExitCaption.size())));
  }
  // A command line is a matrix file, the type registered to the program: the
  // Matrix Calculator opens on top of the frame with it.
  if (!arguments.isEmpty()) OpenMatrixFile(*tools_, arguments.join(QLatin1Char(' ')));
  UpdateStatus();
}

void FrmMain::Run(Command command) {
  switch (command) {
    case Command::New: NewGraphWindow(); break;
    case Command::Close:
      if (QMdiSubWindow* sub = area_->currentSubWindow()) sub->close();
      break;
    case Command::Exit: Exit(); return;
    case Command::ViewBand1: ToggleBand(1); break;
    case Command::ViewBand2: ToggleBand(2); break;
    case Command::ViewBand3: ToggleBand(3); break;
    case Command::ViewBand4: ToggleBand(4); break;
    case Command::WindowCascade: Cascade(); break;
    case Command::WindowTile: Tile(); break;
    case Command::HelpContents:
      OpenHelp(services_.helpPath.isEmpty()
                   ? QDir(services_.programFolder).filePath(QString::fromUtf8(kHelpFile.data()))
                   : services_.helpPath);
      break;
    case Command::HelpWeb: OpenHelp(services_.readMePath); break;
    case Command::About: About(); break;
    case Command::ToolEvaluator: tools_->Show(platform::ToolWindow::Evaluator); break;
    case Command::ToolPointEvaluate: tools_->Show(platform::ToolWindow::PointEvaluate); break;
    case Command::ToolIntegrate: tools_->Show(platform::ToolWindow::Integrate); break;
    case Command::ToolCriticalPoints: tools_->Show(platform::ToolWindow::CriticalPoints); break;
    case Command::ToolZeros: tools_->Show(platform::ToolWindow::Zeros); break;
    case Command::ToolZerosCartesian:
      // The button, unlike the menu entry, looks at the active window first:
      // its Newton search serves Y(X) only.
      if (const graph_qt::FrmFunc* active = ActiveGraphWindow();
          active != nullptr && active->Logic().Boxes().optFunkcije() != graph::kCartesian) {
        services_.messages->Show("Available for Cartesian functions only.",
                                 std::string(graph::GraphWindow::kDefaultTitle),
                                 platform::MsgIcon::Exclamation);
        break;
      }
      tools_->Show(platform::ToolWindow::Zeros);
      break;
    case Command::ToolIntersection: tools_->Show(platform::ToolWindow::Intersection); break;
    case Command::ToolValueTables: tools_->Show(platform::ToolWindow::ValueTables); break;
    case Command::ToolComplex: tools_->Show(platform::ToolWindow::Complex); break;
    case Command::ToolGeometry: tools_->Show(platform::ToolWindow::Geometry); break;
    case Command::ToolMatrix: tools_->Show(platform::ToolWindow::Matrix); break;
    case Command::ToolConverter: tools_->Show(platform::ToolWindow::Converter); break;
    case Command::ToolMathPad: tools_->Show(platform::ToolWindow::MathPad); break;
    case Command::SaveHistory:
      mathpad::SendHistoryToMathPad(
          *services_.messages, *tools_, history_.ReadAll(),
          QLocale().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString());
      break;
    default: {
      graph_qt::FrmFunc* active = ActiveGraphWindow();
      if (RunOutputCommand(
              command, this, active,
              {services_.settings, services_.messages, services_.files, tools_.get(), history_.Path()})) {
        break;
      }
      if (active == nullptr) {
        commands_.Run(command, nullptr);
        break;
      }
      GraphChildAdapter child(*active);
      commands_.Run(command, &child);
      break;
    }
  }
  UpdateStatus();
}

void FrmMain::NewGraphWindow() { windows_.NewGraphWindow(); }

void FrmMain::ShowAsLastClosed() {
  if (!RestoreFrameGeometry(*services_.settings, *this)) {
    // A first start: the default size, scaled by the screen's width away
    // from 96 dots per inch, within the screen.
    const QScreen* screen = this->screen();
    const QRect available = screen->availableGeometry();
    const int screenWidth = static_cast<int>(screen->geometry().width() * screen->devicePixelRatio());
    const auto size = output::clsResize::FirstStartSize({kStartWidth, kStartHeight}, screenWidth,
                                                        static_cast<int>(screen->logicalDotsPerInchX()),
                                                        {available.width(), available.height()});
    resize(size.width, size.height);
  }
  show();
}

void FrmMain::Tile() {
  QMdiSubWindow* active = area_->currentSubWindow();
  std::vector<QMdiSubWindow*> subs;
  for (QMdiSubWindow* sub : area_->subWindowList(QMdiArea::CreationOrder)) {
    if (sub->isHidden() && !sub->isMinimized()) continue;  // closing
    subs.push_back(sub);
  }
  // Maximized windows first: while one is maximized, a window restored
  // from an icon would come back maximized too.
  for (QMdiSubWindow* sub : subs) {
    if (sub->isMaximized()) sub->showNormal();
  }
  for (QMdiSubWindow* sub : subs) {
    if (sub->isMinimized()) sub->showNormal();
  }
  // The whole inside of the area: once every window fits it, the scroll
  // bars go.
  const QSize domain = area_->contentsRect().size();
  const std::vector<TileCell> cells =
      TileGrid(static_cast<int>(subs.size()), domain.width(), domain.height());
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const TileCell& cell = cells[i];
    subs[i]->setGeometry(cell.x, cell.y, cell.width, cell.height);
  }
  if (active != nullptr) area_->setActiveSubWindow(active);
}

void FrmMain::Cascade() {
  QMdiSubWindow* active = area_->currentSubWindow();
  area_->cascadeSubWindows();
  if (active != nullptr && area_->currentSubWindow() != active) area_->setActiveSubWindow(active);
}

void FrmMain::Exit() {
  close();
  // The program ends at once, whatever other windows are open.
  QCoreApplication::quit();
}

void FrmMain::CreateGraphWindow(const std::string& caption) {
  graph_qt::FrmFuncServices services;
  services.settings = services_.settings;
  services.messages = services_.messages;
  services.input = services_.input;
  services.colours = services_.colours;
  services.files = services_.files;
  services.recent = &recent_;
  services.history = &history_;
  services.activeWindow = this;
  services.frame = this;
  services.tools = tools_.get();
  auto* window = new graph_qt::FrmFunc(services);
  // Below its comfortable size the window still works (its controls then
  // overlap), so that Window > Tile can fit twenty windows into the area.
  window->setMinimumSize(kSmallestGraphWindow);
  const QString tag = QString::fromStdString(caption);
  window->setWindowTitle(tag);
  children_.push_back({window, tag});
  // A window destroyed without its close (never expected) is counted out
  // all the same.
  connect(window, &QObject::destroyed, this, [this](QObject* gone) {
    for (auto it = children_.begin(); it != children_.end(); ++it) {
      if (it->window.isNull() || it->window.data() == gone) {
        children_.erase(it);
        windows_.WindowClosed();
        QTimer::singleShot(0, this, &FrmMain::UpdateStatus);
        return;
      }
    }
  });
  QMdiSubWindow* sub = area_->addSubWindow(window);
  sub->setWindowIcon(ProgramIcon());
  sub->setMinimumSize(kSmallestGraphWindow);
  // Ctrl+F4 is File > Close: the sub-window's own menu gives it up, or the
  // key would be ambiguous and close nothing.
  if (QMenu* own = sub->systemMenu()) {
    for (QAction* action : own->actions()) {
      QList<QKeySequence> keys = action->shortcuts();
      if (keys.removeAll(QKeySequence(Qt::CTRL | Qt::Key_F4)) > 0) action->setShortcuts(keys);
    }
  }
  sub->show();
  area_->setActiveSubWindow(sub);
}

void FrmMain::WindowClosing(graph_qt::FrmFunc* window) {
  if (destroying_) return;
  for (auto it = children_.begin(); it != children_.end(); ++it) {
    if (it->window.data() == window) {
      window->disconnect(this);
      children_.erase(it);
      windows_.WindowClosed();
      // The next window becomes active after this one has gone.
      QTimer::singleShot(0, this, &FrmMain::UpdateStatus);
      return;
    }
  }
}

graph_qt::FrmFunc* FrmMain::ActiveGraphWindow() const {
  // The current window stays the active child while a dialog or another
  // program has the focus.
  QMdiSubWindow* sub = area_->currentSubWindow();
  if (sub == nullptr) return nullptr;
  auto* window = qobject_cast<graph_qt::FrmFunc*>(sub->widget());
  if (window == nullptr) return nullptr;
  for (const Child& child : children_) {
    if (child.window.data() == window) return window;
  }
  return nullptr;  // closing
}

std::vector<graph_qt::FrmFunc*> FrmMain::GraphWindows() const {
  std::vector<graph_qt::FrmFunc*> windows;
  for (const Child& child : children_) {
    if (child.window) windows.push_back(child.window.data());
  }
  return windows;
}

QString FrmMain::Tag(const graph_qt::FrmFunc* window) const {
  for (const Child& child : children_) {
    if (child.window.data() == window) return child.tag;
  }
  return {};
}

QMdiSubWindow* FrmMain::SubWindowOf(const graph_qt::FrmFunc* window) const {
  for (QMdiSubWindow* sub : area_->subWindowList()) {
    if (sub->widget() == window) return sub;
  }
  return nullptr;
}

void FrmMain::Activate(graph_qt::FrmFunc* window) {
  if (QMdiSubWindow* sub = SubWindowOf(window)) area_->setActiveSubWindow(sub);
}

expr::GraphFields* FrmMain::ActiveGraph() {
  if (destroying_) return nullptr;
  graph_qt::FrmFunc* window = ActiveGraphWindow();
  return window != nullptr ? &window->Logic() : nullptr;
}

void FrmMain::WindowActivated(QMdiSubWindow* sub) {
  if (sub == nullptr) return;
  auto* window = qobject_cast<graph_qt::FrmFunc*>(sub->widget());
  if (window == nullptr || Tag(window).isEmpty()) return;
  // The toolbar's zoom texts and the status text follow the window.
  graph::GraphWindow& logic = window->Logic();
  logic.Activate();
  statusText_ = logic.View().MovedText();
  UpdateStatus();
}

FrameView FrmMain::View() const {
  FrameView view;
  view.windowCount = windows_.WindowCount();
  view.bands = toolbars_->Bands();
  view.helpFile = helpFile_;
  view.mathPad = tools_->Has(platform::ToolWindow::MathPad);
  if (const graph_qt::FrmFunc* active = ActiveGraphWindow()) {
    view.hasActive = true;
    view.functionType = active->Logic().Boxes().optFunkcije();
    view.zoom = active->Logic().zoomMenu();
  }
  return view;
}

void FrmMain::UpdateStatus() {
  if (destroying_) return;
  graph_qt::FrmFunc* active = ActiveGraphWindow();
  const graph::GraphWindow* logic = active != nullptr ? &active->Logic() : nullptr;
  if (active != nullptr) {
    const QString title = QString::fromStdString(WindowTitle(Tag(active).toStdString(), *logic));
    if (active->windowTitle() != title) active->setWindowTitle(title);
  }
  status_->SetPanels(StatusPanels(windows_.WindowCount(), logic, statusText_));
  const FrameView view = View();
  menus_->Refresh(view, recent_);
  toolbars_->Refresh(view);
  emit StateChanged();
}

void FrmMain::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) emit StateChanged();
}

void FrmMain::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  emit StateChanged();
}

void FrmMain::MarkFunctionType(int /*type*/) {
  if (destroying_) return;
  // The marks follow the active window's type at every refresh.
  menus_->Refresh(View(), recent_);
}

void FrmMain::ShowStatusText(const std::string& text) {
  if (destroying_) return;
  statusText_ = text;
  status_->SetPanels(StatusPanels(windows_.WindowCount(),
                                  ActiveGraphWindow() != nullptr ? &ActiveGraphWindow()->Logic() : nullptr,
                                  statusText_));
}

void FrmMain::ChooseRecent(int entry) {
  if (entry < 1 || entry > platform::RecentList::kEntries) return;
  const std::string line = recent_.Caption(entry);
  if (graph_qt::FrmFunc* active = ActiveGraphWindow()) {
    GraphChildAdapter child(*active);
    commands_.DrawRecent(line, &child);
  }
  UpdateStatus();
}

void FrmMain::ChooseExample(const graph::Example* example) {
  if (example == nullptr) return;
  if (graph_qt::FrmFunc* active = ActiveGraphWindow()) {
    GraphChildAdapter child(*active);
    commands_.LoadExample(*example, &child);
    statusText_ = active->Logic().View().MovedText();
  }
  UpdateStatus();
}

void FrmMain::FillWindowList() {
  std::vector<QString> titles;
  int activeIndex = -1;
  const graph_qt::FrmFunc* active = ActiveGraphWindow();
  for (const Child& child : children_) {
    if (!child.window) continue;
    if (child.window.data() == active) activeIndex = static_cast<int>(titles.size());
    titles.push_back(child.window->windowTitle());
  }
  menus_->SetWindowList(titles, activeIndex);
}

void FrmMain::ToggleBand(int band) { toolbars_->SetBandVisible(band, !toolbars_->BandVisible(band)); }

void FrmMain::OpenHelp(const QString& target) {
  if (services_.shell == nullptr || target.isEmpty()) return;
  const platform::ShellResult result = platform::ShellOpen(*services_.shell, target.toStdString());
  // The message names the file, so the user knows what to look for.
  if (!result.ok) {
    services_.messages->Show(result.description + "\r\n" + QDir::toNativeSeparators(target).toStdString(),
                             "Velmora", platform::MsgIcon::Exclamation);
  }
}

void FrmMain::About() {
  services_.messages->Show("Velmora " VELMORA_VERSION "\nA desktop mathematics workbench.", "About Velmora",
                           platform::MsgIcon::Information);
}

void FrmMain::closeEvent(QCloseEvent* event) {
  // The toolbar layout is kept only when the frame closes maximized; the
  // frame's own place, size and state at every close.
  if (isMaximized()) SaveToolbars(*services_.settings, toolbars_->Current());
  SaveFrameGeometry(*services_.settings, *this);
  // A running draw stops at its next sample; nothing else is asked.
  for (graph_qt::FrmFunc* window : GraphWindows()) window->Stop();
  event->accept();
}

}  // namespace velmora::app
