#include "expr/functionlibrary.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cmath>
#include <ctime>
#include <string>

#include "base/asciicase.h"
#include "expr/checked.h"

namespace velmora::expr {
namespace {

// Every step of the program's arithmetic is checked: a result that is not
// finite is a fault, and a fault stays a fault through what follows. The
// library hands faults back as values, for the formula engine's sake.
constexpr double kFault = kFaultValue;
inline double Div(double a, double b) { return b == 0.0 ? kFault : FiniteOrFault(a / b); }
inline double Pow(double a, double b) { return FiniteOrFault(std::pow(a, b)); }
inline double Sqrt(double x) { return x < 0.0 ? kFault : std::sqrt(x); }
inline double Ln(double x) { return x <= 0.0 ? kFault : std::log(x); }
inline double Exp(double x) { return FiniteOrFault(std::exp(x)); }
inline double Sgn(double x) { return x > 0.0 ? 1.0 : (x < 0.0 ? -1.0 : 0.0); }
inline double HalfPi() { return 2.0 * std::atan(1.0); }

// The names in the order the evaluator compares them.
constexpr std::array kEvaluatorNames = {
    FunctionName{"\xC2\xB2", Fn::Square},                                      // "²"
    FunctionName{"BIN", Fn::Square},      FunctionName{"\xC2\xB3", Fn::Cube},  // "³"
    FunctionName{"CUB", Fn::Cube},        FunctionName{"QVD", Fn::Fourth},
    FunctionName{"QVT", Fn::Fourth},      FunctionName{"PNT", Fn::Fifth},
    FunctionName{"SQRT", Fn::Sqrt},       FunctionName{"SQR", Fn::Sqrt},
    FunctionName{"NIL", Fn::Nil},         FunctionName{"CBR", Fn::Cbr},
    FunctionName{"CBR2", Fn::Cbr2},       FunctionName{"QVR", Fn::Qvr},
    FunctionName{"PBR", Fn::Pbr},         FunctionName{"SIN", Fn::Sin},
    FunctionName{"COS", Fn::Cos},         FunctionName{"TAN", Fn::Tan},
    FunctionName{"COTAN", Fn::Cot},       FunctionName{"COT", Fn::Cot},
    FunctionName{"SEC", Fn::Sec},         FunctionName{"COSEC", Fn::Csc},
    FunctionName{"CSC", Fn::Csc},         FunctionName{"ATN", Fn::Atn},
    FunctionName{"ATAN", Fn::Atn},        FunctionName{"ARCSIN", Fn::Asin},
    FunctionName{"ASIN", Fn::Asin},       FunctionName{"ARCCOS", Fn::Acos},
    FunctionName{"ACOS", Fn::Acos},       FunctionName{"ARCCOTAN", Fn::Acot},
    FunctionName{"ACOT", Fn::Acot},       FunctionName{"ARCCOT", Fn::Acot},
    FunctionName{"EXP", Fn::Exp},         FunctionName{"EP", Fn::Exp},
    FunctionName{"LN", Fn::Ln},           FunctionName{"LOG", Fn::Log},
    FunctionName{"FIX", Fn::Fix},         FunctionName{"FI", Fn::Fix},
    FunctionName{"INT", Fn::Int},         FunctionName{"SGN", Fn::Sgn},
    FunctionName{"ABS", Fn::Abs},         FunctionName{"RND", Fn::Rnd},
    FunctionName{"ARCSEC", Fn::Asec},     FunctionName{"ASEC", Fn::Asec},
    FunctionName{"ARCCOSEC", Fn::Acsc},   FunctionName{"ACSC", Fn::Acsc},
    FunctionName{"HSIN", Fn::HSin},       FunctionName{"SINH", Fn::HSin},
    FunctionName{"HCOS", Fn::HCos},       FunctionName{"COSH", Fn::HCos},
    FunctionName{"HTAN", Fn::HTan},       FunctionName{"TANH", Fn::HTan},
    FunctionName{"HSEC", Fn::HSec},       FunctionName{"SECH", Fn::HSec},
    FunctionName{"HCOSEC", Fn::HCsc},     FunctionName{"HCSC", Fn::HCsc},
    FunctionName{"CSCH", Fn::HCsc},       FunctionName{"HCOTAN", Fn::HCot},
    FunctionName{"HCOT", Fn::HCot},       FunctionName{"COTH", Fn::HCot},
    FunctionName{"HARCSIN", Fn::HAsin},   FunctionName{"HASIN", Fn::HAsin},
    FunctionName{"ARCSINH", Fn::HAsin},   FunctionName{"ASINH", Fn::HAsin},
    FunctionName{"HARCCOS", Fn::HAcos},   FunctionName{"HACOS", Fn::HAcos},
    FunctionName{"ARCCOSH", Fn::HAcos},   FunctionName{"ACOSH", Fn::HAcos},
    FunctionName{"HARCTAN", Fn::HAtan},   FunctionName{"HATAN", Fn::HAtan},
    FunctionName{"ARCTANH", Fn::HAtan},   FunctionName{"ATANH", Fn::HAtan},
    FunctionName{"HATN", Fn::HAtan},      FunctionName{"ATNH", Fn::HAtan},
    FunctionName{"HARCSEC", Fn::HAsec},   FunctionName{"HASEC", Fn::HAsec},
    FunctionName{"ARCSECH", Fn::HAsec},   FunctionName{"ASECH", Fn::HAsec},
    FunctionName{"HARCCOSEC", Fn::HAcsc}, FunctionName{"HACSC", Fn::HAcsc},
    FunctionName{"ARCCSCH", Fn::HAcsc},   FunctionName{"ACSCH", Fn::HAcsc},
    FunctionName{"HARCCOTAN", Fn::HAcot}, FunctionName{"HACOT", Fn::HAcot},
    FunctionName{"HARCCOT", Fn::HAcot},   FunctionName{"ARCCOTH", Fn::HAcot},
    FunctionName{"ACOTH", Fn::HAcot},     FunctionName{"STEF", Fn::Stef},
    FunctionName{"FOUR", Fn::Four},       FunctionName{"BLANC", Fn::Blanc},
    FunctionName{"GAMMA", Fn::Gamma},     FunctionName{"BETA", Fn::Beta},
    FunctionName{"FAC", Fn::Fac},         FunctionName{"TIMER", Fn::Timer},
    FunctionName{"YEAR", Fn::Year},       FunctionName{"MONTH", Fn::Month},
    FunctionName{"DAY", Fn::Day},         FunctionName{"WEEKDAY", Fn::Weekday},
    FunctionName{"HOUR", Fn::Hour},       FunctionName{"MINUTE", Fn::Minute},
    FunctionName{"SECOND", Fn::Second},   FunctionName{"PI", Fn::Pi},
    FunctionName{"D", Fn::Degree},        FunctionName{"E", Fn::E},
};

// Spellings the formula engine accepts beyond the evaluator's names.
constexpr std::array kEngineOnlyNames = {
    FunctionName{"STL", Fn::Fix},
    FunctionName{"RAD", Fn::Rad},
    FunctionName{"DEG", Fn::Deg},
};

std::optional<Fn> FindIn(std::span<const FunctionName> table, std::string_view name) {
  for (const auto& entry : table) {
    if (entry.name == name) return entry.fn;
  }
  return std::nullopt;
}

double Hyperbolic(Fn fn, double x) {
  const double ep = Exp(x);
  const double em = Exp(-x);
  switch (fn) {
    case Fn::HSin: return Div(FiniteOrFault(ep - em), 2.0);
    case Fn::HCos: return Div(FiniteOrFault(ep + em), 2.0);
    case Fn::HTan: return Div(FiniteOrFault(ep - em), FiniteOrFault(ep + em));
    case Fn::HSec: return Div(2.0, FiniteOrFault(ep + em));
    case Fn::HCsc: return Div(2.0, FiniteOrFault(ep - em));
    case Fn::HCot: return Div(FiniteOrFault(ep + em), FiniteOrFault(ep - em));
    default: return kFault;
  }
}

double Four(double x) {
  double sum = 0.0;
  for (int i = 1; i <= 9999; i += 2) {
    sum += std::sin(static_cast<double>(i) * x) / static_cast<double>(i);
  }
  return FiniteOrFault(sum);
}

double Blanc(double x) {
  double sum = 0.0;
  for (int n = 0; n <= 100; ++n) {
    x = x - std::floor(x);
    const double t = x < 0.5 ? x : 1.0 - x;
    sum += t / std::pow(2.0, n);
    x = FiniteOrFault(x * 2.0);
  }
  return FiniteOrFault(sum);
}

struct LocalClock {
  std::tm tm{};
  double secondsSinceMidnight = 0.0;
};

LocalClock ReadClock() {
  LocalClock clock;
  const auto now = std::chrono::system_clock::now();
  const std::time_t t = std::chrono::system_clock::to_time_t(now);
  localtime_r(&t, &clock.tm);
  const auto sinceEpoch = now.time_since_epoch();
  const double fraction =
      std::chrono::duration<double>(sinceEpoch - std::chrono::floor<std::chrono::seconds>(sinceEpoch))
          .count();
  clock.secondsSinceMidnight =
      clock.tm.tm_hour * 3600.0 + clock.tm.tm_min * 60.0 + clock.tm.tm_sec + fraction;
  return clock;
}

// The generator state: a 24-bit linear congruential sequence.
struct RandomState {
  std::uint32_t seed = 0x50000;
};
RandomState& Random() {
  static RandomState state;
  return state;
}

}  // namespace

std::span<const FunctionName> EvaluatorFunctionNames() { return kEvaluatorNames; }

std::optional<Fn> FindEvaluatorFunction(std::string_view upperName) {
  return FindIn(kEvaluatorNames, upperName);
}

std::optional<Fn> FindEngineFunction(std::string_view name) {
  if (name.size() > 16) return std::nullopt;
  const std::string key = base::UpperCase(name);  // short: no allocation
  if (auto fn = FindIn(kEvaluatorNames, key)) return fn;
  return FindIn(kEngineOnlyNames, key);
}

bool OutsideSentinelDomain(Fn fn, double x) {
  if (fn == Fn::Asec) return std::fabs(x) < 1.0;
  if (fn == Fn::Acsc) return std::fabs(x) <= 1.0;
  return false;
}

double Factorial2(int n) {
  if (n < 0) return 0.0;
  // n * factorial2(n - 1) unrolled: the recursion multiplies from the bottom up.
  double value = 1.0;
  for (int k = 1; k <= n; ++k) {
    value = FiniteOrFault(static_cast<double>(k) * value);
    if (std::isnan(value)) return kFault;
  }
  return value;
}

double Gamma(double x) {
  // The product is converted to a 32-bit integer only as a range check: the
  // direct formula is used only where the product fits.
  const double product = (x + 1) * 1.00000000019001 * (x + 2) * (x + 3) * (x + 4) * (x + 5) * (x + 6);
  if (!std::isfinite(product) || std::nearbyint(product) < -2147483648.0 ||
      std::nearbyint(product) > 2147483647.0) {
    return kFault;
  }
  double s = Div(76.1800917294715, x + 1);
  s = FiniteOrFault(s - Div(86.5053203294168, x + 2));
  s = FiniteOrFault(s + Div(24.0140982408309, x + 3));
  s = FiniteOrFault(s - Div(1.23173957245016, x + 4));
  s = FiniteOrFault(s + Div(0.00120865097386618, x + 5));
  s = FiniteOrFault(s - Div(5.395239384953E-06, x + 6));
  const double p = Pow(x + 5.5, x + 0.5);
  const double e = std::bit_cast<double>(std::uint64_t{0x4005BF0A8B145774});
  const double value = Div(std::sqrt(6.28318530717958), x) * (s + 1.00000000019001) * p;
  return FiniteOrFault(FiniteOrFault(value) * Pow(e, -(x + 5.5)));
}

double Beta(double x, double y) {
  const double num = FiniteOrFault(FiniteOrFault((x + y) * Gamma(x + 1)) * Gamma(y + 1));
  const double den = FiniteOrFault(FiniteOrFault(x * y) * Gamma(x + y + 1));
  return Div(num, den);
}

float NextRandom(double selector) {
  auto& state = Random();
  if (selector < 0) {
    // Restart from the bits of the selector as a single-precision value.
    const auto bits = std::bit_cast<std::uint32_t>(static_cast<float>(selector));
    state.seed = ((bits & 0xFFFFFFu) + (bits >> 24)) & 0xFFFFFFu;
  }
  if (selector != 0) {
    state.seed = (state.seed * 1140671485u + 12820163u) & 0xFFFFFFu;
  }
  return static_cast<float>(state.seed) / 16777216.0f;
}

double Apply(Fn fn, double x) {
  if (std::isnan(x)) return kFault;
  switch (fn) {
    case Fn::Square: return Pow(x, 2.0);
    case Fn::Cube: return Pow(x, 3.0);
    case Fn::Fourth: return Pow(x, 4.0);
    case Fn::Fifth: return Pow(x, 5.0);
    case Fn::Sqrt: return Sqrt(x);
    case Fn::Nil:
      if (x > 0) return Pow(x, 2.0 / 3.0);
      if (x == 0) return 0.0;
      return Pow(-x, 2.0 / 3.0);
    case Fn::Cbr:
      if (x > 0) return Pow(x, 1.0 / 3.0);
      if (x == 0) return 0.0;
      return -Pow(-x, 1.0 / 3.0);
    case Fn::Cbr2:
      if (x > 0) return Pow(x, -1.0 / 3.0);
      if (x == 0) return 0.0;
      return -Pow(-x, -1.0 / 3.0);
    case Fn::Qvr: return x < 0 ? kFault : Pow(x, 1.0 / 4.0);
    case Fn::Pbr:
      if (x > 0) return Pow(x, 1.0 / 5.0);
      if (x == 0) return 0.0;
      return -Pow(-x, 1.0 / 5.0);
    case Fn::Sin: return FiniteOrFault(std::sin(x));
    case Fn::Cos: return FiniteOrFault(std::cos(x));
    case Fn::Tan: return FiniteOrFault(std::tan(x));
    case Fn::Cot: return Div(1.0, FiniteOrFault(std::tan(x)));
    case Fn::Sec: return Div(1.0, FiniteOrFault(std::cos(x)));
    case Fn::Csc: return Div(1.0, FiniteOrFault(std::sin(x)));
    case Fn::Atn: return std::atan(x);
    case Fn::Asin: return std::atan(Div(x, Sqrt(FiniteOrFault(1 - x * x))));
    case Fn::Acos:
      return FiniteOrFault(std::atan(Div(-x, Sqrt(FiniteOrFault(1 - x * x)))) + 2 * std::atan(1.0));
    case Fn::Acot: return FiniteOrFault(std::atan(x) + 2 * std::atan(1.0));
    case Fn::Exp: return Exp(x);
    case Fn::Ln: return Ln(x);
    case Fn::Log: return Div(Ln(x), std::log(10.0));
    case Fn::Fix: return std::trunc(x);
    case Fn::Int: return std::floor(x);
    case Fn::Sgn: return Sgn(x);
    case Fn::Abs: return std::fabs(x);
    case Fn::Rnd: return static_cast<double>(NextRandom(x));
    case Fn::Asec:
      if (OutsideSentinelDomain(fn, x)) return kSentinel;
      return FiniteOrFault(std::atan(Div(x, Sqrt(FiniteOrFault(x * x - 1)))) + Sgn(x - 1) * HalfPi());
    case Fn::Acsc:
      if (OutsideSentinelDomain(fn, x)) return kSentinel;
      return FiniteOrFault(std::atan(Div(x, Sqrt(FiniteOrFault(x * x - 1)))) + (Sgn(x) - 1) * HalfPi());
    case Fn::HSin:
    case Fn::HCos:
    case Fn::HTan:
    case Fn::HSec:
    case Fn::HCsc:
    case Fn::HCot: return Hyperbolic(fn, x);
    case Fn::HAsin: return Ln(FiniteOrFault(x + Sqrt(FiniteOrFault(x * x + 1))));
    case Fn::HAcos: return Ln(FiniteOrFault(x + Sqrt(FiniteOrFault(x * x - 1))));
    case Fn::HAtan: return Div(Ln(Div(1 + x, 1 - x)), 2.0);
    case Fn::HAsec: return Ln(Div(Sqrt(FiniteOrFault(1 - x * x)) + 1, x));
    case Fn::HAcsc: return Ln(Div(FiniteOrFault(Sgn(x) * Sqrt(FiniteOrFault(x * x + 1)) + 1), x));
    case Fn::HAcot: return Div(Ln(Div(x + 1, x - 1)), 2.0);
    case Fn::Stef: return FiniteOrFault(std::cos(x) * (std::sin(x) * 10));
    case Fn::Four: return Four(x);
    case Fn::Blanc: return Blanc(x);
    case Fn::Gamma:
      if (x < -25 || x > 25) return 0.0;
      return Gamma(x);
    case Fn::Beta:
      if (x < -25 || x > 25) return 0.0;
      return Beta(x, Gamma(x));
    case Fn::Fac: {
      // The argument is first rounded to a 16-bit integer, ties to even.
      const double r = std::nearbyint(x);
      if (r < -32768.0 || r > 32767.0) return kFault;
      return Factorial2(static_cast<int>(r));
    }
    case Fn::Timer: return static_cast<double>(static_cast<float>(ReadClock().secondsSinceMidnight));
    case Fn::Year: return ReadClock().tm.tm_year + 1900;
    case Fn::Month: return ReadClock().tm.tm_mon + 1;
    case Fn::Day: return ReadClock().tm.tm_mday;
    case Fn::Weekday: return ReadClock().tm.tm_wday + 1;
    case Fn::Hour: return ReadClock().tm.tm_hour;
    case Fn::Minute: return ReadClock().tm.tm_min;
    case Fn::Second: return ReadClock().tm.tm_sec;
    case Fn::Pi: return 4 * std::atan(1.0);
    case Fn::Degree: return 4 * std::atan(1.0) / 180;
    case Fn::E: return std::exp(1.0);
    case Fn::Rad: return FiniteOrFault(x * (4 * std::atan(1.0) / 180));
    case Fn::Deg: return FiniteOrFault(x * (180 / (4 * std::atan(1.0))));
  }
  return kFault;
}

}  // namespace velmora::expr
