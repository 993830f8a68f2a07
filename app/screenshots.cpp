#include "app/screenshots.h"

#include <cstdio>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QPixmap>
#include <QRadioButton>

#include "app/framemenus.h"
#include "app/frmmain.h"
#include "app/toolwindowhost.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/frmgridopt.h"
#include "tools/qt/frmanalizanew.h"
#include "tools/qt/frmintav.h"
#include "tools/qt/frmnjutn.h"
#include "tools/qt/frmtabela.h"
#include "tools/qt/frmtast.h"

namespace velmora::app {
namespace {

void Settle() {
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
}

bool Save(QWidget& widget, const QDir& folder, const QString& name) {
  const QString path = folder.filePath(name);
  const bool saved = widget.grab().save(path, "PNG");
  std::fprintf(stderr, "screenshot: %s %s\n", path.toLocal8Bit().constData(), saved ? "saved" : "NOT SAVED");
  return saved;
}

// Chooses an entry of the Examples menu as a user would.
void Choose(FrmMain& frame, const char* array, int index) {
  if (QAction* action = frame.Menus().Action(QString::fromLatin1(array), index)) action->trigger();
  Settle();
}

// The analysis tools after a calculation on the active window's function.
int AnalysisShots(FrmMain& frame, const QDir& dir) {
  using platform::ToolWindow;
  graph_qt::FrmFunc* active = frame.ActiveGraphWindow();
  if (active == nullptr) return 7;
  active->Logic().DrawFunction(1, "x^3-3*x", "K");
  active->SyncFromLogic();
  Settle();
  ToolWindowHost& tools = frame.Tools();
  int failures = 0;
  const auto shoot = [&](ToolWindow kind, const char* file, auto&& fill) {
    tools.Show(kind);
    QWidget* window = tools.Window(kind);
    if (window == nullptr) {
      ++failures;
      return;
    }
    Settle();
    fill(window);
    Settle();
    if (!Save(*window, dir, QString::fromLatin1(file))) ++failures;
    window->close();
    Settle();
  };
  shoot(ToolWindow::Evaluator, "evaluator.png", [](QWidget* w) {
    auto* e = static_cast<tools_qt::FrmTast*>(w);
    for (const char* text : {"2*pi*3", "sqr(2)", "exp(1)"}) {
      e->WriteText(text);
      e->Evaluate();
    }
  });
  shoot(ToolWindow::ValueTables, "valuetables.png", [](QWidget* w) {
    auto* t = static_cast<tools_qt::FrmTabela*>(w);
    t->Combo1()->setEditText(QStringLiteral("0.5"));
    t->CalculateTable();
    t->RefreshButtons();  // as when the mouse comes over the toolbar
  });
  shoot(ToolWindow::Zeros, "zeros.png", [](QWidget* w) {
    auto* z = static_cast<tools_qt::FrmNjutn*>(w);
    z->Option1(1)->click();
    z->Calculate();
  });
  shoot(ToolWindow::Intersection, "intersection.png", [](QWidget* w) {
    auto* z = static_cast<tools_qt::FrmNjutn*>(w);
    z->Text7()->setEditText(QStringLiteral("x"));
    z->Option1(1)->click();
    z->Calculate();
  });
  shoot(ToolWindow::PointEvaluate, "pointevaluate.png", [](QWidget* w) {
    auto* z = static_cast<tools_qt::FrmNjutn*>(w);
    z->Text2()->setText(QStringLiteral("1.5"));
    z->Calculate();
    z->Option1(1)->click();
    z->Text4()->setText(QStringLiteral("1"));
    z->Calculate();
  });
  shoot(ToolWindow::Integrate, "integral.png", [](QWidget* w) {
    auto* i = static_cast<tools_qt::FrmIntAv*>(w);
    i->TxtMin()->setText(QStringLiteral("0"));
    i->TxtMax()->setText(QStringLiteral("2"));
    i->Integral();
    i->Text8()->setText(QStringLiteral("1"));
    i->Derivative();
  });
  shoot(ToolWindow::CriticalPoints, "criticalpoints.png", [](QWidget* w) {
    auto* c = static_cast<tools_qt::FrmAnalizaNew*>(w);
    c->TxtMin()->setText(QStringLiteral("-3"));
    c->TxtMax()->setText(QStringLiteral("3"));
    c->Calculate();
  });
  return failures;
}

}  // namespace

int TakeScreenshots(FrmMain& frame, const QString& folder) {
  QDir dir(folder);
  dir.mkpath(QStringLiteral("."));
  frame.resize(1440, 1000);
  Settle();
  // Three windows tiled, each drawn after the tiling has sized it.
  while (frame.Windows().WindowCount() < 3) frame.NewGraphWindow();
  frame.Tile();
  Settle();
  for (graph_qt::FrmFunc* window : frame.GraphWindows()) window->SettleSize();
  const auto windows = frame.GraphWindows();
  struct Shot {
    const char* array;
    int index;
  };
  const Shot shots[] = {
      {"mnuPred2", 20},  // Damped Oscillations
      {"mnupf1", 11},    // Epicycloid
      {"mnuPolar", 11},  // Butterfly
  };
  for (std::size_t i = 0; i < windows.size() && i < std::size(shots); ++i) {
    frame.Activate(windows[i]);
    Settle();
    Choose(frame, shots[i].array, shots[i].index);
  }
  Settle();
  int failures = Save(frame, dir, QStringLiteral("frame.png")) ? 0 : 1;

  graph_qt::FrmFunc* active = frame.ActiveGraphWindow();
  graph_qt::FrmGridOpt* options = active != nullptr ? active->OpenPlottingOptions() : nullptr;
  if (options == nullptr) return failures + 1;
  Settle();
  if (!Save(*options, dir, QStringLiteral("options.png"))) ++failures;
  options->close();
  Settle();
  failures += AnalysisShots(frame, dir);
  return failures;
}

}  // namespace velmora::app
