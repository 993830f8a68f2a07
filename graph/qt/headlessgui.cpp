#include "graph/qt/headlessgui.h"

#include <QCoreApplication>
#include <QGuiApplication>

namespace velmora::graph_qt {
namespace {

QtMessageHandler previousHandler = nullptr;

// A process without a session has no runtime folder; Qt picks one itself
// and says so on every start, which is noise for a batch program.
void QuietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtWarningMsg && message.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR not set")))
    return;
  if (previousHandler != nullptr) previousHandler(type, context, message);
}

int argcStore = 1;
char argvName[] = "velmora";
char* argvStore[] = {argvName, nullptr};

}  // namespace

HeadlessGui::HeadlessGui() {
  if (QCoreApplication::instance() != nullptr) return;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  previousHandler = qInstallMessageHandler(&QuietHandler);
  app_ = std::make_unique<QGuiApplication>(argcStore, argvStore);
}

HeadlessGui::~HeadlessGui() = default;

}  // namespace velmora::graph_qt
