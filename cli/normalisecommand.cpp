#include "cli/normalisecommand.h"

#include <array>
#include <istream>
#include <ostream>
#include <string_view>

#include "cli/command.h"
#include "expr/normalise.h"

namespace velmora::cli {
namespace {

struct Chain {
  std::string_view name;
  std::string (*apply)(std::string_view);
};

constexpr std::array kChains = {
    Chain{"cleanup", expr::CleanUp},
    Chain{"evalform", expr::EvaluationForm},
    Chain{"trial", expr::ProveriSyn},
    Chain{"zagrade", expr::Zagrade},
    Chain{"shortforms", expr::NormalizeShortForms},
    Chain{"tangent", expr::TangentForm},
    Chain{"zamenisve", expr::ZameniSve},
    Chain{"tooltext", expr::ToolTextForm},
};

void Usage(std::ostream& err) {
  err << "usage: velmora-cli normalise CHAIN\n  CHAIN is one of";
  for (const auto& c : kChains) err << ' ' << c.name;
  err << '\n';
}

}  // namespace

int RunNormalise(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
                 std::ostream& err) {
  if (args.size() != 1) {
    Usage(err);
    return 2;
  }
  const Chain* chain = nullptr;
  for (const auto& c : kChains) {
    if (c.name == args[0]) chain = &c;
  }
  if (chain == nullptr) {
    err << "velmora-cli normalise: unknown chain '" << args[0] << "'\n";
    Usage(err);
    return 2;
  }
  std::string line;
  while (ReadLine(in, line)) out << chain->apply(line) << '\n';
  return 0;
}

}  // namespace velmora::cli
