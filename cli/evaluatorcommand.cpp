#include "cli/evaluatorcommand.h"

#include <array>
#include <istream>
#include <ostream>
#include <string_view>

#include "cli/command.h"
#include "expr/evaluator.h"
#include "expr/fault.h"
#include "expr/graphfields.h"
#include "expr/normalise.h"
#include "expr/numtext.h"
#include "platform/messagebox.h"

namespace velmora::cli {
namespace {

// A fresh graph window as the evaluator sees it: four fields (empty unless
// set on the command line) and pen routines that draw nothing.
class BatchGraphWindow final : public expr::ActiveWindow, public expr::GraphFields {
 public:
  expr::GraphFields* ActiveGraph() override { return this; }
  std::string TxtImenilac() override { return txtImenilac; }
  std::string TxtY3() override { return txtY3; }
  std::string TxtY2() override { return txtY2; }
  std::string LblY3() override { return lblY3; }
  void Boje2() override {}
  void Boje3() override {}

  std::string txtImenilac, txtY3, txtY2, lblY3;
};

struct FieldName {
  std::string_view name;
  std::string BatchGraphWindow::*field;
};
constexpr std::array kFields = {
    FieldName{"txtImenilac", &BatchGraphWindow::txtImenilac},
    FieldName{"txtY3", &BatchGraphWindow::txtY3},
    FieldName{"txtY2", &BatchGraphWindow::txtY2},
    FieldName{"lblY3", &BatchGraphWindow::lblY3},
};

// Keeps the text of every box the trial would show. The lines of one
// message, and several messages, are joined by " | " so each stays on one
// output line.
class CapturingMessageBox final : public platform::MessageBox {
 public:
  platform::MsgResult Show(const std::string& text, const std::string&, platform::MsgIcon,
                           platform::MsgButtons) override {
    if (!shown.empty()) shown += kSeparator;
    for (const char c : text) {
      if (c == '\n') {
        shown += kSeparator;
      } else if (c != '\r') {
        shown += c;
      }
    }
    return platform::MsgResult::Ok;
  }

  static constexpr std::string_view kSeparator = " | ";
  std::string shown;
};

bool SetField(BatchGraphWindow& window, std::string_view assignment) {
  const auto eq = assignment.find('=');
  if (eq == std::string_view::npos) return false;
  const std::string_view name = assignment.substr(0, eq);
  for (const auto& f : kFields) {
    if (f.name == name) {
      window.*f.field = std::string(assignment.substr(eq + 1));
      return true;
    }
  }
  return false;
}

constexpr std::string_view kUsage =
    "usage: velmora-cli evaluator [--trial] [--no-window] [--field NAME=VALUE]...\n"
    "  NAME is one of txtImenilac, txtY3, txtY2, lblY3\n";

}  // namespace

int RunEvaluator(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
                 std::ostream& err) {
  BatchGraphWindow window;
  bool trial = false;
  bool noWindow = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--trial") {
      trial = true;
    } else if (a == "--no-window") {
      noWindow = true;
    } else if (a == "--field" && i + 1 < args.size()) {
      if (!SetField(window, args[++i])) {
        err << "velmora-cli evaluator: bad field '" << args[i] << "'\n" << kUsage;
        return 2;
      }
    } else {
      err << "velmora-cli evaluator: unknown argument '" << a << "'\n" << kUsage;
      return 2;
    }
  }

  CapturingMessageBox box;
  expr::Evaluator evaluator(&box, noWindow ? nullptr : &window);
  std::string line;
  while (ReadLine(in, line)) {
    try {
      if (trial) {
        box.shown.clear();
        evaluator.Evaluate(expr::ProveriSyn(expr::CleanUp(line)), false);
        out << (box.shown.empty() ? std::string("ok") : box.shown) << '\n';
      } else {
        const double value = evaluator.Evaluate(line, true);
        out << evaluator.Error() << '\t' << expr::NumberToText(value) << '\n';
      }
    } catch (const expr::Fault&) {
      out << "fault\n";
    }
  }
  return 0;
}

}  // namespace velmora::cli
