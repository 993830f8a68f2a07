#include "cli/printtextcommand.h"

#include <fstream>
#include <memory>
#include <optional>
#include <ostream>
#include <sstream>

#include "platform/qt/qtsettingsstore.h"
#include "platform/qt/qtstring.h"

#ifdef VELMORA_HAVE_QT_SURFACE
#include <QPdfWriter>
#include <QTextDocument>

#include "graph/qt/headlessgui.h"
#include "output/pagemargins.h"
#include "output/printcommands.h"
#include "output/qt/printout.h"
#endif

namespace velmora::cli {
namespace {

constexpr const char* kUsage = "usage: velmora-cli print-text IN OUT.pdf [--settings FILE] [--html]\n";

}  // namespace

int RunPrintText(const std::vector<std::string>& args, std::istream& /*in*/, std::ostream& out,
                 std::ostream& err) {
  std::vector<std::string> files;
  std::optional<std::string> settingsFile;
  bool html = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--settings" && i + 1 < args.size()) {
      settingsFile = args[++i];
    } else if (args[i] == "--html") {
      html = true;
    } else if (!args[i].empty() && args[i][0] == '-') {
      err << "velmora-cli print-text: unknown option '" << args[i] << "'\n" << kUsage;
      return 2;
    } else {
      files.push_back(args[i]);
    }
  }
  if (files.size() != 2) {
    err << kUsage;
    return 2;
  }
  std::ifstream input(files[0], std::ios::binary);
  if (!input) {
    err << "velmora-cli print-text: cannot read " << files[0] << '\n';
    return 1;
  }
  std::ostringstream text;
  text << input.rdbuf();
#ifdef VELMORA_HAVE_QT_SURFACE
  auto settings = settingsFile
                      ? std::make_unique<qtplatform::QtSettingsStore>(qtplatform::ToQString(*settingsFile))
                      : std::make_unique<qtplatform::QtSettingsStore>();
  graph_qt::HeadlessGui gui;
  QTextDocument document;
  if (html) {
    document.setHtml(QString::fromStdString(text.str()));
  } else {
    output_qt::FillPlainText(document, QString::fromStdString(text.str()));
  }
  if (document.isEmpty()) {
    out << "message: " << output::PrintCommands::kNothingToPrint << '\n';
    return 0;
  }
  int pages = 0;
  {
    QPdfWriter writer(qtplatform::ToQString(files[1]));
    writer.setCreator(QStringLiteral("Velmora"));
    pages = output_qt::PrintDocument(writer, document, output::PrintMargine::Read(*settings));
  }
  if (pages < 0) {
    err << "velmora-cli print-text: cannot write " << files[1] << '\n';
    return 1;
  }
  out << "pages: " << pages << '\n';
  return 0;
#else
  (void)out;
  (void)html;
  err << "velmora-cli print-text: printing needs a build with Qt (VELMORA_GUI=ON)\n";
  return 1;
#endif
}

}  // namespace velmora::cli
