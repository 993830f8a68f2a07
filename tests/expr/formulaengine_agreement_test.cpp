// The cache must not change a single result: formulas of the plot's road and
// random formulas are set on an engine that caches shapes and on one that
// compiles every text afresh, and the values must be the same bit for bit.
// Also the inputs that break expression engines: deep nesting, huge lines,
// stray bytes.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "expr/formulaengine.h"
#include "expr/numtext.h"
#include "expr/replacetext.h"

namespace velmora::expr {
namespace {

bool SameBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

// The graph window's evaluation form of a typed function text: upper case,
// then EXP to EP, FIX to STL, X to K.
std::string EvaluationForm(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  ReplaceAllInPlace(text, "EXP", "EP");
  ReplaceAllInPlace(text, "FIX", "STL");
  ReplaceAllInPlace(text, "X", "K");
  return text;
}

// Typed texts of the example catalogue, Cartesian, parametric and polar.
const char* const kCatalogue[] = {"(X^2)-1/(1-X)+1/X",
                                  "(X-2)*(X-4)/X^2",
                                  "X + 2/X",
                                  "2*X-3/X",
                                  "X^(1/(1-X))",
                                  "X/2+SinX",
                                  "X^(1/X)",
                                  "LnX-X/(1-X^2)",
                                  "LnX/SqrX",
                                  "X/(LnX)",
                                  "2*AbsX-X^2",
                                  "SinX+(Sin(2*X))/X",
                                  "SinX*Sin(2*X)",
                                  "2*Sin(2*X)-Sin(4*X)",
                                  "2*Cos(X/2)*3*Cos(X/3)",
                                  "(SinX)^3-(CosX)^3",
                                  "CosX-(CosX)^2",
                                  "1/(SinX+CosX)",
                                  "SinX/(Sin(X+Pi/4))",
                                  "Atn(LnX)",
                                  "X+2*AtnX",
                                  "Asin(Ln(X^2+1))",
                                  "Ln(HSinX)",
                                  "X*(LnX)^2",
                                  "HAcos(X+1/X)",
                                  "Sqr(1-BinX)",
                                  "8/(X*Sqr(BinX-4))",
                                  "X/Cbr(4-BinX)",
                                  "Cbr(Bin(X+4))-Cbr(Qvd(X-4))",
                                  "CubX-BinX+NilX+ExpX",
                                  "BinX-NilX+CbrX",
                                  "X*Bin(X-1)*Cub(X-2)",
                                  "Nil(X)-Cbr(X)",
                                  "Asin(1-NilX)",
                                  "SqrX-Sqr(4-X)",
                                  "(QvdX+3)/X",
                                  "(3+(BinX)/3)*Exp(X/3)",
                                  "(1/3)*X^2-(2/3)*X-1",
                                  "X^2-X/(1-X)",
                                  "X/2+2+X/(X-2)",
                                  "(X^3 - 2)/(2*X)",
                                  "-1/(X+2)+X^(-1/3)",
                                  "X^(-2/3)+X/(1-X)",
                                  "X^2-X^3+X-1",
                                  "X^(2/5)+X^(2/3)+1/(2+X)",
                                  "1/(X-1)+X^(2/3)",
                                  "X^2-1/(1-X^2)",
                                  "(X^2)-X/(2-X)",
                                  "X+1/(1+X^2)",
                                  "X^2/(1-X^2)",
                                  "X^2/(1-X)",
                                  "X^3+X^(-3/5)",
                                  "X^3+X^(-3/5)+1/(X-2)",
                                  "1/(X^2-(2/X))+X^(2/3)",
                                  "X^2-2/(X-1)",
                                  "e*X-X^3",
                                  "e^(SinX)",
                                  "e^X/X",
                                  "Exp(X) -X^(2/3)",
                                  "Exp(X-3)-1/(1-(X^2))",
                                  "Exp(8*X-X^2-14)",
                                  "Exp(AtnX)",
                                  "(2+X^2)*Exp(-(X^2))",
                                  "X*e^(-X)",
                                  "(2+X^2)*e^(-X^2)",
                                  "Ln(e+1/X)",
                                  "Ln(X^2-1)+1/(X^2-1)",
                                  "Ln(1-Exp(-X))",
                                  "(BinX/2)*Ln(X/3)",
                                  "Ln((Sqr(X^2+1)-1)/X)",
                                  "AsinX/(SqrT(1-BinX))",
                                  "Blanc(x)",
                                  "X-X^3/Fac(3)+X^5/Fac(5)-X^7/Fac(7)",
                                  "15/Sqrt(4+(1.5*X-12/X)^2)",
                                  "(3/7)^1.5*Exp(-(X^2)/7)*3*X^2*pi",
                                  "2*Exp(-X/4)*Cos(3*X)",
                                  "Gamma(x)",
                                  "4*(SinK)^3",
                                  "HArctanK",
                                  "1/2*StefK",
                                  "(K-SinK)",
                                  "3*cosK+3",
                                  "4*CubK/(1+BinK)",
                                  "2/3*K*(3-K^2)",
                                  "K*K",
                                  "10^(cosK)-5",
                                  "0.1*stef(K)+5",
                                  "CbrK*stefK",
                                  "cotanK*K",
                                  "3*sinK^3",
                                  "2*K^4-(4*K^2)+1/2",
                                  "K*TanK",
                                  "CotK",
                                  "Sqr(BinK*(3+K)/(3-K))",
                                  "-Sqr(BinK*(3+K)/(3-K))",
                                  "2*(-SinK)+2*(-Sin(2*K))",
                                  "1/(1+K^2)",
                                  "Atn(2*K)",
                                  "Exp(CosK)",
                                  "Tan(5*K)",
                                  "2*2^(K/(2*pi))",
                                  "3*Cos(2*K)/cosK",
                                  "2*(4*Cos(K)-1/Cos(K))",
                                  "-K^(1/3)*5*SinK*CosK",
                                  "StefK*StefK-10",
                                  "4/(2-CosK)",
                                  "1/(5*Cos(K)^2-pi)",
                                  "Fix(X)+Int(X)*Sgn(X)"};

TEST(EngineAgreementTest, CataloguePlotsCachedEqualsFresh) {
  FormulaEngine cached;
  FormulaEngine fresh(false);
  int samples = 0;
  int faults = 0;
  for (const char* typed : kCatalogue) {
    const std::string form = EvaluationForm(typed);
    // The 801 samples of an 800-pixel plot at Zoom 40, K cut to three decimals.
    for (int i = 0; i <= 800; ++i) {
      const double k = -10.0 + i / 40.0;
      const double kr = std::floor(k * 1000) / 1000;
      const std::string text = ReplaceText(form, "K", "(" + NumberToText(kr) + ")");
      cached.SetFormula(text);
      fresh.SetFormula(text);
      ASSERT_EQ(cached.Faulted(), fresh.Faulted()) << text;
      ASSERT_TRUE(SameBits(cached.Result(), fresh.Result())) << text;
      faults += cached.Faulted() ? 1 : 0;
      ++samples;
      cached.SetFormula("PopAll()");
      fresh.SetFormula("PopAll()");
    }
  }
  EXPECT_EQ(samples, 801 * static_cast<int>(std::size(kCatalogue)));
  EXPECT_GT(faults, 0);            // domains and poles are met
  EXPECT_LT(faults, samples / 2);  // but most samples have a value
  EXPECT_GT(cached.CachedShapes(), 0u);
  EXPECT_EQ(fresh.CachedShapes(), 0u);
}

// Random formulas over the whole grammar. The structure and the numbers come
// from two generators, so one structure can be filled with other numbers:
// the same shape with other values.
class RandomFormula {
 public:
  explicit RandomFormula(std::uint32_t structureSeed, std::uint32_t numberSeed)
      : shape_(structureSeed), numbers_(numberSeed) {}

  std::string Make(int depth) {
    switch (Pick(depth > 0 ? 9 : 3)) {
      case 0: return Number();
      case 1: return "(" + Number() + ")";
      case 2: return Pick(2) == 0 ? "PI" : "E(1)";
      case 3: return "(" + Make(depth - 1) + ")";
      case 4: return Function() + "(" + Make(depth - 1) + ")";
      case 5: return "-" + Make(depth - 1);
      case 6:
      case 7:
      case 8: {
        static const char* const kOps[] = {"+", "-", "*", "/", "^", "*-", "^-"};
        return Make(depth - 1) + kOps[Pick(7)] + Make(depth - 1);
      }
    }
    return "1";
  }

 private:
  int Pick(int n) { return static_cast<int>(shape_() % static_cast<std::uint32_t>(n)); }

  std::string Function() {
    static const char* const kNames[] = {
        "SIN", "cos",  "Tan",   "EP",  "LN",  "SQR",  "ABS",  "STL",  "INT",  "NIL",  "CBR",   "QVR",  "PBR",
        "BIN", "CUB",  "QVD",   "PNT", "ATN", "ASIN", "ACOS", "HSIN", "HCOS", "HTAN", "HACOS", "ASEC", "ACSC",
        "LOG", "STEF", "GAMMA", "FAC", "SGN", "COT",  "SEC",  "CSC",  "BETA", "CBR2", "HACOT", "BLANC"};
    return kNames[Pick(static_cast<int>(std::size(kNames)))];
  }

  std::string Number() {
    // The kind of literal belongs to the shape (an exponent changes nothing
    // of it, but the digits do not either); the value comes from the other
    // generator.
    const int kind = Pick(4);
    std::uniform_real_distribution<double> any(-50, 50);
    const double v = std::fabs(any(numbers_));
    switch (kind) {
      case 0: return std::to_string(static_cast<int>(v));
      case 1: return NumberToText(v);
      case 2: return NumberToText(v * 1e-7);
      default: return NumberToText(v * 1e17);
    }
  }

  std::mt19937 shape_;
  std::mt19937 numbers_;
};

TEST(EngineAgreementTest, RandomFormulasCachedEqualsFresh) {
  FormulaEngine cached;
  FormulaEngine fresh(false);
  int values = 0;
  for (std::uint32_t structure = 1; structure <= 3000; ++structure) {
    for (std::uint32_t numbers = 1; numbers <= 4; ++numbers) {
      RandomFormula gen(structure, numbers * 7919);
      const std::string text = gen.Make(4);
      cached.SetFormula(text);
      fresh.SetFormula(text);
      ASSERT_EQ(cached.Faulted(), fresh.Faulted()) << text;
      ASSERT_TRUE(SameBits(cached.Result(), fresh.Result())) << text;
      values += cached.Faulted() ? 0 : 1;
    }
  }
  EXPECT_GT(values, 3000);                 // the generator makes many formulas with a value
  EXPECT_LE(cached.CachedShapes(), 512u);  // 3000 shapes went through a bounded cache
}

TEST(EngineAgreementTest, CommandBodiesCachedEqualsFresh) {
  FormulaEngine cached;
  FormulaEngine fresh(false);
  const char* const bodies[] = {"sin(x)",   "(x)^2",    "pi*(x)",           "e^(x)",
                                "sqr(x)",   "SINK+K^3", "ep((x))*stl((x))", "nil(x)-cbr(x)",
                                "1/(x-0.3)"};
  for (const char* body : bodies) {
    for (int i = 0; i < 40; ++i) {
      const std::string point = NumberToText(-2 + i * 0.1);
      for (const std::string& line :
           {std::string("Push(2000)"), "Push(" + point + ")", "diff(" + std::string(body) + ")",
            std::string("PopAll()"), std::string("Push(64)"), "Push(" + point + ")", std::string("Push(3)"),
            "Intg(" + std::string(body) + ")", "Trap(" + std::string(body) + ")", std::string("PopAll()")}) {
        cached.SetFormula(line);
        fresh.SetFormula(line);
        ASSERT_EQ(cached.Faulted(), fresh.Faulted()) << line;
        ASSERT_TRUE(SameBits(cached.Result(), fresh.Result())) << line;
      }
    }
  }
}

// ---------------------------------------------------------------- robustness

struct DeepCase {
  std::string text;
  bool faults;
  double value;
  const char* why;
};

TEST(EngineRobustnessTest, DeepNestingAndHugeLines) {
  std::string nestedCalls;
  for (int i = 0; i < 10000; ++i) nestedCalls += "ABS(";
  nestedCalls += "-2" + std::string(10000, ')');
  std::string rightSums;
  for (int i = 0; i < 10000; ++i) rightSums += "1+(";
  rightSums += "1" + std::string(10000, ')');
  std::string millionOnes;
  for (int i = 0; i < 500000; ++i) millionOnes += "1+";
  millionOnes += "1";
  const DeepCase rows[] = {
      {std::string(10000, '(') + "1" + std::string(10000, ')'), false, 1, "10,000 brackets"},
      {nestedCalls, false, 2, "10,000 nested calls"},
      {rightSums, false, 10001, "10,000 nested sums: a deep machine stack"},
      {std::string(10000, '(') + "1", true, 0, "10,000 unclosed brackets"},
      {"1" + std::string(10000, ')'), true, 0, "10,000 stray brackets"},
      {millionOnes, false, 500001, "a million characters"},
      {std::string(1000000, '('), true, 0, "a million brackets"},
      {std::string(1000000, '9'), true, 0, "a literal of a million digits overflows"},
      {"0." + std::string(1000000, '0') + "1", false, 0, "a literal far below the range reads as 0"},
      {std::string(1000000, '-') + "1", false, 1, "a million signs"},
      {std::string(1000000, ' '), true, 0, "a million blanks"},
  };
  FormulaEngine engine;
  for (const DeepCase& r : rows) {
    engine.SetFormula(r.text);
    EXPECT_EQ(engine.Faulted(), r.faults) << r.why;
    if (!r.faults) {
      EXPECT_EQ(engine.Result(), r.value) << r.why;
    }
  }
}

TEST(EngineRobustnessTest, EveryByteAlone) {
  FormulaEngine engine;
  for (int b = 0; b < 256; ++b) {
    const char c = static_cast<char>(b);
    engine.SetFormula(std::string_view(&c, 1));
    // A digit is a number, and D and E (any case) are the bare constants.
    const bool digit = c >= '0' && c <= '9';
    const bool constant = c == 'D' || c == 'd' || c == 'E' || c == 'e';
    EXPECT_EQ(engine.Faulted(), !digit && !constant) << b;
    if (digit) {
      EXPECT_EQ(engine.Result(), c - '0');
    }
    if (constant) {
      EXPECT_EQ(engine.Result(), (c == 'D' || c == 'd') ? std::atan(1.0) * 4 / 180 : std::exp(1.0));
    }
    const std::string around = std::string("1") + c + "2";
    engine.SetFormula(around);
    EXPECT_EQ(std::isnan(engine.Result()), engine.Faulted()) << b;
  }
}

TEST(EngineRobustnessTest, RandomBytesFaultOrGiveAValue) {
  std::mt19937 rng(12345);
  FormulaEngine cached;
  FormulaEngine fresh(false);
  const char alphabet[] = "0123456789.+-*/^()EexXkKSINCOPpi \x01\xC2\xB2\xFF#,";
  for (int i = 0; i < 20000; ++i) {
    std::string text(rng() % 40, ' ');
    for (char& c : text) c = alphabet[rng() % (sizeof alphabet - 1)];
    cached.SetFormula(text);
    fresh.SetFormula(text);
    ASSERT_EQ(cached.Faulted(), fresh.Faulted()) << text;
    ASSERT_TRUE(SameBits(cached.Result(), fresh.Result())) << text;
    ASSERT_EQ(std::isnan(cached.Result()), cached.Faulted()) << text;
    if (!cached.Faulted()) {
      ASSERT_TRUE(std::isfinite(cached.Result())) << text;
    }
  }
  EXPECT_LE(cached.CachedShapes(), 512u);
}

}  // namespace
}  // namespace velmora::expr
