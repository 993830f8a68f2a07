#include "cli/analysiscommand.h"

#include <fstream>
#include <istream>
#include <ostream>

#include "cli/command.h"
#include "cli/streammessagebox.h"
#include "expr/formulacontrol.h"
#include "expr/numtext.h"
#include "tools/criticalpoints.h"
#include "tools/derivativescan.h"
#include "tools/evaluatortool.h"
#include "tools/integraltool.h"
#include "tools/tablepublisher.h"
#include "tools/valuetabletool.h"
#include "tools/zerotool.h"

namespace velmora::cli {
namespace {

constexpr int kUsage = 2;

// The lines of a log (CR LF ends), one output line each.
void PrintLog(const std::string& log, std::ostream& out) {
  std::string line;
  for (std::size_t i = 0; i < log.size(); ++i) {
    if (log[i] == '\r' && i + 1 < log.size() && log[i + 1] == '\n') {
      out << line << '\n';
      line.clear();
      ++i;
    } else {
      line += log[i];
    }
  }
  if (!line.empty()) out << line << '\n';
}

// The words of a command: options with a value, flags, and the rest in order.
struct Words {
  std::vector<std::string> plain;
  std::vector<std::pair<std::string, std::string>> values;
  std::vector<std::string> flags;
  std::vector<std::string> range;  // --range XMIN XMAX

  bool Has(const std::string& name) const {
    for (const auto& entry : values) {
      if (entry.first == name) return true;
    }
    return false;
  }
  // The value of an option, or `fallback` when it was not given.
  std::string Get(const std::string& name, const std::string& fallback) const {
    for (const auto& [key, value] : values) {
      if (key == name) return value;
    }
    return fallback;
  }
  bool Flag(const std::string& name) const {
    for (const std::string& f : flags) {
      if (f == name) return true;
    }
    return false;
  }
};

bool Parse(const std::vector<std::string>& args, const std::vector<std::string>& valueNames,
           const std::vector<std::string>& flagNames, Words& words, std::ostream& err) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    bool known = false;
    if (a == "--range") {
      if (i + 2 >= args.size()) {
        err << "--range needs XMIN and XMAX\n";
        return false;
      }
      words.range = {args[i + 1], args[i + 2]};
      i += 2;
      continue;
    }
    for (const std::string& name : valueNames) {
      if (a == name) {
        if (i + 1 >= args.size()) {
          err << a << " needs a value\n";
          return false;
        }
        words.values.emplace_back(a, args[++i]);
        known = true;
      }
    }
    for (const std::string& name : flagNames) {
      if (a == name) {
        words.flags.push_back(a);
        known = true;
      }
    }
    if (known) continue;
    if (a.rfind("--", 0) == 0) {
      err << "unknown option " << a << '\n';
      return false;
    }
    words.plain.push_back(a);
  }
  return true;
}

int Zero(tools::ZeroKind kind, const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  Words w;
  const std::string valueName = kind == tools::ZeroKind::PointEvaluate ? "--x" : "--guess";
  if (!Parse(args, {valueName, "--y"}, {"--accurate"}, w, err)) return kUsage;
  const std::size_t functions = kind == tools::ZeroKind::Intersection ? 2 : 1;
  const bool range = !w.range.empty();
  if (w.plain.size() != functions || (!w.Has(valueName) && !range)) {
    err << "usage: see velmora-cli help\n";
    return kUsage;
  }
  StreamMessageBox messages(out, "message: ");
  const auto newton = expr::MakeFormulaControl();
  const auto other = expr::MakeFormulaControl();
  tools::ZeroTool tool(kind, *newton, *other, messages);
  tools::ZeroInputs& in = tool.Inputs();
  in.function = w.plain[0];
  if (functions == 2) in.function2 = w.plain[1];
  in.rangeMode = range;
  in.guess = w.Get(valueName, "");
  if (range) {
    in.xmin = w.range[0];
    in.xmax = w.range[1];
  }
  if (kind == tools::ZeroKind::PointEvaluate) in.target = w.Get("--y", "");
  in.increaseAccuracy = w.Flag("--accurate");
  tool.Calculate();
  PrintLog(tool.Log(), out);
  return 0;
}

}  // namespace

int RunTable(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  Words w;
  if (!Parse(args, {"--type", "--y", "--x", "--xmin", "--xmax", "--step", "--accuracy", "--html"}, {"--text"},
             w, err) ||
      !w.plain.empty() || !w.Has("--y")) {
    err << "usage: velmora-cli table [--type cartesian|parametric|polar] --y TEXT [--x TEXT] [--xmin T] "
           "[--xmax T] "
           "[--step T] [--accuracy N] [--text] [--html FILE]\n";
    return kUsage;
  }
  int type = 1;
  const std::string typeWord = w.Get("--type", "cartesian");
  {
    if (typeWord == "parametric") {
      type = 2;
    } else if (typeWord == "polar") {
      type = 3;
    } else if (typeWord != "cartesian") {
      err << "unknown type " << typeWord << '\n';
      return kUsage;
    }
  }
  StreamMessageBox messages(out, "message: ");
  const auto engine = expr::MakeFormulaControl();
  tools::ValueTableTool tool(*engine, messages);
  tool.SetType(type);
  tool.y = w.Get("--y", "");
  tool.x = w.Get("--x", tool.x);
  tool.xmin = w.Get("--xmin", tool.xmin);
  tool.xmax = w.Get("--xmax", tool.xmax);
  tool.step = w.Get("--step", tool.step);
  tool.decimals = w.Get("--accuracy", tool.decimals);
  tool.Calculate();
  const tools::TableHead head{type == 3, tool.YLabel(), tool.y, tool.xmin, tool.xmax, tool.step};
  if (w.Has("--html")) {
    std::ofstream page(w.Get("--html", ""), std::ios::binary | std::ios::trunc);
    const std::string bytes = tools::TablePublisher::HtmlPage(tool.Table(), head);
    page.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!page) {
      out << "message: Error. Specified file path cannot be acceded (file is ReadOnly etc.)\n";
      return 1;
    }
  }
  if (w.Flag("--text")) {
    PrintLog(tools::TablePublisher::BuildTableText(tool.Table(), head), out);
    return 0;
  }
  for (const std::string& line : tool.Table().TabLines()) out << line << '\n';
  return 0;
}

int RunZeros(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  return Zero(tools::ZeroKind::Zeros, args, out, err);
}

int RunIntersect(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  return Zero(tools::ZeroKind::Intersection, args, out, err);
}

int RunPoint(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  return Zero(tools::ZeroKind::PointEvaluate, args, out, err);
}

int RunIntegral(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  Words w;
  if (!Parse(args, {"--segments", "--accuracy"}, {"--trapezoid", "--average", "--derivative"}, w, err))
    return kUsage;
  const bool derivative = w.Flag("--derivative");
  if (w.plain.size() != (derivative ? 2u : 3u)) {
    err << "usage: velmora-cli integral FUNCTION MIN MAX [--segments N] [--trapezoid] [--average] "
           "[--accuracy N]\n"
           "       velmora-cli integral --derivative FUNCTION POINT [--accuracy N]\n";
    return kUsage;
  }
  StreamMessageBox messages(out, "message: ");
  const auto engine = expr::MakeFormulaControl();
  tools::IntegralTool tool(*engine, messages);
  if (w.Has("--accuracy")) tool.decimals = static_cast<int>(expr::TextToNumber(w.Get("--accuracy", "6")));
  if (derivative) {
    tool.derivand = w.plain[0];
    tool.point = w.plain[1];
    tool.Derivative();
    out << "Text11=" << tool.DerivativeText() << '\n';
    return 0;
  }
  tool.integrand = w.plain[0];
  tool.minText = w.plain[1];
  tool.maxText = w.plain[2];
  if (w.Has("--segments")) {
    tool.segments = w.Get("--segments", tool.segments);
    tool.SegmentsChanged();
  }
  tool.simpson = !w.Flag("--trapezoid");
  if (w.Flag("--average")) {
    tool.Average();
  } else {
    tool.Integral();
  }
  out << "txtkorak=" << tool.segments << '\n';
  out << "lblintg=" << tool.ResultCaption() << '\n';
  out << "Text10=" << tool.ResultText() << '\n';
  return 0;
}

int RunCritical(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  Words w;
  if (!Parse(args, {"--zoom", "--places"}, {"--accurate", "--scan"}, w, err) ||
      (w.plain.size() != 1 && w.plain.size() != 3) || (w.Flag("--scan") && w.plain.size() != 3)) {
    err << "usage: velmora-cli critical FUNCTION [XMIN XMAX] [--accurate]\n"
           "       velmora-cli critical FUNCTION XMIN XMAX --scan [--zoom Z] [--places N]\n";
    return kUsage;
  }
  StreamMessageBox messages(out, "message: ");
  const auto engine = expr::MakeFormulaControl();
  if (w.Flag("--scan")) {
    tools::DerivativeScan scan(*engine);
    scan.Run(w.plain[0], expr::TextToNumber(w.plain[1]), expr::TextToNumber(w.plain[2]),
             expr::TextToNumber(w.Get("--zoom", "30")),
             static_cast<int>(expr::TextToNumber(w.Get("--places", "2"))));
    out << "samples=" << scan.Samples() << '\n';
    for (const std::string& x : scan.Rising()) out << "rising=" << x << '\n';
    for (const std::string& x : scan.Falling()) out << "falling=" << x << '\n';
    return 0;
  }
  tools::CriticalPoints tool(*engine, messages);
  if (w.plain.size() == 3) {
    tool.minText = w.plain[1];
    tool.maxText = w.plain[2];
  }
  tool.increaseAccuracy = w.Flag("--accurate");
  tool.Calculate(w.plain[0]);
  PrintLog(tool.Log(), out);
  return 0;
}

int RunEvaluate(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
                std::ostream& err) {
  if (!args.empty()) {
    err << "usage: velmora-cli evaluate < lines of EXPRESSION[<tab>X]\n";
    return kUsage;
  }
  StreamMessageBox messages(out, "message: ");
  const auto engine = expr::MakeFormulaControl();
  tools::EvaluatorTool tool(*engine, messages);
  std::string line;
  while (ReadLine(in, line)) {
    const std::size_t tab = line.find('\t');
    tool.expression = line.substr(0, tab);
    if (tab != std::string::npos) {
      tool.xValue = line.substr(tab + 1);
      if (!tool.Replace()) continue;
    }
    const std::size_t before = tool.History().size();
    if (!tool.Evaluate()) {
      out << '\n';
      continue;
    }
    std::string added = tool.History().substr(before);
    if (added.size() >= 2) added.resize(added.size() - 2);  // the CR LF
    out << tool.ResultLabel() << '\t' << added << '\n';
  }
  return 0;
}

}  // namespace velmora::cli
