#include "app/screenshots.h"

#include <cstdio>
#include <initializer_list>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextEdit>

#include "app/framemenus.h"
#include "app/frmmain.h"
#include "app/toolwindowhost.h"
#include "complex/qt/frmcomplex.h"
#include "geometry/qt/frmconvert.h"
#include "geometry/qt/frmgeo.h"
#include "geometry/qt/geopagewidget.h"
#include "graph/graphwindow.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/frmgridopt.h"
#include "graph/qt/frmlabel.h"
#include "graph/qt/frmmini.h"
#include "graph/qt/frmunesit.h"
#include "graph/qt/picmcrbox.h"
#include "graph/qt/qimagesurface.h"
#include "mathpad/qt/frmansi.h"
#include "mathpad/qt/frmmapuskice.h"
#include "matrix/qt/frmmatrice.h"
#include "matrix/qt/gridview.h"
#include "output/qt/frmjpg.h"
#include "output/qt/frmpagesetup.h"
#include "platform/memorysettingsstore.h"
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

// MathPad with a formatted page and the active graph inserted as a
// picture, then its Insert Symbol window.
int MathPadScreenshots(FrmMain& frame, const QDir& dir) {
  const auto windows = frame.GraphWindows();
  const QString graph = dir.filePath(QStringLiteral("mathpad-graph.png"));
  if (windows.empty() ||
      !windows.front()->Picture().Image().scaledToWidth(480, Qt::SmoothTransformation).save(graph)) {
    return 2;
  }
  frame.Tools().Show(platform::ToolWindow::MathPad);
  auto* pad = qobject_cast<mathpad_qt::FrmMaPuskice*>(frame.Tools().Window(platform::ToolWindow::MathPad));
  if (pad == nullptr) return 2;
  pad->resize(900, 760);
  QTextEdit* editor = pad->Editor();
  const auto type = [editor](const QString& text) { editor->textCursor().insertText(text); };
  pad->SetAlignment(Qt::AlignHCenter);
  pad->ToggleBold();
  QTextCharFormat title;
  title.setFontPointSize(16);
  title.setForeground(QColor(0, 0, 128));
  editor->mergeCurrentCharFormat(title);
  type(QStringLiteral("Damped oscillations"));
  QTextCharFormat body;
  body.setFontPointSize(12);
  body.setForeground(QColor(Qt::black));
  body.setFontWeight(QFont::Normal);
  editor->mergeCurrentCharFormat(body);
  type(QStringLiteral("\n"));
  pad->SetAlignment(Qt::AlignLeft);
  type(QStringLiteral("The curve is y = e"));
  pad->ToggleSuperscript();
  type(QStringLiteral("-x/4"));
  pad->ToggleSuperscript();
  type(QStringLiteral(" \u00B7 sin 3x, with x"));
  pad->ToggleSubscript();
  type(QStringLiteral("0"));
  pad->ToggleSubscript();
  type(QStringLiteral(" = 0 and "));
  pad->ToggleItalic();
  type(QStringLiteral("A = 1 cm"));
  pad->ToggleItalic();
  type(QStringLiteral(":\n"));
  pad->ToggleBullets();
  type(QStringLiteral("amplitude halves every 4 ln 2 \u2248 2.77 units\nzeros at x = k\u03C0/3\n"));
  pad->ToggleBullets();
  pad->SetAlignment(Qt::AlignHCenter);
  pad->InsertImageFile(graph);
  Settle();
  int failures = Save(*pad, dir, QStringLiteral("mathpad.png")) ? 0 : 1;
  mathpad_qt::FrmAnsi* symbols = pad->SymbolDialog();
  symbols->show();
  symbols->SelectCode(177);
  Settle();
  if (!Save(*symbols, dir, QStringLiteral("mathpad-symbol.png"))) ++failures;
  symbols->close();
  QFile::remove(graph);
  return failures;
}

// The graph window's own tools in a window of its own: a tangent with its
// dialog, an integral fill with its average band and the dialog, a rotated
// label in hand over the plot. Returns the pictures not saved.
int GraphToolShots(FrmMain& frame, const QDir& dir) {
  frame.NewGraphWindow();
  Settle();
  graph_qt::FrmFunc* window = frame.ActiveGraphWindow();
  if (window == nullptr) return 3;
  if (auto* sub = qobject_cast<QMdiSubWindow*>(window->parentWidget())) sub->showMaximized();
  Settle();
  window->SettleSize();
  int failures = 0;
  const auto draw = [&](const char* y, const char* zoom) {
    window->Logic().ClearGraph(true);
    window->Logic().ApplyFineZoom(zoom);
    window->Logic().SetFunctionTexts(y, "K");
    window->SyncFromLogic();
    window->DrawFunction();
    Settle();
  };

  draw("X^2", "60");
  if (graph_qt::FrmUnesit* tangent = window->mnuDrawTangent()) {
    tangent->Text1()->setText(QStringLiteral("1"));
    Settle();
    if (!Save(*tangent, dir, QStringLiteral("tangent-dialog.png"))) ++failures;
    tangent->Command1()->click();
    Settle();
  }
  if (!Save(*window, dir, QStringLiteral("tangent.png"))) ++failures;

  draw("SinX", "90");
  if (graph_qt::FrmMini* mini = window->mnuDrawIntegral()) {
    mini->Text1()->setText(QStringLiteral("0"));
    mini->Text2()->setText(QStringLiteral("pi"));
    mini->Check1()->setChecked(true);
    mini->Text3()->setText(QStringLiteral("0.64"));
    Settle();
    if (!Save(*mini, dir, QStringLiteral("integral-dialog.png"))) ++failures;
    mini->Command1()->click();
    Settle();
  }
  if (!Save(*window, dir, QStringLiteral("integral.png"))) ++failures;

  draw("SinX/X", "60");
  if (graph_qt::FrmLabel* label = window->mnulabel()) {
    label->SetAngle(30);
    Settle();
    label->cmdLabel()->click();
    Settle();
    window->Logic().MoveLabelTo(window->Logic().View().CenterX() + 40,
                                window->Logic().View().CenterY() - 140);
    window->daLabele();
    window->Logic().SetFunctionTexts("SinX/X", "K");
    if (graph_qt::FrmLabel* second = window->mnulabel()) {
      second->Text2()->setText(QStringLiteral("Upright label"));
      second->SetAngle(90);
      second->Check1()->setChecked(true);
      second->cmdLabel()->click();
    }
    Settle();
  }
  if (!Save(*window, dir, QStringLiteral("label.png"))) ++failures;
  return failures;
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
      e->Text1()->setEditText(QString::fromLatin1(text));
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

// Clicks the calculator's keys named in order ("cmdBroj(1)", "Number(3)").
void Press(complex_qt::FrmComplex& calculator, std::initializer_list<std::pair<const char*, int>> keys) {
  for (const auto& [name, index] : keys) {
    if (QAbstractButton* key = calculator.Button(name, index)) key->click();
  }
  Settle();
}

// The Complex Calculator after (3 + j4) * (1 - j2) typed on its keypad, with
// the panel beside it; then in simple mode with sin 30 deg on its readout.
int ComplexScreenshots(FrmMain& frame, const QDir& dir) {
  frame.Tools().Show(platform::ToolWindow::Complex);
  auto* calculator =
      qobject_cast<complex_qt::FrmComplex*>(frame.Tools().Window(platform::ToolWindow::Complex));
  if (calculator == nullptr) return 2;
  Settle();
  Press(*calculator, {{"cmdBroj", 1},
                      {"Number", 3},
                      {"cmdBroj", 2},
                      {"Number", 4},
                      {"cmdBroj", 3},
                      {"Number", 1},
                      {"cmdBroj", 4},
                      {"Number", 2},
                      {"cmdPlusMinus", -1},
                      {"cmdPan", -1},
                      {"cmdmnozenje", -1},
                      {"cmdMemory1", -1}});
  int failures = Save(*calculator, dir, QStringLiteral("complex.png")) ? 0 : 1;
  calculator->SetSimpleMode(true);
  Press(*calculator, {{"Number", 3}, {"Number", 0}});
  if (auto* deg = calculator->findChild<QAbstractButton*>(QStringLiteral("Check2"))) deg->click();
  Press(*calculator, {{"cmdsing", -1}});
  if (!Save(*calculator, dir, QStringLiteral("complex_simple.png"))) ++failures;
  calculator->close();
  return failures;
}

// Types cells into a grid of the Matrix Calculator, Enter after each.
void TypeCells(matrix_qt::GridView* grid, std::initializer_list<const char*> cells) {
  for (const char* cell : cells) {
    for (const char* k = cell; *k != '\0'; ++k) grid->Type(*k);
    grid->Type('\r');
  }
}

// One calculation of the Matrix Calculator as a user makes it: the
// operation, the sizes, "&Continue", the cells, then the toolbar's go.
void Calculate(matrix_qt::FrmMatrice& m, const char* option, const char* size,
               std::initializer_list<const char*> a, std::initializer_list<const char*> b) {
  m.NewMatrices();  // typing adds to a cell's text: start from empty grids
  m.findChild<QRadioButton*>(QString::fromLatin1(option))->click();
  m.findChild<QLineEdit*>(QStringLiteral("txtEntry1"))->setText(QString::fromLatin1(size));
  m.findChild<QPushButton*>(QStringLiteral("cmdGo"))->click();
  TypeCells(m.Grid(0), a);
  TypeCells(m.Grid(1), b);
  m.ToolbarButton(11)->trigger();
  while (m.Busy()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  Settle();
}

// The Matrix Calculator after a 4 x 4 inverse with its determinant, and
// after a system of three equations with its solution.
int MatrixScreenshots(FrmMain& frame, const QDir& dir) {
  frame.Tools().Show(platform::ToolWindow::Matrix);
  auto* m = qobject_cast<matrix_qt::FrmMatrice*>(frame.Tools().Window(platform::ToolWindow::Matrix));
  if (m == nullptr) return 2;
  m->resize(1100, 560);
  Settle();
  Calculate(*m, "optDetInv", "4x4",
            {"4", "3", "2", "1", "3", "4", "3", "2", "2", "3", "4", "3", "1", "2", "3", "4"}, {});
  int failures = Save(*m, dir, QStringLiteral("matrix-inverse.png")) ? 0 : 1;
  Calculate(*m, "optSolutionSet", "3x3", {"2", "1", "-1", "-3", "-1", "2", "-2", "1", "2"},
            {"8", "-11", "-3"});
  if (!Save(*m, dir, QStringLiteral("matrix-solution.png"))) ++failures;
  m->close();
  return failures;
}

// The Geometry Calculator after one case on four of its pages
// (geo-triangle.png, geo-circle.png, geo-polygon.png, geo-cone.png), and the
// units converter after a choice in its lists (converter.png).
int GeometryScreenshots(FrmMain& frame, const QDir& dir) {
  int failures = 0;
  frame.Tools().Show(platform::ToolWindow::Geometry);
  Settle();
  auto* geo = qobject_cast<geometry_qt::FrmGeo*>(frame.Tools().Window(platform::ToolWindow::Geometry));
  if (geo == nullptr) return 5;
  geo->resize(940, 620);
  struct Case {
    const char* page;
    const char* option;
    const char* entry;
    std::vector<std::pair<const char*, const char*>> typed;
    const char* file;
  };
  const Case cases[] = {
      {"Triangle", "", "mnuabc", {{"txtta", "3"}, {"txttb", "4"}, {"txttc", "5"}}, "geo-triangle.png"},
      {"Circle", "Arc", "mnuluk1", {{"txtKR", "2"}, {"txtKFi", "1.2"}}, "geo-circle.png"},
      {"Polygon", "", "a", {{"txtPN", "6"}, {"txtPA", "2"}}, "geo-polygon.png"},
      {"Cone", "", "mnuK1", {{"txtCR", "3"}, {"txtCH", "4"}}, "geo-cone.png"},
  };
  for (const auto& c : cases) {
    geometry_qt::GeoPageWidget* page = geo->Page(c.page);
    if (page == nullptr) {
      ++failures;
      continue;
    }
    geo->Tabs()->setCurrentWidget(page);
    page->SelectOption(c.option);
    for (const auto& [box, text] : c.typed) page->Box(box)->setText(QString::fromLatin1(text));
    page->Choose(c.entry);
    Settle();
    if (!Save(*geo, dir, QString::fromLatin1(c.file))) ++failures;
  }
  geo->close();

  frame.Tools().Show(platform::ToolWindow::Converter);
  Settle();
  auto* convert =
      qobject_cast<geometry_qt::FrmConvert*>(frame.Tools().Window(platform::ToolWindow::Converter));
  if (convert == nullptr) return failures + 1;
  convert->Tabs()->setCurrentIndex(2);  // Lengths: miles to feet
  convert->ChooseUnit("List5", 3);
  convert->ChooseUnit("List6", 0);
  Settle();
  if (!Save(*convert, dir, QStringLiteral("converter.png"))) ++failures;
  convert->close();
  Settle();
  return failures;
}

// A file dialog that is never answered: the pictures show the dialogs
// before anything is chosen.
class NoFileDialog final : public platform::FileDialog {
 public:
  std::optional<std::string> Open(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> Save(const std::string&, const std::string&, const std::string&,
                                  const std::string&) override {
    return std::nullopt;
  }
};

// The JPEG dialog on the active window's picture at quality 40, and Page
// Setup on fresh margins.
int OutputScreenshots(FrmMain& frame, const QDir& dir) {
  graph_qt::FrmFunc* active = frame.ActiveGraphWindow();
  if (active == nullptr) return 2;
  int failures = 0;
  NoFileDialog files;
  platform::SilentMessageBox messages;
  {
    output_qt::FrmJPG jpeg(active->Picture().Image(), files, messages, &frame);
    jpeg.show();
    Settle();
    jpeg.txtQuality()->setText(QStringLiteral("40"));
    Settle();
    if (!Save(jpeg, dir, QStringLiteral("jpeg.png"))) ++failures;
  }
  platform::MemorySettingsStore settings;
  {
    output_qt::FrmPageSetup setup(settings, &frame);
    setup.show();
    Settle();
    if (!Save(setup, dir, QStringLiteral("pagesetup.png"))) ++failures;
  }
  return failures;
}

// On a screen scaled to 200% (QT_SCALE_FACTOR=2): the frame with one graph,
// its picture drawn at twice the pixels.
int HighDpiScreenshot(FrmMain& frame, const QDir& dir) {
  frame.resize(900, 640);
  Settle();
  for (graph_qt::FrmFunc* window : frame.GraphWindows()) window->SettleSize();
  Choose(frame, "mnuPred2", 20);  // Damped Oscillations
  Settle();
  return Save(frame, dir, QStringLiteral("frame-scale2.png")) ? 0 : 1;
}

}  // namespace

int TakeScreenshots(FrmMain& frame, const QString& folder) {
  QDir dir(folder);
  dir.mkpath(QStringLiteral("."));
  if (frame.devicePixelRatio() >= 2) return HighDpiScreenshot(frame, dir);
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
  failures += GraphToolShots(frame, dir);
  failures += MathPadScreenshots(frame, dir);
  failures += AnalysisShots(frame, dir);
  failures += ComplexScreenshots(frame, dir);
  failures += MatrixScreenshots(frame, dir);
  failures += GeometryScreenshots(frame, dir);
  failures += OutputScreenshots(frame, dir);
  return failures;
}

}  // namespace velmora::app
