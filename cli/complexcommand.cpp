#include "cli/complexcommand.h"

#include <ostream>
#include <string_view>

#include "cli/streammessagebox.h"
#include "complex/complexcalculator.h"
#include "complex/complextables.h"
#include "platform/messagebox.h"

namespace velmora::cli {
namespace {

void Usage(std::ostream& err) {
  err << "usage: velmora-cli complex OP Z1 [Z2]\n  OP:";
  for (const auto& entry : complex::Operations()) err << ' ' << entry.name;
  err << "\n  Z1, Z2: operand texts such as 3+j-4\n";
}

// The log block's lines, one output line each.
void PrintLog(std::string_view log, std::ostream& out) {
  while (!log.empty()) {
    const auto end = log.find("\r\n");
    out << log.substr(0, end) << '\n';
    if (end == std::string_view::npos) break;
    log.remove_prefix(end + 2);
  }
}

}  // namespace

int RunComplex(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  if (args.size() < 2 || args.size() > 3) {
    Usage(err);
    return 2;
  }
  const complex::OperationEntry* entry = complex::FindOperationByName(args[0]);
  if (entry == nullptr) {
    err << "velmora-cli complex: unknown operation '" << args[0] << "'\n";
    Usage(err);
    return 2;
  }
  if (entry->operands == complex::Operands::Two && args.size() < 3) {
    err << "velmora-cli complex: " << entry->name << " needs Z2\n";
    return 2;
  }
  StreamMessageBox box(out, "message: ");
  complex::ComplexCalculator calculator(box);
  complex::ComplexFields& fields = calculator.Fields();
  fields.lblZ1 = args[1];
  if (args.size() > 2) fields.lblZ2 = args[2];
  fields.frm2textOpen = true;
  if (calculator.Run(entry->operation)) {
    out << fields.TextResultReal << '\t' << fields.TextResultImaginary << '\n';
    PrintLog(fields.frm2text, out);
  }
  return 0;
}

}  // namespace velmora::cli
