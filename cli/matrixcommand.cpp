#include "cli/matrixcommand.h"

#include <array>
#include <fstream>
#include <ostream>
#include <string_view>

#include "cli/streammessagebox.h"
#include "complex/complexnumber.h"
#include "expr/fault.h"
#include "matrix/gridroutines.h"
#include "matrix/htmlreport.h"
#include "matrix/matrixcalculator.h"
#include "matrix/mcffile.h"
#include "matrix/traceequation.h"

namespace velmora::cli {
namespace {

using matrix::MatrixCalculator;

constexpr const char* kUsage =
    "usage: velmora-cli matrix OP A.mcf [B.mcf] [--scalar TEXT] [--precision N] [--zeros] [--html FILE]\n"
    "  OP: add sub mul smul sdiv inverse solve adjoint trace chareq transpose\n";

// What each operation word needs and which calculator operation it runs.
struct MatrixOp {
  std::string_view word;
  std::int16_t operation;  // the report template, 0 for none
  bool needsB;
  bool needsScalar;
};

constexpr std::array<MatrixOp, 11> kOps = {{
    {"add", matrix::kAdd, true, false},
    {"sub", matrix::kSubtract, true, false},
    {"mul", matrix::kMultiply, true, false},
    {"smul", matrix::kScalarMultiply, false, true},
    {"sdiv", matrix::kScalarDivide, false, true},
    {"inverse", matrix::kDeterminantInverse, false, false},
    {"solve", matrix::kSolutionSet, true, false},
    {"adjoint", matrix::kDeterminantInverse, false, false},
    {"chareq", matrix::kDeterminantInverse, false, false},
    {"trace", 0, false, false},
    {"transpose", 0, false, false},
}};

struct Options {
  const MatrixOp* op = nullptr;
  std::vector<std::string> files;
  std::string scalar;
  bool hasScalar = false;
  std::string precision;
  bool hasPrecision = false;
  std::string html;
  bool zeros = false;
};

bool ParseOptions(const std::vector<std::string>& args, Options& o, std::ostream& err) {
  if (args.empty()) {
    err << kUsage;
    return false;
  }
  for (const auto& op : kOps)
    if (args[0] == op.word) o.op = &op;
  if (o.op == nullptr) {
    err << "velmora-cli matrix: unknown operation '" << args[0] << "'\n" << kUsage;
    return false;
  }
  for (std::size_t i = 1; i < args.size(); ++i) {
    const std::string& a = args[i];
    const bool takesValue = a == "--scalar" || a == "--precision" || a == "--html";
    if (takesValue && i + 1 >= args.size()) {
      err << "velmora-cli matrix: " << a << " needs a value\n";
      return false;
    }
    if (a == "--scalar") {
      o.scalar = args[++i];
      o.hasScalar = true;
    } else if (a == "--precision") {
      o.precision = args[++i];
      o.hasPrecision = true;
    } else if (a == "--html") {
      o.html = args[++i];
    } else if (a == "--zeros") {
      o.zeros = true;
    } else if (a.size() > 2 && a.compare(0, 2, "--") == 0) {
      err << "velmora-cli matrix: unknown option '" << a << "'\n";
      return false;
    } else {
      o.files.push_back(a);
    }
  }
  const std::size_t wanted = o.op->needsB ? 2 : 1;
  if (o.files.size() != wanted) {
    err << "velmora-cli matrix " << o.op->word << ": needs " << wanted << (wanted == 1 ? " file" : " files")
        << "\n";
    return false;
  }
  if (o.op->needsScalar && !o.hasScalar) {
    err << "velmora-cli matrix " << o.op->word << ": --scalar TEXT is missing\n";
    return false;
  }
  if (!o.html.empty() && o.op->operation == 0) {
    err << "velmora-cli matrix " << o.op->word << ": no report for this operation\n";
    return false;
  }
  return true;
}

bool Load(const std::string& path, matrix::Grid& grid, std::ostream& err) {
  std::ifstream probe(path, std::ios::binary);
  if (!probe) {
    err << "velmora-cli matrix: cannot read " << path << "\n";
    return false;
  }
  matrix::ReadMcf(probe, grid);
  return true;
}

// Runs the operation; false after a message.
bool Calculate(const Options& o, MatrixCalculator& calc, std::ostream& out, std::ostream& err) {
  const std::string_view word = o.op->word;
  if (word == "trace") {
    try {
      const matrix::TraceSum sum = matrix::TraceCells(calc.grdGrid1);
      if (!sum.held) {
        err << complex::kInvalidComplexNumber << '\n';
        return false;
      }
      out << matrix::TraceValueText(sum) << '\n';
      return true;
    } catch (const expr::Fault& fault) {
      err << fault.what() << '\n';
      return false;
    }
  }
  if (word == "transpose") {
    matrix::TransposeGrid(calc.grdGrid1, calc.grdSwap);
    out << matrix::McfText(calc.grdSwap);
    return true;
  }
  if (word == "adjoint" || word == "chareq") {
    calc.Operation = matrix::kDeterminantInverse;
    if (word == "chareq") {
      if (!calc.CharacteristicEquation(MatrixCalculator::kTabA)) return false;
      // The report of the equation is the inverse's, with the adjoint in it.
      if (!o.html.empty()) calc.Adjoint(MatrixCalculator::kTabA);
      out << calc.txtEq << '\n';
      return true;
    }
    if (!calc.Adjoint(MatrixCalculator::kTabA)) return false;
    out << matrix::McfText(calc.grdSwap);
    return true;
  }
  calc.Operation = o.op->operation;
  calc.txtEntry2 = o.scalar;
  if (!calc.EnterValues() || !calc.Go2()) return false;
  if (calc.Operation == matrix::kDeterminantInverse || calc.Operation == matrix::kSolutionSet) {
    err << "Det |A| = " << calc.txtDet << '\n';
    if (calc.Operation == matrix::kDeterminantInverse && !o.html.empty()) {
      // The inverse's report shows the adjoint too.
      const std::string det = calc.txtDet;
      calc.Adjoint(MatrixCalculator::kTabA);
      calc.txtDet = det;
    }
    out << matrix::McfText(calc.Operation == matrix::kDeterminantInverse ? calc.grdInverse
                                                                         : calc.grdSolution);
    return true;
  }
  out << matrix::McfText(calc.grdSolution);
  return true;
}

}  // namespace

int RunMatrix(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  Options o;
  if (!ParseOptions(args, o, err)) return 2;
  StreamMessageBox messages(err);
  MatrixCalculator calc(messages);
  calc.chNule = o.zeros;
  if (o.hasPrecision) {
    std::string text = o.precision;
    matrix::CheckPrecisionText(text, messages);
    calc.txtPrecision = text;
  }
  if (!Load(o.files[0], calc.grdGrid1, err)) return 2;
  if (o.files.size() > 1 && !Load(o.files[1], calc.grdGrid2, err)) return 2;
  if (!Calculate(o, calc, out, err)) return 1;
  if (!o.html.empty()) {
    calc.Operation = o.op->operation;
    if (!matrix::WriteHtmlReport(o.html, calc.Report(), messages)) return 1;
  }
  return 0;
}

}  // namespace velmora::cli
