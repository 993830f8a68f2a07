// From Enter in txtY to the finished curve in a graph window whose pDraw is
// 800 x 600 pixels, on the offscreen platform: the key event, the syntax
// trial, 800 samples through the formula engine with the event pump and the
// screen-rate repaints, the history record, the recent line, the value
// table and the widgets brought up to date. The goal is 50 ms for each
// function of the example catalogue. The reference in the same run is the
// same draw on the window logic alone (no widgets, no event pump), so the
// difference is the cost of the view.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>

#include "graph/graphwindow.h"
#include "graph/historylog.h"
#include "graph/qt/frmfunc.h"
#include "graph/qt/pdrawview.h"
#include "graph/qt/qimagesurface.h"
#include "platform/memorysettingsstore.h"
#include "platform/recentlist.h"

namespace {

using namespace velmora;

struct Function {
  int type;
  const char* y;
  const char* x;
};

// The Common Functions of the example catalogue, and parametric and polar
// entries of it.
constexpr Function kFunctions[] = {
    {1, "(X^2)-1/(1-X)+1/X", "K"},
    {1, "(X-2)*(X-4)/X^2", "K"},
    {1, "X + 2/X", "K"},
    {1, "2*X-3/X", "K"},
    {1, "X^(1/(1-X))", "K"},
    {1, "X/2+SinX", "K"},
    {1, "X^(1/X)", "K"},
    {1, "LnX-X/(1-X^2)", "K"},
    {1, "LnX/SqrX", "K"},
    {1, "X/(LnX)", "K"},
    {1, "2*AbsX-X^2", "K"},
    {1, "SinX+(Sin(2*X))/X", "K"},
    {1, "SinX*Sin(2*X)", "K"},
    {1, "2*Sin(2*X)-Sin(4*X)", "K"},
    {1, "2*Cos(X/2)*3*Cos(X/3)", "K"},
    {1, "(SinX)^3-(CosX)^3", "K"},
    {1, "CosX-(CosX)^2", "K"},
    {1, "1/(SinX+CosX)", "K"},
    {1, "SinX/(Sin(X+Pi/4))", "K"},
    {1, "Atn(LnX)", "K"},
    {1, "X+2*AtnX", "K"},
    {1, "Asin(Ln(X^2+1))", "K"},
    {1, "Ln(HSinX)", "K"},
    {1, "X*(LnX)^2", "K"},
    {1, "HAcos(X+1/X)", "K"},
    {1, "Blanc(x)", "K"},
    {1, "Gamma(x)", "K"},
    {2, "4*(SinK)^3", "4*(CosK)^3"},
    {2, "(1-CosK)", "(K-SinK)"},
    {2, "4*SinK-2*Sin(4*K)", "4*CosK-2*Cos(4*K)"},
    {3, "4*Sin(3*K)", "K"},
};

class NoInput final : public platform::InputBox {
 public:
  std::optional<std::string> Ask(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
};

// Services that live for the whole run: settings in memory, the history in
// a temporary folder.
struct Services {
  Services() : history(dir.filePath(QStringLiteral("GraphLog.txt")).toStdString()) {}
  QTemporaryDir dir;
  platform::MemorySettingsStore settings;
  platform::SilentMessageBox messages;
  NoInput input;
  graph::HistoryLog history;
  platform::RecentList recent{settings, platform::RecentList::kFunctions};
};

Services& Shared() {
  static Services services;
  return services;
}

void PressEnter(QWidget* target) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(target, &press);
}

void BM_EnterToCurve(benchmark::State& state, Function f) {
  Services& s = Shared();
  graph_qt::FrmFuncServices services;
  services.settings = &s.settings;
  services.messages = &s.messages;
  services.input = &s.input;
  services.history = &s.history;
  services.recent = &s.recent;
  graph_qt::FrmFunc window(services);
  window.pDraw()->setFixedSize(800, 600);
  window.show();
  QApplication::processEvents();
  window.SettleSize();
  window.Logic().optFunk(f.type);
  window.SyncFromLogic();
  QComboBox* box = f.type == graph::kParametric ? window.txtX() : window.txtY();
  for (auto _ : state) {
    state.PauseTiming();
    s.history.Clear();  // the record is read back whole after each draw
    window.ClearScreen();
    window.txtY()->lineEdit()->setText(QString::fromLatin1(f.y));
    window.txtX()->lineEdit()->setText(QString::fromLatin1(f.x));
    state.ResumeTiming();
    PressEnter(box);
  }
  if (window.Logic().KolkoFunkc == 0) state.SkipWithError("nothing was drawn");
}

void BM_LogicOnly(benchmark::State& state, Function f) {
  Services& s = Shared();
  graph_qt::QImageSurface surface(800, 600);
  graph::GraphServices services = graph::StandardServices(s.settings, s.messages, s.input);
  services.history = &s.history;
  services.recent = &s.recent;
  graph::GraphWindow window(surface, std::move(services));
  window.optFunk(f.type);
  for (auto _ : state) {
    state.PauseTiming();
    s.history.Clear();
    window.ClearGraph(false);
    window.txtY.Text = f.y;
    window.txtX.Text = f.x;
    state.ResumeTiming();
    if (f.type == graph::kParametric) {
      window.CrtajFJU();
    } else {
      window.DrawFromTxtY();
    }
    benchmark::DoNotOptimize(surface.Image().constBits());
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QTemporaryDir home;
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
    const QString path = home.filePath(QString::fromLatin1(name));
    QDir().mkpath(path);
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv(name, path.toLocal8Bit());
  }
  QApplication app(argc, argv);
  for (const Function& f : kFunctions) {
    const std::string name =
        std::string(f.y) + (f.type == graph::kParametric ? std::string(" ; ") + f.x : "");
    benchmark::RegisterBenchmark(("EnterToCurve/" + name).c_str(), BM_EnterToCurve, f)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("LogicOnly/" + name).c_str(), BM_LogicOnly, f)
        ->Unit(benchmark::kMillisecond);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
