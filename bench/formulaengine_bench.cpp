// The plot's road through the formula engine, side by side with references.
//
// A Cartesian plot asks for one value per pixel column: the value goes into
// the function's evaluation form as text, the text is set as the formula,
// Result is read and "PopAll()" follows. For each function of the example
// catalogue below, one run over the 801 samples of a plot 800 pixels wide at
// Zoom 40 (K from -10 to 10 in steps of 1/40, each cut to three decimals as
// the plot loop does) is timed four ways:
//   (a) TextRoad        NumberToText, ReplaceText(form, "K", "(" v ")"),
//                       SetFormula, Result, SetFormula("PopAll()");
//   (b) MuCompiled      muParser, the expression compiled once with K bound;
//   (c) MuReparse       muParser, SetExpr of the sample's text every time;
//   (d) Native          the function written in C++.
// After the run a table gives CPU nanoseconds per sample, the ratios
// (a)/(b), (a)/(c), (a)/(d), the two halves of (a) timed apart (making the
// texts; the engine on ready texts), and how many samples of (b), (c) and (d) agree
// with (a) (within 1E-9 relative, or all not finite).
#include <benchmark/benchmark.h>
#include <muParser.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "expr/formulaengine.h"
#include "expr/functionlibrary.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"

namespace {

using velmora::expr::Apply;
using velmora::expr::Fn;

constexpr int kSamples = 801;

// The samples' K values: ScaleWidth 800, Zoom 40, CenterX 400; kr = Int(K * 1000) / 1000.
const std::vector<double>& Samples() {
  static const std::vector<double> values = [] {
    std::vector<double> v;
    for (int i = 0; i < kSamples; ++i) {
      const double k = -10.0 + i / 40.0;
      v.push_back(std::floor(k * 1000) / 1000);
    }
    return v;
  }();
  return values;
}

struct BenchFunction {
  const char* typed;  // the catalogue's caption
  const char* form;   // its evaluation form: upper case, X to K, EXP to EP, FIX to STL
  double (*native)(double);
};

const double kPi = 4 * std::atan(1.0);

const BenchFunction kFunctions[] = {
    {"(X^2)-1/(1-X)+1/X", "(K^2)-1/(1-K)+1/K", [](double k) { return k * k - 1 / (1 - k) + 1 / k; }},
    {"X/2+SinX", "K/2+SINK", [](double k) { return k / 2 + std::sin(k); }},
    {"LnX/SqrX", "LNK/SQRK", [](double k) { return std::log(k) / std::sqrt(k); }},
    {"SinX*Sin(2*X)", "SINK*SIN(2*K)", [](double k) { return std::sin(k) * std::sin(2 * k); }},
    {"(SinX)^3-(CosX)^3", "(SINK)^3-(COSK)^3",
     [](double k) { return std::pow(std::sin(k), 3) - std::pow(std::cos(k), 3); }},
    {"SinX/(Sin(X+Pi/4))", "SINK/(SIN(K+PI/4))",
     [](double k) { return std::sin(k) / std::sin(k + kPi / 4); }},
    {"X+2*AtnX", "K+2*ATNK", [](double k) { return k + 2 * std::atan(k); }},
    {"Ln(HSinX)", "LN(HSINK)", [](double k) { return std::log(std::sinh(k)); }},
    {"CubX-BinX+NilX+ExpX", "CUBK-BINK+NILK+EPK",
     [](double k) { return k * k * k - k * k + std::cbrt(k * k) + std::exp(k); }},
    {"X/Cbr(4-BinX)", "K/CBR(4-BINK)", [](double k) { return k / std::cbrt(4 - k * k); }},
    {"(2+X^2)*Exp(-(X^2))", "(2+K^2)*EP(-(K^2))", [](double k) { return (2 + k * k) * std::exp(-(k * k)); }},
    {"2*Exp(-X/4)*Cos(3*X)", "2*EP(-K/4)*COS(3*K)",
     [](double k) { return 2 * std::exp(-k / 4) * std::cos(3 * k); }},
    {"X-X^3/Fac(3)+X^5/Fac(5)-X^7/Fac(7)", "K-K^3/FAC(3)+K^5/FAC(5)-K^7/FAC(7)",
     [](double k) { return k - std::pow(k, 3) / 6 + std::pow(k, 5) / 120 - std::pow(k, 7) / 5040; }},
    {"15/Sqrt(4+(1.5*X-12/X)^2)", "15/SQRT(4+(1.5*K-12/K)^2)",
     [](double k) { return 15 / std::sqrt(4 + std::pow(1.5 * k - 12 / k, 2)); }},
};
constexpr int kFunctionCount = static_cast<int>(std::size(kFunctions));

// The program's functions for muParser, computed by the same library.
template <Fn F>
double Lib(double x) {
  return Apply(F, x);
}

void DefineProgramNames(mu::Parser& p) {
  p.DefineFun("SIN", Lib<Fn::Sin>);
  p.DefineFun("COS", Lib<Fn::Cos>);
  p.DefineFun("LN", Lib<Fn::Ln>);
  p.DefineFun("SQR", Lib<Fn::Sqrt>);
  p.DefineFun("SQRT", Lib<Fn::Sqrt>);
  p.DefineFun("ATN", Lib<Fn::Atn>);
  p.DefineFun("HSIN", Lib<Fn::HSin>);
  p.DefineFun("CUB", Lib<Fn::Cube>);
  p.DefineFun("BIN", Lib<Fn::Square>);
  p.DefineFun("NIL", Lib<Fn::Nil>);
  p.DefineFun("CBR", Lib<Fn::Cbr>);
  p.DefineFun("EP", Lib<Fn::Exp>);
  p.DefineFun("FAC", Lib<Fn::Fac>);
  p.DefineFun("STEF", Lib<Fn::Stef>);
  p.DefineFun("BLANC", Lib<Fn::Blanc>);
  p.DefineConst("PI", kPi);
}

// The text of one sample, exactly as the plot makes it.
std::string SampleText(const std::string& form, double kr) {
  char bracketed[velmora::expr::kNumberTextMax + 2];
  bracketed[0] = '(';
  const std::size_t n = velmora::expr::NumberToText(kr, bracketed + 1);
  bracketed[n + 1] = ')';
  return velmora::expr::ReplaceText(form, "K", std::string_view(bracketed, n + 2));
}

// (a) The full text road.
double TextRoadValue(velmora::expr::FormulaEngine& engine, const std::string& form, double kr) {
  engine.SetFormula(SampleText(form, kr));
  const double y = engine.Result();
  engine.SetFormula("PopAll()");
  return y;
}

void BM_TextRoad(benchmark::State& state) {
  const std::string form = kFunctions[state.range(0)].form;
  velmora::expr::FormulaEngine engine;
  for (auto _ : state) {
    for (double kr : Samples()) benchmark::DoNotOptimize(TextRoadValue(engine, form, kr));
  }
  state.SetItemsProcessed(state.iterations() * kSamples);
}

// The two halves of the text road, to see what limits it: making the texts,
// and the engine's work on texts made beforehand.
void BM_RoadTextOnly(benchmark::State& state) {
  const std::string form = kFunctions[state.range(0)].form;
  for (auto _ : state) {
    for (double kr : Samples()) benchmark::DoNotOptimize(SampleText(form, kr));
  }
  state.SetItemsProcessed(state.iterations() * kSamples);
}

void BM_RoadEngineOnly(benchmark::State& state) {
  std::vector<std::string> texts;
  for (double kr : Samples()) texts.push_back(SampleText(kFunctions[state.range(0)].form, kr));
  velmora::expr::FormulaEngine engine;
  for (auto _ : state) {
    for (const std::string& text : texts) {
      engine.SetFormula(text);
      benchmark::DoNotOptimize(engine.Result());
      engine.SetFormula("PopAll()");
    }
  }
  state.SetItemsProcessed(state.iterations() * kSamples);
}

// muParser's form of the function with K as a bound variable: the short
// forms get their brackets as the value substitution gives them.
std::string MuForm(const char* form) { return velmora::expr::ReplaceAll(form, "K", "(K)"); }

void BM_MuCompiled(benchmark::State& state) {
  double k = 0;
  mu::Parser p;
  DefineProgramNames(p);
  p.DefineVar("K", &k);
  p.SetExpr(MuForm(kFunctions[state.range(0)].form));
  p.Eval();  // compiles to bytecode
  for (auto _ : state) {
    for (double kr : Samples()) {
      k = kr;
      benchmark::DoNotOptimize(p.Eval());
    }
  }
  state.SetItemsProcessed(state.iterations() * kSamples);
}

void BM_MuReparse(benchmark::State& state) {
  const std::string form = kFunctions[state.range(0)].form;
  mu::Parser p;
  DefineProgramNames(p);
  for (auto _ : state) {
    for (double kr : Samples()) {
      p.SetExpr(SampleText(form, kr));
      benchmark::DoNotOptimize(p.Eval());
    }
  }
  state.SetItemsProcessed(state.iterations() * kSamples);
}

void BM_Native(benchmark::State& state) {
  const auto f = kFunctions[state.range(0)].native;
  for (auto _ : state) {
    for (double kr : Samples()) benchmark::DoNotOptimize(f(kr));
  }
  state.SetItemsProcessed(state.iterations() * kSamples);
}

BENCHMARK(BM_TextRoad)->DenseRange(0, kFunctionCount - 1);
BENCHMARK(BM_MuCompiled)->DenseRange(0, kFunctionCount - 1);
BENCHMARK(BM_MuReparse)->DenseRange(0, kFunctionCount - 1);
BENCHMARK(BM_Native)->DenseRange(0, kFunctionCount - 1);
BENCHMARK(BM_RoadTextOnly)->DenseRange(0, kFunctionCount - 1);
BENCHMARK(BM_RoadEngineOnly)->DenseRange(0, kFunctionCount - 1);

// Collects each benchmark's time per sample for the summary table.
class SummaryReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.iterations == 0) continue;
      const double seconds = run.cpu_accumulated_time / static_cast<double>(run.iterations);
      nsPerSample_[run.benchmark_name()] = seconds * 1e9 / kSamples;
    }
  }

  double NsPerSample(const std::string& name) const {
    const auto it = nsPerSample_.find(name);
    return it == nsPerSample_.end() ? std::nan("") : it->second;
  }

 private:
  std::map<std::string, double> nsPerSample_;
};

bool Agree(double a, double b) {
  if (!std::isfinite(a) || !std::isfinite(b)) return !std::isfinite(a) && !std::isfinite(b);
  return std::fabs(a - b) <= 1e-9 * std::max(1.0, std::fabs(b));
}

struct Agreement {
  int compiled = 0;
  int reparse = 0;
  int native = 0;
};

// The four roads' values on every sample, compared with the text road.
Agreement CheckAgreement(int i) {
  Agreement a;
  const std::string form = kFunctions[i].form;
  velmora::expr::FormulaEngine engine;
  double k = 0;
  mu::Parser compiled;
  DefineProgramNames(compiled);
  compiled.DefineVar("K", &k);
  compiled.SetExpr(MuForm(kFunctions[i].form));
  mu::Parser reparse;
  DefineProgramNames(reparse);
  for (double kr : Samples()) {
    const double road = TextRoadValue(engine, form, kr);
    k = kr;
    a.compiled += Agree(road, compiled.Eval()) ? 1 : 0;
    reparse.SetExpr(SampleText(form, kr));
    a.reparse += Agree(road, reparse.Eval()) ? 1 : 0;
    a.native += Agree(road, kFunctions[i].native(kr)) ? 1 : 0;
  }
  return a;
}

void PrintSummary(const SummaryReporter& r) {
  std::printf("\nCPU time per sample (ns) over %d samples; ratios of the text road (a) to each reference\n",
              kSamples);
  std::printf("%-36s %9s %9s %9s %9s %8s %8s %8s %9s %9s  agree b/c/d\n", "function", "(a)road", "(b)muC",
              "(c)muRe", "(d)nat", "a/b", "a/c", "a/d", "a:text", "a:engine");
  for (int i = 0; i < kFunctionCount; ++i) {
    const std::string arg = "/" + std::to_string(i);
    const double a = r.NsPerSample("BM_TextRoad" + arg);
    const double b = r.NsPerSample("BM_MuCompiled" + arg);
    const double c = r.NsPerSample("BM_MuReparse" + arg);
    const double d = r.NsPerSample("BM_Native" + arg);
    const double text = r.NsPerSample("BM_RoadTextOnly" + arg);
    const double eng = r.NsPerSample("BM_RoadEngineOnly" + arg);
    const Agreement ag = CheckAgreement(i);
    std::printf("%-36s %9.1f %9.1f %9.1f %9.1f %8.2f %8.3f %8.1f %9.1f %9.1f  %d/%d/%d\n",
                kFunctions[i].typed, a, b, c, d, a / b, a / c, a / d, text, eng, ag.compiled, ag.reparse,
                ag.native);
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  SummaryReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintSummary(reporter);
  benchmark::Shutdown();
  return 0;
}
