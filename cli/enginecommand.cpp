#include "cli/enginecommand.h"

#include <istream>
#include <ostream>

#include "cli/command.h"
#include "expr/formulaengine.h"
#include "expr/numtext.h"

namespace velmora::cli {

int RunEngine(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err) {
  if (!args.empty()) {
    err << "usage: velmora-cli engine  (formulas on standard input, one a line)\n";
    return 2;
  }
  using Kind = expr::FormulaEngine::Kind;
  expr::FormulaEngine engine;
  std::string line;
  while (ReadLine(in, line)) {
    engine.SetFormula(line);
    if (engine.Faulted()) {
      out << "fault\n";
    } else if (engine.LastKind() == Kind::Push || engine.LastKind() == Kind::PopAll) {
      out << "ok\n";
    } else {
      out << expr::NumberToText(engine.Result()) << '\n';
    }
  }
  return 0;
}

}  // namespace velmora::cli
