#include "cli/mathpadcommand.h"

#include <memory>
#include <optional>
#include <ostream>

#include "mathpad/documentfile.h"
#include "platform/qt/qtsettingsstore.h"
#include "platform/qt/qtstring.h"

#ifdef VELMORA_HAVE_QT_SURFACE
#include <QPdfWriter>
#include <QTextDocument>

#include "graph/qt/headlessgui.h"
#include "mathpad/qt/padconvert.h"
#include "output/pagemargins.h"
#include "output/printcommands.h"
#include "output/qt/printout.h"
#endif

namespace velmora::cli {
namespace {

// mathpad print IN OUT.pdf [--settings FILE]: the document printed to a PDF
// file page by page inside the stored margins, as MathPad's Print prints it.
int PrintDocument(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> files;
  std::optional<std::string> settingsFile;
  for (std::size_t i = 1; i < args.size(); ++i) {
    if (args[i] == "--settings" && i + 1 < args.size()) {
      settingsFile = args[++i];
    } else {
      files.push_back(args[i]);
    }
  }
  if (files.size() != 2) {
    err << "usage: velmora-cli mathpad print IN OUT.pdf [--settings FILE]\n";
    return 2;
  }
  const auto document = mathpad::LoadDocument(files[0]);
  if (!document) {
    err << "cannot read " << files[0] << '\n';
    return 1;
  }
#ifdef VELMORA_HAVE_QT_SURFACE
  auto settings = settingsFile
                      ? std::make_unique<qtplatform::QtSettingsStore>(qtplatform::ToQString(*settingsFile))
                      : std::make_unique<qtplatform::QtSettingsStore>();
  graph_qt::HeadlessGui gui;
  QTextDocument page;
  mathpad_qt::PadPictures pictures;
  mathpad_qt::SetDocument(page, *document, pictures);
  if (page.isEmpty()) {
    out << "message: " << output::PrintCommands::kNothingToPrint << '\n';
    return 0;
  }
  int pages = 0;
  {
    QPdfWriter writer(qtplatform::ToQString(files[1]));
    writer.setCreator(QStringLiteral("Velmora"));
    pages = output_qt::PrintDocument(writer, page, output::PrintMargine::Read(*settings));
  }
  if (pages < 0) {
    err << "cannot write " << files[1] << '\n';
    return 1;
  }
  out << "pages: " << pages << '\n';
  return 0;
#else
  (void)out;
  err << "printing needs a build with Qt (VELMORA_GUI=ON)\n";
  return 1;
#endif
}

}  // namespace

int RunMathPad(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  const auto usage = [&err] {
    err << "usage: velmora-cli mathpad convert IN OUT | mathpad text IN | mathpad print IN OUT.pdf "
           "[--settings FILE]\n";
    return 2;
  };
  if (args.empty()) return usage();
  const std::string& verb = args[0];
  if (verb == "print") return PrintDocument(args, out, err);
  if (verb == "text" && args.size() == 2) {
    const auto document = mathpad::LoadDocument(args[1]);
    if (!document) {
      err << "cannot read " << args[1] << '\n';
      return 1;
    }
    out << rtf::PlainText(*document) << '\n';
    return 0;
  }
  if (verb == "convert" && args.size() == 3) {
    const auto document = mathpad::LoadDocument(args[1]);
    if (!document) {
      err << "cannot read " << args[1] << '\n';
      return 1;
    }
    if (!mathpad::SaveDocument(*document, args[2])) {
      err << "cannot write " << args[2] << '\n';
      return 1;
    }
    return 0;
  }
  return usage();
}

}  // namespace velmora::cli
