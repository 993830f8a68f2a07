#include "graph/qt/headlessgui.h"

#include <QCoreApplication>
#include <QGuiApplication>

namespace velmora::graph_qt {
namespace {

int argcStore = 1;
char argvName[] = "velmora";
char* argvStore[] = {argvName, nullptr};

}  // namespace

HeadlessGui::HeadlessGui() {
  if (QCoreApplication::instance() != nullptr) return;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  app_ = std::make_unique<QGuiApplication>(argcStore, argvStore);
}

HeadlessGui::~HeadlessGui() = default;

}  // namespace velmora::graph_qt
