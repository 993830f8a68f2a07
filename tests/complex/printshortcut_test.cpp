#include "complex/printshortcut.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

#include "complex/complexnumber.h"
#include "complex/printedtext.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::complex {
namespace {

// Restores the shortcuts whatever a test does with them.
class ShortcutGuard {
 public:
  ShortcutGuard() : saved_(PrintShortcuts()) {}
  ~ShortcutGuard() { SetPrintShortcuts(saved_); }
  ShortcutGuard(const ShortcutGuard&) = delete;
  ShortcutGuard& operator=(const ShortcutGuard&) = delete;

 private:
  bool saved_;
};

std::uint64_t Bits(double x) { return std::bit_cast<std::uint64_t>(x); }

struct RoundCase {
  double value;
  int places;
  const char* why;
};

// Values chosen at the edges of the integer road.
const RoundCase kRoundCases[] = {
    {123456789012345.5, 15, "exact tie at the 15th digit goes to even (up)"},
    {123456789012344.5, 15, "exact tie at the 15th digit goes to even (down)"},
    {0.125, 2, "exact decimal tie goes to even"},
    {0.375, 2, "exact decimal tie goes to even (up)"},
    {2.5, 0, "integer tie down"},
    {3.5, 0, "integer tie up"},
    {-2.5, 0, "negative tie"},
    {-0.4, 0, "rounds to a negative zero"},
    {0.9999999999999999, 15, "carry into a new digit"},
    {9.9999999999999995, 14, "carry at the top of a decade"},
    {1e-4, 15, "lowest plain value"},
    {0.00099999999999999999, 15, "just below a decade boundary"},
    {1e-3, 3, "on a decade boundary"},
    {999999999999999.9, 15, "just below 1E+15"},
    {1.0 / 3.0, 15, "a third"},
    {2.0 / 3.0, 1, "two thirds to one place"},
    {0.00012345678901234567, 15, "15 places cut into the digits"},
    {0.5, 0, "half to zero places"},
    {1.5e-5, 15, "below the road: through the text"},
    {1e20, 3, "above the road: through the text"},
};

TEST(RoundPlaces, EdgeCasesMatchRoundTo) {
  for (const auto& c : kRoundCases) {
    EXPECT_EQ(Bits(RoundPlaces(c.value, c.places)), Bits(expr::RoundTo(c.value, c.places)))
        << c.why << ": " << c.value << " to " << c.places;
  }
}

TEST(RoundPlaces, RandomValuesMatchRoundToBitForBit) {
  std::mt19937_64 gen(20240611);
  std::uniform_real_distribution<double> mantissa(1.0, 10.0);
  std::uniform_int_distribution<int> exponent(-7, 16);
  std::uniform_int_distribution<int> places(0, 15);
  std::uniform_int_distribution<std::uint64_t> anyBits;
  int mismatches = 0;
  for (int i = 0; i < 200000; ++i) {
    double x = mantissa(gen) * std::pow(10.0, exponent(gen));
    if (i % 3 == 0) x = -x;
    if (i % 5 == 0) {  // short decimals, where exact ties live
      x = std::round(x * 1000) / 1000;
    }
    const int p = places(gen);
    if (Bits(RoundPlaces(x, p)) != Bits(expr::RoundTo(x, p))) ++mismatches;
  }
  for (int i = 0; i < 50000; ++i) {
    const double x = std::bit_cast<double>(anyBits(gen));
    if (!std::isfinite(x)) continue;
    const int p = places(gen);
    if (Bits(RoundPlaces(x, p)) != Bits(expr::RoundTo(x, p))) ++mismatches;
  }
  EXPECT_EQ(mismatches, 0);
}

// What a new number reads from a text, all through the characters.
void ParseByText(const std::string& text, double& re, double& im) {
  ShortcutGuard guard;
  SetPrintShortcuts(false);
  ComplexNumber z;
  z.SetRectText(text);
  re = z.Real();
  im = z.Imaginary();
}

TEST(PrintedText, PlainValuesAreWhatTheTextReads) {
  std::mt19937_64 gen(7);
  std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
  // Down to 1E-12 and up to 1E+22: tiny and huge parts print positional too.
  std::uniform_int_distribution<int> exponent(-12, 22);
  std::uniform_int_distribution<int> places(1, 15);
  int checked = 0;
  for (int i = 0; i < 20000; ++i) {
    const double re = mantissa(gen) * std::pow(10.0, exponent(gen));
    const double im = i % 4 == 0 ? 0.0 : mantissa(gen) * std::pow(10.0, exponent(gen));
    const int p = places(gen);
    const PrintedText t = PrintedText::Print(re, im, p, i % 2 == 0);
    double fastRe = 0;
    double fastIm = 0;
    if (!t.PlainValues(fastRe, fastIm)) continue;
    double textRe = 0;
    double textIm = 0;
    ParseByText(t.Text(), textRe, textIm);
    ASSERT_EQ(Bits(fastRe), Bits(textRe)) << t.Text();
    ASSERT_EQ(Bits(fastIm), Bits(textIm)) << t.Text();
    ++checked;
  }
  EXPECT_EQ(checked, 20000) << "every finite print is read by the shortcut";
}

TEST(PrintedText, TinyAndHugePartsPrintPositional) {
  // An exponent letter in a print would read back as the imaginary unit.
  struct Row {
    double re;
    double im;
    int places;
    const char* text;
  };
  const Row rows[] = {
      {1.5e-5, 1, 15, ".000015 + j1"},
      {1e-5, 0, 15, ".00001"},
      {2.1952410910289e20, -3e-12, 15, "219524109102890000000 - j.000000000003"},
      {1.23456789e-10, 0, 15, ".000000000123457"},
      {1e15, 1e-4, 3, "1000000000000000"},
  };
  for (const auto& r : rows) {
    const PrintedText t = PrintedText::Print(r.re, r.im, r.places, false);
    EXPECT_EQ(t.Text(), r.text);
    double re = 0;
    double im = 0;
    ASSERT_TRUE(t.PlainValues(re, im)) << r.text;
    double textRe = 0;
    double textIm = 0;
    ParseByText(t.Text(), textRe, textIm);
    EXPECT_EQ(Bits(re), Bits(textRe)) << r.text;
    EXPECT_EQ(Bits(im), Bits(textIm)) << r.text;
  }
}

TEST(PrintedText, RoundingOverflowLeavesTheTextAndNeverThrows) {
  PrintedText t(std::string("7"));
  EXPECT_EQ(t.SetPrint(std::numeric_limits<double>::max(), 0, 15, false), expr::Fault::kOverflow);
  EXPECT_EQ(t.Text(), "7");
  double re = 0;
  double im = 0;
  EXPECT_FALSE(t.PlainValues(re, im)) << "typed text is no print";
}

TEST(PrintedText, TextIsTheEagerPrint) {
  ShortcutGuard guard;
  const PrintedText lazy = PrintedText::Print(-0.5, -2.25, 1, false);
  SetPrintShortcuts(false);
  const PrintedText eager = PrintedText::Print(-0.5, -2.25, 1, false);
  EXPECT_EQ(lazy.Text(), eager.Text());
  EXPECT_EQ(lazy.Text(), "-.5 - j2.2");
}

}  // namespace
}  // namespace velmora::complex
