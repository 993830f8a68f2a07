#include "complex/complexcalculator.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/recordingmessagebox.h"

namespace velmora::complex {
namespace {

using platform::MsgIcon;

struct Box {
  std::string text;
  std::string title;
  MsgIcon icon;
};

void ExpectBoxes(const testing::RecordingMessageBox& box, const std::vector<Box>& expected) {
  ASSERT_EQ(box.Boxes().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(box.Boxes()[i].text, expected[i].text) << i;
    EXPECT_EQ(box.Boxes()[i].title, expected[i].title) << i;
    EXPECT_EQ(box.Boxes()[i].icon, expected[i].icon) << i;
    EXPECT_EQ(box.Boxes()[i].buttons, platform::MsgButtons::Ok) << i;
  }
}

const Box kInvalid{"Invalid input.", "Velmora", MsgIcon::Critical};

class CalculatorFixture {
 protected:
  testing::RecordingMessageBox box;
  ComplexCalculator calc{box};
  ComplexFields& f = calc.Fields();

  void Operands(const char* z1, const char* z2) {
    f.lblZ1 = z1;
    f.lblZ2 = z2;
  }
  // A first result to tell stale fields from fresh ones: 4 + 6i.
  void EarlierResult() {
    Operands("3+j4", "1+j2");
    ASSERT_TRUE(calc.Run(Operation::Add));
    f.frm2text.clear();
    box.Clear();
  }
  void ExpectResult(const char* re, const char* im, const char* line) {
    EXPECT_EQ(f.TextResultReal, re);
    EXPECT_EQ(f.TextResultImaginary, im);
    EXPECT_EQ(f.LabelRezultat, line);
  }
};

// ---------------------------------------------------------------- direct road

struct DirectCase {
  const char* name;
  Operation operation;
  const char* z1;
  const char* z2;
  const char* re;    // TextResultReal
  const char* im;    // TextResultImaginary
  const char* line;  // LabelRezultat
  const char* word;  // lblSta
  const char* log;   // the block appended to frm2text
};

void PrintTo(const DirectCase& c, std::ostream* os) { *os << c.name; }

class DirectRoadTest : public CalculatorFixture, public ::testing::TestWithParam<DirectCase> {};

TEST_P(DirectRoadTest, ResultWordAndLog) {
  const auto& c = GetParam();
  Operands(c.z1, c.z2);
  f.frm2textOpen = true;
  EXPECT_TRUE(calc.Run(c.operation));
  ExpectResult(c.re, c.im, c.line);
  EXPECT_EQ(f.lblSta, c.word);
  EXPECT_EQ(f.frm2text, c.log);
  EXPECT_TRUE(box.Boxes().empty());
  // The labels keep their texts; the parts are those of the parse.
  EXPECT_EQ(f.lblZ1, c.z1);
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, DirectRoadTest,
    ::testing::Values(
        // (3 + 4i) + (1 + 2i) = 4 + 6i.
        DirectCase{"Add", Operation::Add, "3+j4", "1+j2", "4", "6", "4+j6", "z1+z2",
                   "(3+j4 + 1+j2)\r\n= 4+j6\r\n"},
        // (3 + 4i) - (1 - 2i) = 2 + 6i.
        DirectCase{"Subtract", Operation::Subtract, "3+j4", "1+j-2", "2", "6", "2+j6", "z1-z2",
                   "(3+j4 - 1+j-2)\r\n= 2+j6\r\n"},
        // 3 - 8 + i(6 + 4) = -5 + 10i.
        DirectCase{"Multiply", Operation::Multiply, "3+j4", "1+j2", "-5", "10", "-5+j10", "z1*z2",
                   "(3+j4 * 1+j2)\r\n= -5+j10\r\n"},
        // (11 - 2i) / 5 = 2.2 - 0.4i.
        DirectCase{"Divide", Operation::Divide, "3+j4", "1+j2", "2.2", "-0.4", "2.2+j-0.4", "z1/z2",
                   "(3+j4 / 1+j2)\r\n= 2.2+j-0.4\r\n"},
        // (3 - 4i) / 25.
        DirectCase{"Inverse", Operation::Inverse, "3+j4", "0+i0", "0.12", "-0.16", "0.12+j-0.16", "1/x",
                   "(1/x(3+j4))\r\n= 0.12+j-0.16\r\n"},
        // e^(2 * .693147) = e^1.386294 = 3.9999986 -> 3.999999.
        DirectCase{"Power", Operation::Power, "2+j0", "2+j0", "3.999999", "0", "3.999999+j0", "z1^z2",
                   "(2+j0 ^ 2+j0)\r\n= 3.999999+j0\r\n"},
        // e (cos 1 + i sin 1).
        DirectCase{"Exp", Operation::Exp, "1+j1", "0+i0", "1.468694", "2.287355", "1.468694+j2.287355", "e^",
                   "(e^(1+j1))\r\n= 1.468694+j2.287355\r\n"},
        // ln 5 = 1.609438, atn(4/3) = 0.927295.
        DirectCase{"Ln", Operation::Ln, "3+j4", "0+i0", "1.609438", "0.927295", "1.609438+j0.927295", "Ln",
                   "(Ln(3+j4))\r\n= 1.609438+j0.927295\r\n"},
        DirectCase{"Sin", Operation::Sin, "1+j1", "0+i0", "1.298458", "0.634964", "1.298458+j0.634964", "Sin",
                   "(Sin(1+j1))\r\n= 1.298458+j0.634964\r\n"},
        DirectCase{"Cos", Operation::Cos, "1+j1", "0+i0", "0.83373", "-0.988898", "0.83373+j-0.988898", "Cos",
                   "(Cos(1+j1))\r\n= 0.83373+j-0.988898\r\n"},
        // .454648 / .291926 = 1.557407.
        DirectCase{"Tan", Operation::Tan, "1+j0", "0+i0", "1.557407", "0", "1.557407+j0", "Tan",
                   "(Tan(1+j0))\r\n= 1.557407+j0\r\n"},
        // (2.718282 - .367879) / 2 = 1.1752015, tie up to 1.175202.
        DirectCase{"HSin", Operation::HSin, "1+j0", "0+i0", "1.175202", "0", "1.175202+j0", "HSin",
                   "(HSin(1+j0))\r\n= 1.175202+j0\r\n"},
        // (2.718282 + .367879) / 2 = 1.5430805, tie kept at 1.54308.
        DirectCase{"HCos", Operation::HCos, "1+j0", "0+i0", "1.54308", "0", "1.54308+j0", "HCos",
                   "(HCos(1+j0))\r\n= 1.54308+j0\r\n"},
        DirectCase{"HTan", Operation::HTan, "1+j0", "0+i0", "0.761594", "0", "0.761594+j0", "HTan",
                   "(HTan(1+j0))\r\n= 0.761594+j0\r\n"},
        // sqrt(9 + 16) = 5; a real result line with no imaginary part.
        DirectCase{"Abs", Operation::Abs, "3+j4", "0+i0", "5", "0", "5", "Abs", "(Abs(3+j4))\r\n= 5\r\n"},
        DirectCase{"Square", Operation::Square, "2+j0", "0+i0", "3.999999", "0", "3.999999+j0", "z1^2",
                   "(z1^2(2+j0))\r\n= 3.999999+j0\r\n"},
        // 3 * .693147 = 2.079441, e^2.079441 = 7.9999957 -> 7.999996.
        DirectCase{"Cube", Operation::Cube, "2+j0", "0+i0", "7.999996", "0", "7.999996+j0", "z1^3",
                   "(z1^3(2+j0))\r\n= 7.999996+j0\r\n"},
        // .5 * 2.197225 = 1.0986125 kept at 1.098612, e^1.098612 = 2.9999991.
        DirectCase{"SquareRoot", Operation::SquareRoot, "9+j0", "0+i0", "2.999999", "0", "2.999999+j0",
                   "z1^1/2", "(z1^1/2(9+j0))\r\n= 2.999999+j0\r\n"},
        DirectCase{"ArgRad", Operation::ArgRad, "1+j1", "0+i0", "0.785398", "0", "0.785398", "Arg",
                   "(Arg(1+j1))\r\n= 0.785398 rad\r\n"},
        // 57.2957795130824 * atn(4/3) = 53.130102354156.
        DirectCase{"ArgDeg", Operation::ArgDeg, "3+j4", "0+i0", "53.130102", "0", "53.130102", "Arg",
                   "(Arg(3+j4))\r\n= 53.130102 deg\r\n"},
        // (1.609438 + .927295i) / (.804719 + .463648i) = 2 - .000001i.
        DirectCase{"LogBase", Operation::LogBase, "3+j4", "2+j1", "2", "-1E-06", "2+j-1E-06", "LogBase",
                   "Log(3+j4) [Base(2+j1)]\r\n= 2+j-1E-06\r\n"},
        // Base 1 + i is no base 1: ln(1 + i) = .346574 + .785398i.
        DirectCase{"LogBaseOnePlusI", Operation::LogBase, "3+j4", "1+j1", "1.745113", "-1.279131",
                   "1.745113+j-1.279131", "LogBase", "Log(3+j4) [Base(1+j1)]\r\n= 1.745113+j-1.279131\r\n"}),
    [](const auto& row) { return std::string(row.param.name); });

// Every operation has a row above: the table of the direct road is complete.
TEST(DirectRoadTable, EveryOperationHasAButtonAndWord) {
  for (const auto& entry : Operations()) {
    EXPECT_FALSE(entry.control.empty());
    EXPECT_FALSE(entry.word.empty());
    EXPECT_EQ(FindOperationByName(entry.name), &entry);
    EXPECT_EQ(&FindOperation(entry.operation), &entry);
  }
  EXPECT_EQ(Operations().size(), 21u);
  EXPECT_EQ(FindOperationByName("z1%z2"), nullptr);
}

// Refusals of the direct road: message, and nothing changes.
struct RefusalCase {
  const char* name;
  Operation operation;
  const char* z1;
  const char* z2;
  Box box;
};

void PrintTo(const RefusalCase& c, std::ostream* os) { *os << c.name; }

class DirectRefusalTest : public CalculatorFixture, public ::testing::TestWithParam<RefusalCase> {};

TEST_P(DirectRefusalTest, MessageAndNoChange) {
  const auto& c = GetParam();
  EarlierResult();
  f.frm2textOpen = true;
  Operands(c.z1, c.z2);
  EXPECT_FALSE(calc.Run(c.operation));
  ExpectBoxes(box, {c.box});
  ExpectResult("4", "6", "4+j6");
  EXPECT_EQ(f.lblSta, "z1+z2");
  EXPECT_EQ(f.frm2text, "");
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, DirectRefusalTest,
    ::testing::Values(
        RefusalCase{"DivideByZero", Operation::Divide, "3+j4", "0+j0", {"#IND", "Error.", MsgIcon::None}},
        RefusalCase{"LnOfZero",
                    Operation::Ln,
                    "0+j0",
                    "1+j1",
                    {"Log of 0 + i0 is undefined.", "Error", MsgIcon::None}},
        RefusalCase{"LogBaseOfZero",
                    Operation::LogBase,
                    "0+j0",
                    "2+j0",
                    {"Log  of 0 + i0 is undefined.", "Logarithm Error", MsgIcon::None}},
        // First match wins: a zero operand before a zero base.
        RefusalCase{"LogBaseBothZero",
                    Operation::LogBase,
                    "0+j0",
                    "0+j0",
                    {"Log  of 0 + i0 is undefined.", "Logarithm Error", MsgIcon::None}},
        RefusalCase{"LogBaseZero",
                    Operation::LogBase,
                    "3+j4",
                    "0+j0",
                    {"Base  0 + i0 . Undefined.", "Logarithm Error", MsgIcon::None}},
        RefusalCase{"LogBaseOne",
                    Operation::LogBase,
                    "3+j4",
                    "1+j0",
                    {"Base 1 + i0 . Undefined.", "Logarithm Error", MsgIcon::None}}),
    [](const auto& row) { return std::string(row.param.name); });

class CalculatorTest : public CalculatorFixture, public ::testing::Test {};

TEST_F(CalculatorTest, LogStaysEmptyWhileTextViewIsClosed) {
  Operands("3+j4", "1+j2");
  EXPECT_TRUE(calc.Run(Operation::Multiply));
  EXPECT_EQ(f.frm2text, "");
}

TEST_F(CalculatorTest, LogBlocksFollowOneAnother) {
  f.frm2textOpen = true;
  Operands("3+j4", "1+j2");
  calc.Run(Operation::Add);
  calc.Run(Operation::Abs);
  EXPECT_EQ(f.frm2text, "(3+j4 + 1+j2)\r\n= 4+j6\r\n(Abs(3+j4))\r\n= 5\r\n");
}

TEST_F(CalculatorTest, GuardedFailureGoesOnWithStaleResult) {
  EarlierResult();
  f.frm2textOpen = true;
  f.lblZ1 = "1000+j0";  // e^1000 overflows inside CExp
  EXPECT_TRUE(calc.Run(Operation::Exp));
  ExpectBoxes(box, {kInvalid});
  ExpectResult("4", "6", "4+j6");
  EXPECT_EQ(f.lblSta, "e^");
  EXPECT_EQ(f.frm2text, "(e^(1000+j0))\r\n= 4+j6\r\n");
}

TEST_F(CalculatorTest, UnguardedFailureShowsTheSameBoxAndGoesOn) {
  EarlierResult();
  Operands("1e308+j0", "1e308+j0");  // the real sum overflows in CAdd
  EXPECT_TRUE(calc.Run(Operation::Add));
  ExpectBoxes(box, {kInvalid});
  ExpectResult("4", "6", "4+j6");
}

// A part of hundreds of digits cannot be held as a number: every road
// refuses it with the entry's message instead of reading it as 0.
TEST_F(CalculatorTest, PartTooLargeToHoldIsRefusedOnEveryRoad) {
  const Box tooLarge{"You must enter a valid complex number.", "Velmora", MsgIcon::Exclamation};
  const std::string huge(400, '9');
  struct Road {
    const char* why;
    std::string z1;
    std::string z2;
    std::function<bool(ComplexCalculator&)> run;
  };
  const Road roads[] = {
      {"real part of Complex 1 on a button", huge + "+j1", "1+j1",
       [](ComplexCalculator& c) { return c.Run(Operation::Add); }},
      {"imaginary part of Complex 2 on a button", "1+j1", "1+j" + huge,
       [](ComplexCalculator& c) { return c.Run(Operation::Multiply); }},
      {"one-operand button", huge + "+j0", "1+j1",
       [](ComplexCalculator& c) { return c.Run(Operation::Abs); }},
      {"the logarithm to a base", "2+j0", huge + "+j0",
       [](ComplexCalculator& c) { return c.Run(Operation::LogBase); }},
      {"the list road", huge + "+j1", "1+j1", [](ComplexCalculator& c) { return c.CommandCalculateClick(); }},
  };
  for (const Road& road : roads) {
    EarlierResult();
    f.frm2textOpen = true;
    Operands(road.z1.c_str(), road.z2.c_str());
    EXPECT_FALSE(road.run(calc)) << road.why;
    ExpectBoxes(box, {tooLarge});
    ExpectResult("4", "6", "4+j6");
    EXPECT_EQ(f.frm2text, "") << road.why;  // no log block for a refused operation
  }
}

// 201 digits still hold as a double: the operation runs and shows its value.
TEST_F(CalculatorTest, LongPartThatHoldsIsComputed) {
  Operands((std::string(201, '9') + "+j1").c_str(), "1+j1");
  EXPECT_TRUE(calc.Run(Operation::Add));
  EXPECT_EQ(f.TextResultReal, "1E+201");
  EXPECT_TRUE(box.Boxes().empty());
}

// A one-operand button never reads Complex 2, so a huge part there is no
// reason to refuse.
TEST_F(CalculatorTest, OneOperandButtonIgnoresAHugeComplexTwo) {
  Operands("3+j4", ("1+j" + std::string(400, '9')).c_str());
  EXPECT_TRUE(calc.Run(Operation::Abs));
  EXPECT_EQ(f.TextResultReal, "5");
}

// Conjugating a part too large to read leaves the operand as it stands.
TEST_F(CalculatorTest, ConjugateLeavesAPartTooLargeAlone) {
  const std::string label = "1+j" + std::string(400, '9');
  f.lblZ1 = label;
  calc.ConjugateZ1();
  EXPECT_EQ(f.lblZ1, label);
}

TEST_F(CalculatorTest, ArgumentOnImaginaryAxisFailsInLibrary) {
  EarlierResult();
  f.lblZ1 = "0+j1";
  EXPECT_TRUE(calc.Run(Operation::ArgRad));
  ExpectBoxes(box, {kInvalid});
  // The result line of Arg is the real part alone, here the stale 4.
  ExpectResult("4", "6", "4");
  EXPECT_EQ(f.lblSta, "Arg");
}

TEST_F(CalculatorTest, ParseMessageThenCalculationWithOldParts) {
  Operands("5+j1", "0+i0");
  calc.Run(Operation::Exp);  // parts 5, 1
  box.Clear();
  f.lblZ1 = "2";  // no unit: message, the parts stay 5 and 1
  EXPECT_TRUE(calc.Run(Operation::Abs));
  // sqrt(25 + 1) = 5.0990195 -> 5.09902.
  ExpectBoxes(box, {{"Check input. The Complex number must contain either j or i for imaginary.", "Velmora",
                     MsgIcon::None}});
  ExpectResult("5.09902", "0", "5.09902");
}

TEST_F(CalculatorTest, OneOperandButtonsDoNotParseComplexTwo) {
  Operands("3+j4", "");  // an empty Complex 2 would show a message
  EXPECT_TRUE(calc.Run(Operation::Abs));
  EXPECT_TRUE(box.Boxes().empty());
}

TEST_F(CalculatorTest, ZeroPowerOnButtonRoadComesFromLogarithm) {
  // No base cases on the button: ln(0) = 0, so 0^2 and 0^-1 are both 1.
  Operands("0+j0", "2+j0");
  calc.Run(Operation::Power);
  ExpectResult("1", "0", "1+j0");
  f.lblZ2 = "-1+j0";
  calc.Run(Operation::Power);
  ExpectResult("1", "0", "1+j0");
  f.lblZ1 = "0+j0";
  calc.Run(Operation::Square);
  ExpectResult("1", "0", "1+j0");
  EXPECT_TRUE(box.Boxes().empty());
}

// ------------------------------------------------------------------ list road

TEST_F(CalculatorTest, LoadSelectsAddition) {
  EXPECT_EQ(f.ComboFunction, "Addition");
  EXPECT_EQ(f.LabelRule, "(a+i*b)+(c+i*d) = (a+c)+i*(b+d)");
  EXPECT_EQ(f.CommandCalculate, "CALCULATE !");
}

struct EntryCase {
  const char* entry;
  const char* rule;
  bool secondShown;
  const char* re;  // for 3+j4 and 2+j1
  const char* im;
};

TEST_F(CalculatorTest, ListEntriesRulesResultsAndFields) {
  const EntryCase cases[] = {
      {"Addition", "(a+i*b)+(c+i*d) = (a+c)+i*(b+d)", true, "5", "5"},
      {"Subtraction", "(a+i*b)-(c+i*d) = (a-c)+i*(b-d)", true, "1", "3"},
      // 6 - 4 + i(3 + 8).
      {"Multiplication", "(a+i*b)*(c+i*d) = a*c-b*d + i*(a*d+b*c)", true, "2", "11"},
      // (3 + 4i)(2 - i) = 10 + 5i, over 5.
      {"Division", "(a+i*b)/(c+i*d) = [(a+i*b)*(c-i*d)]/(c^2+d^2)", true, "2", "1"},
      {"Magnitude of Complex 1", "|a+i*b| = sqrt(a^2+b^2)", false, "5", "0"},
      // e^3 (cos 4 + i sin 4) = 20.085537 * (-0.653644, -0.756802).
      {"e ^ (Complex 1)", "e ^ (a+i*b) = (e ^ a)[Cos(b)+i*Sin(b)]", false, "-13.128783", "-15.200784"},
      // (2 + i)(1.609438 + .927295i) = 2.291581 + 3.464028i, e^ of it.
      {"(Complex 1) ^ (Complex 2)", "(a+i*b)^(c+i*d) = e ^ [(c+i*d)*log(a+i*b)]", true, "-9.380867",
       "-3.134095"},
      {"Log (Complex 1)", "log(|a+i*b|) + i*arctan(b/a)", false, "1.609438", "0.927295"},
      {"Log (Complex 1) [base (Complex 2)]",
       "Log (Complex 1) [base (Complex 2)] = [Log (Complex 1)]/[Log (Complex 2)]", true, "2", "-1E-06"},
      {"Sin (Complex 1)", "Sin(a+i*b) = {e^[i*(a+i*b)]-e^[-i*(a+i*b)]}/(2*i)", false, "3.853738",
       "-27.016814"},
      // The rule reads "/i" although the value is divided by 2.
      {"Cos (Complex 1)", "Cos(a+i*b) = {e^[i*(a+i*b)]+e^[-i*(a+i*b)]}/i", false, "-27.034946", "-3.851153"},
      {"Tan (Complex 1)", "Tan(a+i*b) = Sin(a+i*b)/Cos(a+i*b)", false, "-0.000187", "0.999356"},
  };
  ASSERT_EQ(ComboFunctionEntries().size(), std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    const auto& c = cases[i];
    EXPECT_EQ(ComboFunctionEntries()[i].name, c.entry);
    Operands("3+j4", "2+j1");
    calc.SelectFunction(c.entry);
    EXPECT_EQ(f.LabelRule, c.rule) << c.entry;
    f.LabelRule.clear();
    EXPECT_TRUE(calc.CommandCalculateClick()) << c.entry;
    EXPECT_EQ(f.TextResultReal, c.re) << c.entry;
    EXPECT_EQ(f.TextResultImaginary, c.im) << c.entry;
    EXPECT_EQ(f.LabelRule, c.rule) << c.entry;
    EXPECT_EQ(f.lblcVisible, c.secondShown) << c.entry;
    EXPECT_EQ(f.lbldVisible, c.secondShown) << c.entry;
    EXPECT_EQ(f.Label2cVisible, c.secondShown) << c.entry;
    EXPECT_EQ(f.CommandCalculate, "CALCULATE !");
  }
  EXPECT_TRUE(box.Boxes().empty());
}

// Where no base case applies, both roads run the same arithmetic.
TEST_F(CalculatorTest, ListRoadAgreesWithButtons) {
  const char* operands[][2] = {{"3+j4", "2+j1"}, {"-1+j-1", "0.5+j-2"}, {"0.1+j0", "3+j0"}};
  for (const auto& entry : ComboFunctionEntries()) {
    for (const auto& z : operands) {
      Operands(z[0], z[1]);
      calc.SelectFunction(entry.name);
      ASSERT_TRUE(calc.CommandCalculateClick()) << entry.name;
      const ComplexFields listed = f;
      ASSERT_TRUE(calc.Run(entry.operation)) << entry.name;
      EXPECT_EQ(f.TextResultReal, listed.TextResultReal) << entry.name << " " << z[0];
      EXPECT_EQ(f.TextResultImaginary, listed.TextResultImaginary) << entry.name << " " << z[0];
      EXPECT_EQ(f.LabelRezultat, listed.LabelRezultat) << entry.name << " " << z[0];
    }
  }
  EXPECT_TRUE(box.Boxes().empty());
}

TEST_F(CalculatorTest, ListRoadWritesNoLogAndNoWord) {
  f.frm2textOpen = true;
  Operands("3+j4", "2+j1");
  calc.SelectFunction("Multiplication");
  calc.CommandCalculateClick();
  EXPECT_EQ(f.frm2text, "");
  EXPECT_EQ(f.lblSta, "");
}

struct ListRefusalCase {
  const char* name;
  const char* entry;
  const char* z1;
  const char* z2;
  Box box;
};

void PrintTo(const ListRefusalCase& c, std::ostream* os) { *os << c.name; }

class ListRefusalTest : public CalculatorFixture, public ::testing::TestWithParam<ListRefusalCase> {};

TEST_P(ListRefusalTest, MessageAndEarlierResultShowing) {
  const auto& c = GetParam();
  EarlierResult();
  calc.SelectFunction(c.entry);
  Operands(c.z1, c.z2);
  EXPECT_FALSE(calc.CommandCalculateClick());
  ExpectBoxes(box, {c.box});
  ExpectResult("4", "6", "4+j6");
  EXPECT_EQ(f.CommandCalculate, "CALCULATE !");
}

const char* const kLogBaseEntry = "Log (Complex 1) [base (Complex 2)]";

INSTANTIATE_TEST_SUITE_P(
    Entries, ListRefusalTest,
    ::testing::Values(
        ListRefusalCase{"DivisionByZero", "Division", "3+j4", "0+j0", {"Undefined", "Error.", MsgIcon::None}},
        ListRefusalCase{"LogOfZero",
                        "Log (Complex 1)",
                        "0+j0",
                        "2+j1",
                        {"Log <0,0> Is Undefined", "Logarithm Error", MsgIcon::None}},
        ListRefusalCase{"LogBaseOfZero",
                        kLogBaseEntry,
                        "0+j0",
                        "0+j0",
                        {"Log <0,0> Is Undefined In Any Base", "Logarithm Error", MsgIcon::None}},
        ListRefusalCase{"LogBaseZero",
                        kLogBaseEntry,
                        "3+j4",
                        "0+j0",
                        {"Log (Base <0,0>) Is Undefined", "Logarithm Error", MsgIcon::None}},
        ListRefusalCase{"LogBaseOne",
                        kLogBaseEntry,
                        "3+j4",
                        "1+j0",
                        {"Log (Base <1,0>) Is Undefined", "Logarithm Error", MsgIcon::None}},
        ListRefusalCase{"ZeroToNegativePower",
                        "(Complex 1) ^ (Complex 2)",
                        "0+j0",
                        "-1+j0",
                        {"You Cannot Raise <0,0> To A Negative Power", "Power Error", MsgIcon::None}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(CalculatorTest, DivisionByZeroDiffersBetweenRoads) {
  Operands("3+j4", "0+j0");
  calc.SelectFunction("Division");
  calc.CommandCalculateClick();
  calc.Run(Operation::Divide);
  ExpectBoxes(box, {{"Undefined", "Error.", MsgIcon::None}, {"#IND", "Error.", MsgIcon::None}});
}

TEST_F(CalculatorTest, LogOfZeroDiffersBetweenRoads) {
  Operands("0+j0", "2+j0");
  calc.SelectFunction("Log (Complex 1)");
  calc.CommandCalculateClick();
  calc.Run(Operation::Ln);
  ExpectBoxes(box, {{"Log <0,0> Is Undefined", "Logarithm Error", MsgIcon::None},
                    {"Log of 0 + i0 is undefined.", "Error", MsgIcon::None}});
}

struct ZeroPowerCase {
  const char* z2;
  const char* re;
  const char* im;
};

TEST_F(CalculatorTest, ZeroBasePowerCasesOnListRoad) {
  const ZeroPowerCase cases[] = {
      {"2+j0", "0", "0"},  // c > 0: 0 + i0, overruling the library's 1
      {"0+j0", "1", "0"},  // c = 0: 1 + i0
      {"1+j1", "1", "0"},  // d not 0: the library's e^0 = 1 stands
  };
  calc.SelectFunction("(Complex 1) ^ (Complex 2)");
  for (const auto& c : cases) {
    Operands("0+j0", c.z2);
    EXPECT_TRUE(calc.CommandCalculateClick()) << c.z2;
    EXPECT_EQ(f.TextResultReal, c.re) << c.z2;
    EXPECT_EQ(f.TextResultImaginary, c.im) << c.z2;
  }
  EXPECT_TRUE(box.Boxes().empty());
}

TEST_F(CalculatorTest, ListRoadRefusesOnlyExactBaseOne) {
  // ln(3+4i) / ln(1+i) = (1.609438 + .927295i) / (.346574 + .785398i).
  calc.SelectFunction(kLogBaseEntry);
  Operands("3+j4", "1+j1");
  EXPECT_TRUE(calc.CommandCalculateClick());
  ExpectResult("1.745113", "-1.279131", "1.745113+j-1.279131");
  EXPECT_TRUE(box.Boxes().empty());
}

TEST_F(CalculatorTest, RefusedPowerLeavesLibraryValueUnshown) {
  EarlierResult();
  calc.SelectFunction("(Complex 1) ^ (Complex 2)");
  Operands("0+j0", "-1+j0");
  EXPECT_FALSE(calc.CommandCalculateClick());
  // The fields still show 4 + 6i, but CPow already wrote its 1 + i0...
  ExpectResult("4", "6", "4+j6");
  EXPECT_EQ(calc.ResultReal(), 1.0);
  EXPECT_EQ(calc.ResultImag(), 0.0);
  // ... which the next re-show of the fields brings out.
  calc.Swap();
  EXPECT_EQ(f.TextResultReal, "1");
  EXPECT_EQ(f.TextResultImaginary, "0");
}

// A box that looks at the caption of CALCULATE ! while it is shown.
class CaptionSpy final : public platform::MessageBox {
 public:
  platform::MsgResult Show(const std::string&, const std::string&, MsgIcon, platform::MsgButtons) override {
    captions.push_back(fields->CommandCalculate);
    return platform::MsgResult::Ok;
  }
  const ComplexFields* fields = nullptr;
  std::vector<std::string> captions;
};

TEST(CalculateCaption, ReadsDoneWhileRunning) {
  CaptionSpy spy;
  ComplexCalculator calc(spy);
  spy.fields = &calc.Fields();
  calc.Fields().lblZ2 = "0+j0";
  calc.SelectFunction("Division");
  calc.CommandCalculateClick();
  ASSERT_EQ(spy.captions.size(), 1u);
  EXPECT_EQ(spy.captions[0], "Done");
  EXPECT_EQ(calc.Fields().CommandCalculate, "CALCULATE !");
}

TEST_F(CalculatorTest, ListRoadParsesBothOperandsAlways) {
  Operands("3+j4", "");  // Complex 2 empty: its message shows even for Sin
  calc.SelectFunction("Sin (Complex 1)");
  EXPECT_TRUE(calc.CommandCalculateClick());
  ExpectBoxes(box, {{"Check input. The Complex number must contain either j or i for imaginary.", "Velmora",
                     MsgIcon::None}});
}

TEST_F(CalculatorTest, UnknownListTextDoesNothing) {
  EarlierResult();
  f.ComboFunction = "Cotangent";
  const std::string rule = f.LabelRule;
  EXPECT_FALSE(calc.CommandCalculateClick());
  ExpectResult("4", "6", "4+j6");
  EXPECT_EQ(f.LabelRule, rule);
  EXPECT_TRUE(box.Boxes().empty());
}

// ---------------------------------------------------------------------- popup

TEST_F(CalculatorTest, ReplaceOperandsWithResult) {
  Operands("3+j4", "1+j2");
  calc.Run(Operation::Divide);  // 2.2 - 0.4i
  calc.ReplaceZ1WithResult();
  EXPECT_EQ(f.lblZ1, "2.2+j-0.4");
  EXPECT_EQ(f.lbla, "2.2");
  EXPECT_EQ(f.lblb, "-0.4");
  calc.ReplaceZ2WithResult();
  EXPECT_EQ(f.lblZ2, "2.2+j-0.4");
  EXPECT_EQ(f.lblc, "2.2");
  EXPECT_EQ(f.lbld, "-0.4");
  // The replaced text parses back to the same parts.
  calc.Run(Operation::Subtract);
  ExpectResult("0", "0", "0+j0");
}

TEST_F(CalculatorTest, SwapExchangesTextsAndParts) {
  Operands("1+j2", "3-j4");
  calc.Run(Operation::Add);
  f.TextResultReal = "stale";
  calc.Swap();
  EXPECT_EQ(f.lblZ1, "3-j4");
  EXPECT_EQ(f.lblZ2, "1+j2");
  EXPECT_EQ(f.lbla, "3");
  EXPECT_EQ(f.lblb, "-4");
  EXPECT_EQ(f.lblc, "1");
  EXPECT_EQ(f.lbld, "2");
  EXPECT_EQ(f.TextResultReal, "4");  // re-shown from the result
}

struct ConjugateCase {
  const char* before;
  const char* after;
  const char* imaginary;  // the part field after
};

TEST_F(CalculatorTest, ConjugateComplexOne) {
  const ConjugateCase cases[] = {
      {"3+j4", "3-j4", "-4"},  // -4 is negative: "-j" and the absolute part
      {"3-j4", "3+j4", "4"},   // back again
      {"3+j-4", "3+j4", "4"},  // the keypad form
      {"3+j0", "3+j0", "0"},   // -0 prints as 0, not negative
      {"-2.5+i1.5", "-2.5-j1.5", "-1.5"},
  };
  for (const auto& c : cases) {
    f.lblZ1 = c.before;
    f.TextResultReal = "stale";
    calc.ConjugateZ1();
    EXPECT_EQ(f.lblZ1, c.after) << c.before;
    EXPECT_EQ(f.lblb, c.imaginary) << c.before;
    EXPECT_EQ(f.TextResultReal, "0") << c.before;  // re-shown
  }
}

TEST_F(CalculatorTest, ConjugateComplexTwo) {
  f.lblZ2 = "1+j2";
  calc.ConjugateZ2();
  EXPECT_EQ(f.lblZ2, "1-j2");
  EXPECT_EQ(f.lblc, "1");
  EXPECT_EQ(f.lbld, "-2");
  EXPECT_EQ(f.lblZ1, "0+i0");
}

}  // namespace
}  // namespace velmora::complex
