#include "app/toolregistry.h"

#include <QDir>

#include "app/frmmain.h"
#include "app/menutable.h"
#include "app/toolwindowhost.h"
#include "mathpad/qt/frmmapuskice.h"
#include "graph/qt/frmfunc.h"
#include "tools/qt/frmanalizanew.h"
#include "tools/qt/frmintav.h"
#include "tools/qt/frmnjutn.h"
#include "tools/qt/frmtabela.h"
#include "tools/qt/frmtast.h"
#include "complex/qt/frmcomplex.h"

namespace velmora::app {
namespace {

// The frame's services as the analysis tools take them; the active graph
// window is looked up each time a tool asks.
tools_qt::ToolServices AnalysisServices(const FrameServices& services, ToolWindowHost& host, QWidget* owner) {
  tools_qt::ToolServices out{services.messages, services.files, services.shell, &host, {}};
  out.activeGraph = [owner]() -> graph::GraphToolTarget* {
    auto* frame = qobject_cast<FrmMain*>(owner);
    graph_qt::FrmFunc* active = frame != nullptr ? frame->ActiveGraphWindow() : nullptr;
    return active != nullptr ? &active->Logic() : nullptr;
  };
  return out;
}

}  // namespace

void RegisterToolWindows(ToolWindowHost& host, const FrameServices& services) {
  // One line a tool window, e.g.
  //   host.Register(platform::ToolWindow::MathPad,
  //                 [&services, &host](QWidget* owner) { return new ...(owner, ...); });
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
}

}  // namespace velmora::app
