#include "cli/mathpadcommand.h"

#include <ostream>

#include "mathpad/documentfile.h"

namespace velmora::cli {

int RunMathPad(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  const auto usage = [&err] {
    err << "usage: velmora-cli mathpad convert IN OUT | mathpad text IN\n";
    return 2;
  };
  if (args.empty()) return usage();
  const std::string& verb = args[0];
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
