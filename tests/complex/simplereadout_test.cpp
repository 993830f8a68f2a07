#include "complex/simplereadout.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/recordingmessagebox.h"

namespace velmora::complex {
namespace {

using platform::MsgIcon;

class ReadoutTest : public ::testing::Test {
 protected:
  testing::RecordingMessageBox box;
  ComplexFields f;
  SimpleReadout r{f, box};

  // Digits, "." for the point, "~" for the sign key, "C" for CE.
  void Press(const std::string& keys) {
    for (char key : keys) {
      if (key >= '0' && key <= '9') {
        r.Digit(key - '0');
      } else if (key == '.') {
        r.Point();
      } else if (key == '~') {
        r.Sign();
      } else if (key == 'C') {
        r.CancelEntry();
      }
    }
  }
};

TEST_F(ReadoutTest, AtLoadTheReadoutIsClearedAndNoModeIsOn) {
  EXPECT_EQ(r.Readout(), "0.");
  EXPECT_FALSE(r.DecimalFlag());
  EXPECT_FALSE(r.SimpleMode());
  EXPECT_FALSE(r.Inverse());
  EXPECT_FALSE(r.Degrees());
}

struct EntryCase {
  const char* keys;
  const char* readout;
  const char* lastInput;
  bool decimalFlag;
  const char* why;
};

TEST_F(ReadoutTest, DigitsPointSignAndCancelEntry) {
  const EntryCase cases[] = {
      {"5", "5.", "NUMS", false, "a first digit starts from the point"},
      {"53", "53.", "NUMS", false, "before the point the digit goes in front of it"},
      {"5.3", "5.3", "NUMS", true, "after the point at the end"},
      {".5", ".5", "NUMS", true, "a point first gives the zero-less form"},
      {"~5", "-5.", "NUMS", false, "a pending sign goes in front of the first digit"},
      {"~", "-.", "NEG", false, "the sign alone waits for a number"},
      {"12~", "-12.", "NUMS", false, "the sign key negates the number being typed"},
      {"12~~", "12.", "NUMS", false, "twice gives it back"},
      {"5.3C", "0.", "CE", false, "CE clears the entry"},
      {"5.3C7", "7.", "NUMS", false, "after CE a digit starts a new number"},
      {"~.5", "-.5", "NUMS", true, "a pending sign before the point"},
  };
  for (const auto& c : cases) {
    f = ComplexFields{};
    r.CancelEntry();
    f.LastInput.clear();
    Press(c.keys);
    EXPECT_EQ(r.Readout(), c.readout) << c.why;
    EXPECT_EQ(f.LastInput, c.lastInput) << c.why;
    EXPECT_EQ(r.DecimalFlag(), c.decimalFlag) << c.why;
  }
}

TEST_F(ReadoutTest, TheFirstTickedCheckBoxPicksTheMirroredPart) {
  r.SetMirror(2, true);
  r.SetMirror(4, true);
  Press("42");
  // b is the first ticked: it takes the text, and Complex 1's label is
  // rebuilt so the next operation reads it.
  EXPECT_EQ(f.lblb, "42.");
  EXPECT_EQ(f.lblZ1, "0+j42.");
  EXPECT_EQ(f.lbld, "0");
  r.SetMirror(2, false);
  Press("C");
  EXPECT_EQ(f.lbld, "0.");
  EXPECT_EQ(f.lblZ2, "0+j0.");
  EXPECT_EQ(f.lblb, "42.");
}

TEST_F(ReadoutTest, NoTickedBoxFeedsNothing) {
  Press("9");
  EXPECT_EQ(f.lbla, "0");
  EXPECT_EQ(f.lblZ1, "0+i0");
}

struct FunctionCase {
  const char* input;
  RealFunction function;
  bool inverse;
  bool degrees;
  const char* readout;
  const char* why;
};

TEST_F(ReadoutTest, RealFunctionsWithInvAndDeg) {
  const FunctionCase cases[] = {
      {"30", RealFunction::Sin, false, true, "0.5", "sine of 30 degrees"},
      {"0", RealFunction::Cos, false, false, "1", "cosine in radians"},
      {"45", RealFunction::Tan, false, true, "1", "tangent of 45 degrees"},
      {"45", RealFunction::Cot, false, true, "1", "cotangent of 45 degrees"},
      {"1", RealFunction::Sin, true, true, "90", "arcsine in degrees"},
      {"1", RealFunction::Cos, true, false, "0", "arccosine in radians"},
      {"1", RealFunction::Tan, true, true, "45", "arctangent in degrees"},
      {"0", RealFunction::Cot, true, true, "90", "arccotangent of 0 is defined"},
  };
  for (const auto& c : cases) {
    r.CancelEntry();
    Press(c.input);
    r.SetInverse(c.inverse);
    r.SetDegrees(c.degrees);
    r.Apply(c.function);
    EXPECT_EQ(r.Readout(), c.readout) << c.why;
    EXPECT_TRUE(box.Boxes().empty()) << c.why;
  }
}

TEST_F(ReadoutTest, AResultIsFinishedAndTheNextDigitStartsANewNumber) {
  Press("30");
  r.SetDegrees(true);
  r.Apply(RealFunction::Sin);
  Press("7");
  EXPECT_EQ(r.Readout(), "7.");
}

struct DomainCase {
  const char* input;
  RealFunction function;
  bool inverse;
  const char* why;
};

TEST_F(ReadoutTest, OutsideTheDomainShowsInvalidInputAndKeepsTheReadout) {
  const DomainCase cases[] = {
      {"2", RealFunction::Sin, true, "arcsine beyond 1"},
      {"~2", RealFunction::Cos, true, "arccosine below -1"},
      {"0", RealFunction::Cot, false, "the cotangent of 0 divides by zero"},
  };
  for (const auto& c : cases) {
    box.Clear();
    r.CancelEntry();
    f.LastInput.clear();
    Press(c.input);
    const std::string before = r.Readout();
    r.SetInverse(c.inverse);
    r.SetDegrees(false);
    r.Apply(c.function);
    ASSERT_EQ(box.Boxes().size(), 1u) << c.why;
    EXPECT_EQ(box.Boxes()[0].text, "Invalid input.") << c.why;
    EXPECT_EQ(box.Boxes()[0].title, "Velmora") << c.why;
    EXPECT_EQ(box.Boxes()[0].icon, MsgIcon::Information) << c.why;
    EXPECT_EQ(r.Readout(), before) << c.why;
  }
}

}  // namespace
}  // namespace velmora::complex
