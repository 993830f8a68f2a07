#include "app/toolregistry.h"

#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "app/frmmain.h"
#include "app/menutable.h"
#include "app/toolwindowhost.h"
#include "complex/qt/frmcomplex.h"
#include "geometry/qt/frmconvert.h"
#include "geometry/qt/frmgeo.h"
#include "graph/qt/frmfunc.h"
#include "mathpad/qt/frmmapuskice.h"
#include "matrix/qt/filetype.h"
#include "matrix/qt/frmmatrice.h"
#include "tools/qt/frmanalizanew.h"
#include "tools/qt/frmintav.h"
#include "tools/qt/frmnjutn.h"
#include "tools/qt/frmtabela.h"
#include "tools/qt/frmtast.h"

namespace velmora::app {
namespace {

// The frame's services as the analysis tools take them; the active graph
// window is looked up each time a tool asks.
tools_qt::ToolServices AnalysisServices(const FrameServices& services, ToolWindowHost& host, QWidget* owner) {
  tools_qt::ToolServices out{services.messages, services.files, services.shell, &host, {}, {}};
  out.activeGraph = [owner]() -> graph::GraphToolTarget* {
    auto* frame = qobject_cast<FrmMain*>(owner);
    graph_qt::FrmFunc* active = frame != nullptr ? frame->ActiveGraphWindow() : nullptr;
    return active != nullptr ? &active->Logic() : nullptr;
  };
  out.helpFile = QDir(services.programFolder).filePath(QString::fromUtf8(kHelpFile.data()));
  return out;
}

// The Matrix Calculator's services: the frame's, the host for MathPad, a
// writable folder of the user's for the scratch files, and the desktop
// registration of the .mcf type pointing at this program.
matrix_qt::FrmMatriceServices MatrixServices(const FrameServices& services, ToolWindowHost& host) {
  matrix_qt::FrmMatriceServices m;
  m.messages = services.messages;
  m.input = services.input;
  m.files = services.files;
  m.shell = services.shell;
  m.settings = services.settings;
  m.tools = &host;
  const QString scratch = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
  if (!scratch.isEmpty() && QDir().mkpath(scratch)) m.scratchFolder = scratch.toStdString();
  m.registerFileType = [] {
    return matrix_qt::RegisterFileType(QStringLiteral("mcf"), QCoreApplication::applicationFilePath());
  };
  return m;
}

}  // namespace

void RegisterToolWindows(ToolWindowHost& host, const FrameServices& services) {
  host.Register(platform::ToolWindow::MathPad, [&services, &host](QWidget* owner) {
    return new mathpad_qt::FrmMaPuskice(owner, {services.settings, services.messages, services.input,
                                                services.files, services.shell, services.colours, &host});
  });
  using platform::ToolWindow;
  using tools::ZeroKind;
  const auto tool = [&services, &host](auto make) {
    return [&services, &host, make](QWidget* owner) -> QWidget* {
      return make(owner, AnalysisServices(services, host, owner));
    };
  };
  host.Register(ToolWindow::Evaluator, tool([](QWidget* o, auto s) { return new tools_qt::FrmTast(o, s); }));
  host.Register(ToolWindow::ValueTables,
                tool([](QWidget* o, auto s) { return new tools_qt::FrmTabela(o, s); }));
  host.Register(ToolWindow::Zeros,
                tool([](QWidget* o, auto s) { return new tools_qt::FrmNjutn(o, s, ZeroKind::Zeros); }));
  host.Register(ToolWindow::Intersection, tool([](QWidget* o, auto s) {
                  return new tools_qt::FrmNjutn(o, s, ZeroKind::Intersection);
                }));
  host.Register(ToolWindow::PointEvaluate, tool([](QWidget* o, auto s) {
                  return new tools_qt::FrmNjutn(o, s, ZeroKind::PointEvaluate);
                }));
  host.Register(ToolWindow::Integrate, tool([](QWidget* o, auto s) { return new tools_qt::FrmIntAv(o, s); }));
  host.Register(ToolWindow::CriticalPoints,
                tool([](QWidget* o, auto s) { return tools_qt::FrmAnalizaNew::Open(o, s); }));
  host.Register(platform::ToolWindow::Complex, [&services, &host](QWidget* owner) {
    return new complex_qt::FrmComplex(
        owner, {services.messages, &host, services.shell,
                QDir(services.programFolder).filePath(QString::fromUtf8(kHelpFile.data()))});
  });
  host.Register(platform::ToolWindow::Matrix, [&services, &host](QWidget* owner) {
    return new matrix_qt::FrmMatrice(owner, MatrixServices(services, host));
  });
  host.Register(platform::ToolWindow::Geometry, [&services](QWidget* owner) {
    return new geometry_qt::FrmGeo(owner, {services.messages, services.files, nullptr});
  });
  host.Register(platform::ToolWindow::Converter, [&services, &host](QWidget* owner) {
    return new geometry_qt::FrmConvert(owner, {services.messages, &host, nullptr});
  });
}

void OpenMatrixFile(ToolWindowHost& host, const QString& path) {
  host.Show(platform::ToolWindow::Matrix);
  auto* window = qobject_cast<matrix_qt::FrmMatrice*>(host.Window(platform::ToolWindow::Matrix));
  if (window == nullptr) return;
  window->OpenFile(path);
  // The test scripts' probes see which file the calculator took, and its size.
  if (qEnvironmentVariable("VELMORA_STARTUP_PROBE") == QLatin1String("1") ||
      qEnvironmentVariable("VELMORA_STATE_PROBE") == QLatin1String("1")) {
    const auto& grid = window->Calculator().grdGrid1;
    std::fprintf(stderr, "matrix: opened %s as %dx%d\n", path.toLocal8Bit().constData(), grid.Rows(),
                 grid.Cols());
    std::fflush(stderr);
  }
}

}  // namespace velmora::app
