#include "expr/normalise.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "expr/evaluator.h"
#include "tests/expr/fakegraphwindow.h"
#include "tests/support/evaluatorstate.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::expr {
namespace {

using testing::FakeGraphWindow;
using testing::RecordingMessageBox;

struct Pair {
  std::string find, replace;
  bool operator==(const Pair&) const = default;
};

std::vector<Pair> ToPairs(std::span<const ReplacePair> pairs) {
  std::vector<Pair> out;
  for (const auto& p : pairs) out.push_back({std::string(p.find), std::string(p.replace)});
  return out;
}

std::ostream& operator<<(std::ostream& os, const Pair& p) {
  return os << '"' << p.find << "\"->\"" << p.replace << '"';
}

// ---------------------------------------------------------------------------
// The tables: their size and order.

TEST(ChainTablesTest, SmallChains) {
  EXPECT_EQ(ToPairs(CleanUpPairs()),
            (std::vector<Pair>{{" ", ""}, {"{", "("}, {"}", ")"}, {"[", "("}, {"]", ")"}}));
  EXPECT_EQ(ToPairs(EvaluationFormPairs()), (std::vector<Pair>{{"EXP", "EP"}, {"FIX", "STL"}, {"X", "K"}}));
  EXPECT_EQ(ToPairs(ProveriSynPairs()), (std::vector<Pair>{{"EXP", "E(1)^"},
                                                           {"E^", "E(1)^"},
                                                           {"E*", "E(1)*"},
                                                           {"E+", "E(1)+"},
                                                           {"E/", "E(1)/"},
                                                           {"E-", "E(1)-"},
                                                           {"QVD", "QVT"},
                                                           {"D", "D(1)"},
                                                           {"FIX", "FI"},
                                                           {"PI", "PI(1)"},
                                                           {"X", "(K)"},
                                                           {"K", "(K)"},
                                                           {"K", "1"}}));
  EXPECT_EQ(ToPairs(ZagradePairs()),
            (std::vector<Pair>{{"exp", "ep"}, {"fix", "stl"}, {"k", "x"}, {"x", "(x)"}}));
  EXPECT_EQ(ToPairs(TangentFormPairs()), (std::vector<Pair>{{"qrt", "qr"}, {"k", "K"}, {"(1)", ""}}));
  EXPECT_EQ(ToPairs(ZameniSvePairs()), (std::vector<Pair>{{"K^3", "CubK"},
                                                          {"K^2", "BinK"},
                                                          {"K^(2/3)", "NilK"},
                                                          {"K^(1/3)", "CbrK"},
                                                          {"K^4", "QvdK"},
                                                          {"K^5", "PntK"},
                                                          {"K^4", "QvrK"},
                                                          {"K^(1/5)", "PbrK"}}));
}

// The 108 short-form pairs, built here group by group from their rules, so
// that the table in the code is checked against an independent spelling.
std::vector<Pair> ExpectedShortForms() {
  std::vector<Pair> out = {{"X", "x"}, {"K", "x"}, {"k", "x"}};
  auto names = [&](std::initializer_list<const char*> list) {
    for (const char* n : list) {
      std::string cap = n;
      std::string low = cap;
      for (char& c : low) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      out.push_back({cap + "x", low + "(x)"});
      out.push_back({low + "x", low + "(x)"});
    }
  };
  auto four = [&](std::initializer_list<const char*> finds, const char* replace) {
    for (const char* f : finds) out.push_back({f, replace});
  };
  names({"Nil", "Cub", "Log", "Ln", "Bin", "Sqr"});
  four({"sqrtx", "Sqrtx"}, "sqr(x)");
  names({"Sin", "Gamma", "Cos", "Atn", "Stef", "Exp"});
  four({"Exp", "exp"}, "e^");
  names({"Cbr", "Qvr", "Pbr", "Qvd", "Pnt", "Tan"});
  four({"Cotanx", "cotanx", "cotan(x)", "Cotan(x)"}, "cot(x)");
  names({"Abs", "Arcsin", "Arccos", "Arcsec", "Arccosec"});
  four({"Arccotanx", "arccotanx", "arccotan(x)", "Arccotan(x)"}, "arccot(x)");
  names({"Sec", "Cosec", "HSin", "HCos", "HTan", "HSec", "HCosec"});
  four({"HCotanx", "HCotan(x)", "hcotanx", "hcotan(x)"}, "hcot(x)");
  names({"HArcsin", "HArccos", "HArctan", "HArcsec", "HArccosec"});
  four({"HArccotanx", "harccotanx", "harccotan(x)", "HArccotan(x)"}, "harccot(x)");
  out.insert(out.end(), {{"Pi(1)", "pi"}, {"pi(1)", "pi"}, {"e(1)", "e"}, {"E(1)", "e"}});
  for (const char* n : {"2", "3", "4", "5"})
    out.push_back({std::string("-x^") + n, std::string("-(x^") + n + ")"});
  for (const char* n : {"2", "3", "4", "5"})
    out.push_back({std::string("x^") + n, std::string("(x^") + n + ")"});
  out.insert(out.end(), {{"x", "(x)"}, {"X", "(x)"}, {"((x))", "(x)"}});
  return out;
}

TEST(ChainTablesTest, ShortFormsHold108PairsInOrder) {
  const auto expected = ExpectedShortForms();
  ASSERT_EQ(expected.size(), 108u) << "the expected table itself";
  const auto actual = ToPairs(NormalizeShortFormsPairs());
  ASSERT_EQ(actual.size(), 108u);
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(actual[i], expected[i]) << "pair " << i + 1;
}

// ---------------------------------------------------------------------------
// Each chain on texts, edge cases first.

struct ChainRow {
  std::string (*chain)(std::string_view);
  const char* chainName;
  const char* input;
  const char* output;
  const char* why;
};
void PrintTo(const ChainRow& c, std::ostream* os) { *os << c.chainName << "(" << c.input << ")"; }

class ChainTest : public ::testing::TestWithParam<ChainRow> {};

TEST_P(ChainTest, Rewrites) {
  const auto& c = GetParam();
  EXPECT_EQ(c.chain(c.input), c.output) << c.chainName << "(\"" << c.input << "\"): " << c.why;
}

#define CHAIN(f) f, #f

INSTANTIATE_TEST_SUITE_P(
    EdgeCases, ChainTest,
    ::testing::Values(
        ChainRow{CHAIN(CleanUp), "Exp (X)", "Exp(X)", "spaces deleted"},
        ChainRow{CHAIN(EvaluationForm), "Exp(X)", "EP(K)", "EXP hidden from the X step"},
        ChainRow{CHAIN(EvaluationForm), "fix(x)", "STL(K)", "FIX hidden as STL"},
        ChainRow{CHAIN(ProveriSyn), "fix(x)", "FI(((1)))", "FI, and X becomes ((1))"},
        ChainRow{CHAIN(CleanUp), "{x+1}*[x-1]", "(x+1)*(x-1)", "braces and square brackets"},
        ChainRow{CHAIN(ProveriSyn), "QvdK", "QVT(1)", "QVD hidden from the D step"},
        ChainRow{CHAIN(ProveriSyn), "SinK", "SIN(1)", "a typed K"},
        ChainRow{CHAIN(ProveriSyn), "SinX", "SIN((1))", "a typed X"},
        ChainRow{CHAIN(ProveriSyn), "E^K", "E(1)^(1)", "e as a power"},
        ChainRow{CHAIN(ProveriSyn), "Pi", "PI(1)", "constant"},
        ChainRow{CHAIN(NormalizeShortForms), "SinX", "sin(x)", "the double bracket undone"},
        ChainRow{CHAIN(NormalizeShortForms), "x^2", "((x)^2)", "power bracketed, then the variable"},
        ChainRow{CHAIN(NormalizeShortForms), "-x^2", "-(((x)^2))", "step 14 takes the bracketed power too"},
        ChainRow{CHAIN(NormalizeShortForms), "Pi(1)*x", "pi*(x)", "constant marker dropped"},
        ChainRow{CHAIN(Zagrade), "K^2+exp(K)", "(x)^2+ep((x))", "double bracket left as it falls out"}));

INSTANTIATE_TEST_SUITE_P(
    Steps, ChainTest,
    ::testing::Values(
        ChainRow{CHAIN(CleanUp), "", "", "empty"},
        ChainRow{CHAIN(CleanUp), "sin x", "sinx", "only the clean-up: no case change"},
        ChainRow{CHAIN(EvaluationForm), "sin(x)+k", "SIN(K)+K", "X and K are one variable"},
        ChainRow{CHAIN(EvaluationForm), "exp(fix(x))", "EP(STL(K))", "both names hidden"},
        ChainRow{CHAIN(ProveriSyn), "Exp(K)", "E(1)^((1))", "exp becomes a power of e"},
        ChainRow{CHAIN(ProveriSyn), "E*K", "E(1)*(1)", "e before '*'"},
        ChainRow{CHAIN(ProveriSyn), "E+1", "E(1)+1", "e before '+'"},
        ChainRow{CHAIN(ProveriSyn), "E/2", "E(1)/2", "e before '/'"},
        ChainRow{CHAIN(ProveriSyn), "E-1", "E(1)-1", "e before '-'"},
        ChainRow{CHAIN(ProveriSyn), "K*E", "(1)*E", "a bare e at the end gets no (1)"},
        ChainRow{CHAIN(ProveriSyn), "SIN(E)", "SIN(E)", "nor before ')'"},
        ChainRow{CHAIN(ProveriSyn), "D*K", "D(1)*(1)", "the degree constant"},
        ChainRow{CHAIN(ProveriSyn), "2K", "2(1)", "an implied product stays one"},
        ChainRow{CHAIN(ProveriSyn), "PI*X", "PI(1)*((1))", "both"},
        ChainRow{CHAIN(Zagrade), "{Fix(X)}", "(stl((x)))", "clean-up, lower case, stl"},
        ChainRow{CHAIN(Zagrade), "SIN K", "sin(x)", "the variable bracketed"},
        ChainRow{CHAIN(NormalizeShortForms), "Sqrtx", "sqr(x)", "sqrt spelled sqr"},
        ChainRow{CHAIN(NormalizeShortForms), "Cotan(x)", "cot(x)", "cotangent"},
        ChainRow{CHAIN(NormalizeShortForms), "harccotanx", "harccot(x)", "inverse hyperbolic cotangent"},
        ChainRow{CHAIN(NormalizeShortForms), "HArccotanK", "HArccot(x)",
                 "order carries the meaning: tanx (step 4) and cotan(x) (step 5) fire first"},
        ChainRow{CHAIN(NormalizeShortForms), "Expx", "e^(x)", "exp(x) becomes a power of e"},
        ChainRow{CHAIN(NormalizeShortForms), "e(1)^x", "e^(x)", "constant e"},
        ChainRow{CHAIN(NormalizeShortForms), "Fooy", "Fooy", "nothing to do"},
        ChainRow{CHAIN(NormalizeShortForms), "QvdK", "qvd(x)", "fourth power"},
        ChainRow{CHAIN(TangentForm), "sqrt(K)*pi(1)", "sqr(K)*pi", "the three tangent pairs"},
        ChainRow{CHAIN(TangentForm), "k", "K", "k to K"},
        ChainRow{CHAIN(ZameniSve), "K^4", "QvdK", "the fifth pair takes K^4; the seventh never fires"},
        ChainRow{CHAIN(ZameniSve), "K^(1/4)", "K^(1/4)", "no pair for K^(1/4)"},
        ChainRow{CHAIN(ZameniSve), "K^3+K^2", "CubK+BinK", "cube and square"},
        ChainRow{CHAIN(ZameniSve), "K^(2/3)-K^(1/3)", "NilK-CbrK", "roots"},
        ChainRow{CHAIN(ZameniSve), "K^5*K^(1/5)", "PntK*PbrK", "fifth power and root"},
        ChainRow{CHAIN(ZameniSve), "k^2", "k^2", "case-sensitive"},
        ChainRow{CHAIN(ToolTextForm), "Exp(X) + {k}", "ep((x))+((x))", "the tool windows' form"},
        ChainRow{CHAIN(ToolTextForm), "[FIX(x)]", "(stl((x)))", "fix hidden as stl"}));

TEST(ApplyChainTest, SinglePassAndCase) {
  const ReplacePair pairs[] = {{"a", "aa"}, {"B", "b"}};
  // One pass per pair: a replacement that contains its find does not loop.
  EXPECT_EQ(ApplyChain("ab", pairs, ChainCase::Upper), "Ab");
  EXPECT_EQ(ApplyChain("ab", pairs, ChainCase::Lower), "aab");
  EXPECT_EQ(ApplyChain("aB", pairs, ChainCase::AsIs), "aab");
  const ReplacePair empty[] = {{"", "x"}};
  EXPECT_EQ(ApplyChain("ab", empty, ChainCase::AsIs), "ab") << "an empty find leaves the text";
}

// ---------------------------------------------------------------------------
// Value substitution

TEST(SubstituteValueTest, BracketedNumberInPlaceOfK) {
  struct Row {
    const char* form;
    double value;
    const char* text;
  };
  const Row rows[] = {
      {"SINK", 1.25, "SIN(1.25)"},     // the short form becomes a call
      {"CBRK", 1.25, "CBR(1.25)"},     //
      {"K^2", 1.25, "(1.25)^2"},       //
      {"2K", 1.25, "2(1.25)"},         // the evaluator rejects it
      {"K-K", -0.5, "(-0.5)-(-0.5)"},  // a negative value stays one operand
      {"K", 1e-5, "(1E-05)"},          // exponent form from the number's text
      {"K", 1.0 / 3, "(0.333333333333333)"},
      {"SIN(1)", 2, "SIN(1)"},  // no K
  };
  for (const auto& r : rows) EXPECT_EQ(SubstituteValue(r.form, r.value), r.text) << r.form;
}

TEST(SubstituteValueTest, TheEvaluatorReadsTheResult) {
  struct Row {
    const char* typed;
    double value;
    int error;
    double result;
  };
  const Row rows[] = {
      {"SinX", 0.5, 0, std::sin(0.5)},  //
      {"CbrK", -8, 0, -2},              // a negative value in brackets
      {"X^2", -3, 0, 9},                //
      {"2X", 1.25, 2, 0},               // implied product
      {"X*X", 1e-5, 2, 0},              // 1E-05 is no number here: cut at '-', "1E" lacks an operand
  };
  for (const auto& r : rows) {
    FakeGraphWindow window;
    Evaluator ev(nullptr, &window);
    const double v = ev.Evaluate(SubstituteValue(EvaluationForm(CleanUp(r.typed)), r.value), true);
    EXPECT_EQ(ev.Error(), r.error) << r.typed;
    EXPECT_NEAR(v, r.result, 1e-12) << r.typed;
  }
}

// ---------------------------------------------------------------------------
// The syntax trial: clean-up, ProveriSyn, loud evaluation.

TEST(TrialTest, Messages) {
  struct Row {
    const char* typed;
    const char* message;  // "" for none
  };
  const Row rows[] = {
      {"QvdK", ""},                 // QVT(1) evaluates to 1
      {"SinX + Exp(K)", ""},        //
      {"K*E", "Check syntax!"},     // a bare e at the end
      {"SIN(E)", "Check syntax!"},  // or before ")"
      {"2X", "Check syntax!"},      // implied product
      {"{X+1", "Check bracket placement!"},
      {"1.2.3*X", "Check decimal separator placement!"},
      {"1E5*X", "Check symbols placement!"},
      {"LN(X-1)", ""},  // 16 at the trial point is no syntax error
  };
  for (const auto& r : rows) {
    RecordingMessageBox box;
    FakeGraphWindow window;
    Evaluator ev(&box, &window);
    ev.Evaluate(ProveriSyn(CleanUp(r.typed)), false);
    if (std::string(r.message).empty()) {
      EXPECT_TRUE(box.Boxes().empty()) << r.typed << ": " << (box.Boxes().empty() ? "" : box.Boxes()[0].text);
      EXPECT_EQ(ev.Error(), 0) << r.typed;
    } else {
      ASSERT_EQ(box.Boxes().size(), 1u) << r.typed;
      EXPECT_EQ(box.Boxes()[0].text, r.message) << r.typed;
      EXPECT_NE(ev.Error(), 0) << r.typed;
    }
  }
}

}  // namespace
}  // namespace velmora::expr
