#include "expr/formulacompiler.h"

#include <gtest/gtest.h>

#include <string>

#include "expr/functionlibrary.h"

namespace velmora::expr {
namespace {

// The program as a postfix listing: literal slots as #0, #1..., constants as
// their value's name, the variable as x, calls by the function's first name.
std::string NameOf(Fn fn) {
  for (const auto& entry : EvaluatorFunctionNames()) {
    if (entry.fn == fn) return std::string(entry.name);
  }
  if (fn == Fn::Rad) return "RAD";
  if (fn == Fn::Deg) return "DEG";
  return "?";
}

std::string Listing(const Program& p) {
  std::string out;
  for (const Instruction& in : p.code) {
    if (!out.empty()) out += ' ';
    switch (in.op) {
      case OpCode::Literal: out += "#" + std::to_string(in.index); break;
      case OpCode::Constant: out += NameOf(in.fn); break;
      case OpCode::Variable: out += "x"; break;
      case OpCode::Negate: out += "neg"; break;
      case OpCode::Add: out += "+"; break;
      case OpCode::Subtract: out += "-"; break;
      case OpCode::Multiply: out += "*"; break;
      case OpCode::Divide: out += "/"; break;
      case OpCode::Power: out += "^"; break;
      case OpCode::Call: out += NameOf(in.fn) + "()"; break;
    }
  }
  return out;
}

struct CompileCase {
  const char* text;
  const char* listing;  // nullptr: the text does not compile
  const char* why;
};

class CompileTest : public ::testing::TestWithParam<CompileCase> {};

TEST_P(CompileTest, Listing) {
  const auto& c = GetParam();
  const auto program = CompileFormula(c.text);
  if (c.listing == nullptr) {
    EXPECT_FALSE(program.has_value()) << c.text << ": " << c.why << "; got " << Listing(*program);
    return;
  }
  ASSERT_TRUE(program.has_value()) << c.text << ": " << c.why;
  EXPECT_EQ(Listing(*program), c.listing) << c.text << ": " << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Precedence, CompileTest,
    ::testing::Values(CompileCase{"1+2*3", "#0 #1 #2 * +", "product before sum"},
                      CompileCase{"1-2-3", "#0 #1 - #2 -", "sums from the left"},
                      CompileCase{"8/4/2", "#0 #1 / #2 /", "quotients from the left"},
                      CompileCase{"2*3^2", "#0 #1 #2 ^ *", "power before product"},
                      CompileCase{"-2^2", "#0 #1 ^ neg", "the sign applies to the finished power"},
                      CompileCase{"(-2)^2", "#0 neg #1 ^", "a bracketed sign is the base"},
                      CompileCase{"2^3^2", "#0 #1 #2 ^ ^", "chained powers group from the right"},
                      CompileCase{"2^-3", "#0 #1 neg ^", "a sign after ^"},
                      CompileCase{"2^-3^2", "#0 #1 #2 ^ neg ^", "the exponent's sign waits for its power"},
                      CompileCase{"2^-3*4", "#0 #1 neg ^ #2 *", "a product ends the signed exponent"},
                      CompileCase{"2*-3", "#0 #1 neg *", "a sign after *"},
                      CompileCase{"1--2", "#0 #1 neg -", "a sign after -"},
                      CompileCase{"--2", "#0 neg neg", "signs in a row"},
                      CompileCase{"+2", "#0", "a plus sign changes nothing"},
                      CompileCase{"-2*3", "#0 neg #1 *", "a leading sign before a product"},
                      CompileCase{"-2+3", "#0 neg #1 +", "a leading sign before a sum"},
                      CompileCase{"((((1))))", "#0", "brackets leave no trace"}));

INSTANTIATE_TEST_SUITE_P(
    Names, CompileTest,
    ::testing::Values(
        CompileCase{"SIN((1.25))", "#0 SIN()", "evaluation spelling"},
        CompileCase{"sin(x)", "x SIN()", "body spelling"},
        CompileCase{"Sin(1)", "#0 SIN()", "any letter case"},
        CompileCase{"EP((-0.5))^2", "#0 neg EXP() #1 ^", "EP is exp"},
        CompileCase{"STL((3.7))", "#0 FIX()", "STL is fix"},
        CompileCase{"PI(1)*(2)", "#0 PI() #1 *", "a constant with its dummy argument"},
        CompileCase{"E(1)^((1))", "#0 E() #1 ^", "e with its dummy argument"},
        CompileCase{"pi*(x)", "PI x *", "bare pi"}, CompileCase{"e^(x)", "E x ^", "bare e"},
        CompileCase{"D*180", "D #0 *", "bare D"}, CompileCase{"sqr(x)", "x SQRT()", "square root"},
        CompileCase{"SINK", "x SIN()", "short form in K"}, CompileCase{"sinx", "x SIN()", "short form in x"},
        CompileCase{"CbrX", "x CBR()", "short form of a program function"},
        CompileCase{"FIX", "x FIX()", "FIX bare is FI (fix) of X"},
        CompileCase{"K", "x", "the variable as K"}, CompileCase{"(x)^2", "x #0 ^", "bracketed variable"},
        CompileCase{"Rad(180)", "#0 RAD()", "engine-only name"},
        CompileCase{"CBR2(8)", "#0 CBR2()", "name with a digit"},
        CompileCase{"SIN (1)", "#0 SIN()", "blank before the bracket"}));

INSTANTIATE_TEST_SUITE_P(
    Rejected, CompileTest,
    ::testing::Values(
        CompileCase{"", nullptr, "empty text"}, CompileCase{"   ", nullptr, "blanks only"},
        CompileCase{"2(3)", nullptr, "implied product"},
        CompileCase{"(1)(2)", nullptr, "implied product of brackets"},
        CompileCase{"2X", nullptr, "number joined to the variable"},
        CompileCase{"SIN()", nullptr, "empty argument"}, CompileCase{"()", nullptr, "empty bracket"},
        CompileCase{"SIN", nullptr, "a function without a bracket"},
        CompileCase{"FOO(1)", nullptr, "unknown name"}, CompileCase{"SINY", nullptr, "unknown short form"},
        CompileCase{"(1+2", nullptr, "unclosed bracket"},
        CompileCase{"1+2)", nullptr, "stray closing bracket"}, CompileCase{"1+", nullptr, "missing operand"},
        CompileCase{"*2", nullptr, "leading *"}, CompileCase{"2**3", nullptr, "two operators"},
        CompileCase{"2^^3", nullptr, "two carets"}, CompileCase{"1,5", nullptr, "comma"},
        CompileCase{"1.2.3", nullptr, "second point"}, CompileCase{"SIN X", nullptr, "two names"},
        CompileCase{"1 2", nullptr, "two numbers"}, CompileCase{"-", nullptr, "a sign alone"},
        CompileCase{"(-)", nullptr, "a sign in a bracket"}, CompileCase{"\x01", nullptr, "control byte"},
        CompileCase{"SINX(1)", nullptr, "short form with a bracket"}));

TEST(CompileTest, LiteralsAreCollectedInOrder) {
  const auto p = CompileFormula("(2.5)^2-1/(1-(2.5))+1E-05");
  ASSERT_TRUE(p.has_value());
  EXPECT_EQ(p->literals, (std::vector<double>{2.5, 2, 1, 1, 2.5, 1e-5}));
  EXPECT_EQ(p->literalCount, 6u);
  EXPECT_FALSE(p->usesVariable);
}

TEST(CompileTest, DepthAndVariableFlag) {
  struct Row {
    const char* text;
    std::size_t depth;
    bool variable;
  };
  const Row rows[] = {
      {"1", 1, false},            // one value
      {"1+2", 2, false},          // two on the stack at once
      {"1+(2+(3+4))", 4, false},  // right-nested sums stack up
      {"((1+2)+3)+4", 2, false},  // left-nested sums do not
      {"sin(x)*x", 2, true},      // the variable counts
  };
  for (const Row& r : rows) {
    const auto p = CompileFormula(r.text);
    ASSERT_TRUE(p.has_value()) << r.text;
    EXPECT_EQ(p->maxDepth, r.depth) << r.text;
    EXPECT_EQ(p->usesVariable, r.variable) << r.text;
  }
}

TEST(CompileTest, TenThousandBracketsCompileWithoutRecursion) {
  const std::string deep = std::string(10000, '(') + "1" + std::string(10000, ')');
  const auto p = CompileFormula(deep);
  ASSERT_TRUE(p.has_value());
  EXPECT_EQ(Listing(*p), "#0");
  std::string calls;
  for (int i = 0; i < 10000; ++i) calls += "SIN(";
  calls += "1" + std::string(10000, ')');
  const auto q = CompileFormula(calls);
  ASSERT_TRUE(q.has_value());
  EXPECT_EQ(q->code.size(), 10001u);
  std::string sums;
  for (int i = 0; i < 10000; ++i) sums += "1+(";
  sums += "1" + std::string(10000, ')');
  const auto r = CompileFormula(sums);
  ASSERT_TRUE(r.has_value());
  EXPECT_EQ(r->maxDepth, 10001u);
  EXPECT_FALSE(CompileFormula(std::string(10000, '(') + "1").has_value());
}

}  // namespace
}  // namespace velmora::expr
