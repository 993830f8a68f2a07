#include "complex/complexlibrary.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "expr/fault.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::complex {
namespace {

using platform::MsgIcon;

// Outputs start at these values so that a failure that leaves them alone
// can be told from one that writes 0.
constexpr double kStaleRe = 7.0;
constexpr double kStaleIm = 8.0;

struct LibraryCase {
  const char* name;
  std::function<void(Complex&, double&, double&)> call;
  double re;
  double im;
  int boxes;  // "Invalid input." boxes shown by the call
};

void PrintTo(const LibraryCase& c, std::ostream* os) { *os << c.name; }

class ComplexLibraryTest : public ::testing::TestWithParam<LibraryCase> {};

TEST_P(ComplexLibraryTest, ResultAndBoxes) {
  const auto& c = GetParam();
  testing::RecordingMessageBox box;
  Complex lib(box);
  double re = kStaleRe;
  double im = kStaleIm;
  c.call(lib, re, im);
  EXPECT_EQ(re, c.re) << c.name;
  EXPECT_EQ(im, c.im) << c.name;
  ASSERT_EQ(static_cast<int>(box.Boxes().size()), c.boxes) << c.name;
  for (const auto& shown : box.Boxes()) {
    EXPECT_EQ(shown.text, "Invalid input.");
    EXPECT_EQ(shown.title, "Velmora");
    EXPECT_EQ(shown.icon, MsgIcon::Critical);
    EXPECT_EQ(shown.buttons, platform::MsgButtons::Ok);
  }
}

// The single-output magnitude puts its result in re and leaves im alone.
auto Abs(double a, double b) {
  return [a, b](Complex& lib, double& re, double&) { lib.CAbs(a, b, re); };
}

#define CALL2(fn, a, b, c, d) [](Complex& lib, double& re, double& im) { lib.fn(a, b, c, d, re, im); }
#define CALL1(fn, a, b) [](Complex& lib, double& re, double& im) { lib.fn(a, b, re, im); }

INSTANTIATE_TEST_SUITE_P(
    Cases, ComplexLibraryTest,
    ::testing::Values(
        // 0.1234564 + 0.1234564 = 0.2469128, cut to 6 places: .246913.
        LibraryCase{"AddRoundsSum", CALL2(CAdd, 0.1234564, 0, 0.1234564, 0), 0.246913, 0, 0},
        // 1.0000005 is a tie at the 7th place; the kept digit 0 is even: 1.
        LibraryCase{"AddTieToEvenDown", CALL2(CAdd, 1.0000005, 0, 0, 0), 1, 0, 0},
        // 1.0000015: the kept digit 1 is odd, so the tie goes up: 1.000002.
        LibraryCase{"AddTieToEvenUp", CALL2(CAdd, 1.0000015, 0, 0, 0), 1.000002, 0, 0},
        // (-2.5 + 1i) + (0.5 - 3i) = -2 - 2i.
        LibraryCase{"AddParts", CALL2(CAdd, -2.5, 1, 0.5, -3), -2, -2, 0},
        // (5 + 3i) - (1.25 + 4i) = 3.75 - 1i.
        LibraryCase{"SubParts", CALL2(CSub, 5, 3, 1.25, 4), 3.75, -1, 0},
        // (3 + 4i)(1 + 2i) = 3 - 8 + i(6 + 4) = -5 + 10i.
        LibraryCase{"MulParts", CALL2(CMul, 3, 4, 1, 2), -5, 10, 0},
        // 0.0011 * 0.0011 = 0.00000121, cut to 0.000001.
        LibraryCase{"MulRoundsTinyProduct", CALL2(CMul, 0.0011, 0, 0.0011, 0), 0.000001, 0, 0},
        // 1e200 * 1e200 overflows: box, outputs untouched.
        LibraryCase{"MulOverflow", CALL2(CMul, 1e200, 0, 1e200, 0), kStaleRe, kStaleIm, 1},
        // (3 + 4i)(1 - 2i) = 11 - 2i through CMul, over 1 + 4 = 5: 2.2 - 0.4i.
        LibraryCase{"DivParts", CALL2(CDiv, 3, 4, 1, 2), 2.2, -0.4, 0},
        // 1 / 3 = 0.333333 (the product 3 + 0i over 9).
        LibraryCase{"DivRounds", CALL2(CDiv, 1, 0, 3, 0), 0.333333, 0, 0},
        // A zero divisor: box, no infinity, outputs as they were.
        LibraryCase{"DivByZero", CALL2(CDiv, 1, 1, 0, 0), kStaleRe, kStaleIm, 1},
        // 0 / 0 is a fault as well.
        LibraryCase{"DivZeroByZero", CALL2(CDiv, 0, 0, 0, 0), kStaleRe, kStaleIm, 1},
        // sqrt(9 + 16) = 5; im untouched.
        LibraryCase{"AbsParts", Abs(3, 4), 5, kStaleIm, 0},
        // sqrt(2) = 1.41421356 cut to 1.414214.
        LibraryCase{"AbsRounds", Abs(1, 1), 1.414214, kStaleIm, 0},
        // (1e200)^2 overflows: box, m untouched.
        LibraryCase{"AbsOverflow", Abs(1e200, 0), kStaleRe, kStaleIm, 1},
        // e^1 (cos 1 + i sin 1) = 2.718282 * (0.540302, 0.841471) = 1.468694 + 2.287355i.
        LibraryCase{"ExpParts", CALL1(CExp, 1, 1), 1.468694, 2.287355, 0},
        // cos(1.5707963) = 2.7e-8 cuts to 0; sin is 1.
        LibraryCase{"ExpCutsToZero", CALL1(CExp, 0, 1.5707963), 0, 1, 0},
        // e^1000 overflows: box, outputs as before.
        LibraryCase{"ExpOverflow", CALL1(CExp, 1000, 0), kStaleRe, kStaleIm, 1},
        // |-1| = 1, ln 1 = 0; a <= 0 and b = 0: pi, 3.141593.
        LibraryCase{"LnNegativeReal", CALL1(CLn, -1, 0), 0, 3.141593, 0},
        // a = 0 and b <= 0: 3*pi/2 = 4.712389.
        LibraryCase{"LnNegativeImaginary", CALL1(CLn, 0, -1), 0, 4.712389, 0},
        // ln(1.414214) = 0.3465739 -> .346574; third quadrant: pi/4 - pi = -2.356194.
        LibraryCase{"LnThirdQuadrant", CALL1(CLn, -1, -1), 0.346574, -2.356194, 0},
        // Fourth quadrant: 2*pi - pi/4 = 5.497787.
        LibraryCase{"LnFourthQuadrant", CALL1(CLn, 1, -1), 0.346574, 5.497787, 0},
        // First quadrant: atn(1) = 0.785398.
        LibraryCase{"LnFirstQuadrant", CALL1(CLn, 1, 1), 0.346574, 0.785398, 0},
        // Second quadrant: pi - pi/4 = 2.356194.
        LibraryCase{"LnSecondQuadrant", CALL1(CLn, -1, 1), 0.346574, 2.356194, 0},
        // a = 0 and b >= 0: pi/2 = 1.570796.
        LibraryCase{"LnPositiveImaginary", CALL1(CLn, 0, 2), 0.693147, 1.570796, 0},
        // ln 5 = 1.6094379 -> 1.609438; atn(4/3) = 0.9272952 -> 0.927295.
        LibraryCase{"LnThreeFour", CALL1(CLn, 3, 4), 1.609438, 0.927295, 0},
        // Log of zero does not fail here: 0 and 0.
        LibraryCase{"LnZero", CALL1(CLn, 0, 0), 0, 0, 0},
        // The modulus overflows in CAbs (one box); ln goes on with m = 0, so
        // re = 0, while the fourth-quadrant angle 2*pi - atn(1e-100) is still
        // computed: 6.283185.
        LibraryCase{"LnStaleModulus", CALL1(CLn, 1e200, -1e100), 0, 6.283185, 1},
        // The same, and a * b overflows in the angle too: a second box, and
        // the angle is left as it was.
        LibraryCase{"LnTwoBoxes", CALL1(CLn, 1e200, 1e200), 0, kStaleIm, 2},
        // ln(3+4i) / ln(2+i) = (1.609438 + 0.927295i) / (0.804719 + 0.463648i):
        // the product by the conjugate is 1.725084 - 0.000001i, over
        // 0.862542 gives 2 - 0.000001i; exact arithmetic would give 2 + 0i.
        LibraryCase{"LogBaseRoundedSteps", CALL2(CLogBase, 3, 4, 2, 1), 2, -0.000001, 0},
        // Base 1: ln(1) = 0 + 0i, so CDiv fails: one box, outputs untouched.
        LibraryCase{"LogBaseOne", CALL2(CLogBase, 3, 4, 1, 0), kStaleRe, kStaleIm, 1},
        // 2^0.5: ln 2 = .693147, times 0.5 = 0.3465735, a tie cut up to
        // 0.346574 (3 is odd), e^0.346574 = 1.4142141 -> 1.414214.
        LibraryCase{"PowSquareRootOfTwo", CALL2(CPow, 2, 0, 0.5, 0), 1.414214, 0, 0},
        // 9^0.5: ln 9 = 2.197225, times 0.5 = 1.0986125, a tie kept at
        // 1.098612 (2 is even), e^1.098612 = 2.9999991 -> 2.999999, not 3.
        LibraryCase{"PowSquareRootOfNine", CALL2(CPow, 9, 0, 0.5, 0), 2.999999, 0, 0},
        // 2^2: 2 * .693147 = 1.386294, e^1.386294 = 3.9999986 -> 3.999999.
        LibraryCase{"PowSquareOfTwo", CALL2(CPow, 2, 0, 2, 0), 3.999999, 0, 0},
        // Zero base: ln gives 0 + 0i, the product is 0, e^0 = 1.
        LibraryCase{"PowZeroBase", CALL2(CPow, 0, 0, -1, 0), 1, 0, 0},
        // 1 / (3 + 4i) = (3 - 4i) / 25 = 0.12 - 0.16i.
        LibraryCase{"InvParts", CALL1(CInv, 3, 4), 0.12, -0.16, 0},
        LibraryCase{"InvZero", CALL1(CInv, 0, 0), kStaleRe, kStaleIm, 1},
        // cos(0): P = Q = e^0 = 1, S = 2, 2 / 2 = 1.
        LibraryCase{"CosZero", CALL1(CCos, 0, 0), 1, 0, 0},
        // cos(1+i): iz = -1 + i, e^iz = 0.198766 + 0.30956i; -iz = 1 - i,
        // e^-iz = 1.468694 - 2.287355i; S = 1.66746 - 1.977795i; S / 2 =
        // 0.83373 - 0.9888975i, the tie cut to -0.988898 (7 is odd).
        LibraryCase{"CosOneOne", CALL1(CCos, 1, 1), 0.83373, -0.988898, 0},
        // cos(710i): e^710 overflows in CExp (one box), Q stays 0 and the
        // tiny P cuts to 0: the result is 0 where cosh(710) is meant.
        LibraryCase{"CosStaleAfterOverflow", CALL1(CCos, 0, 710), 0, 0, 1},
        LibraryCase{"SinZero", CALL1(CSin, 0, 0), 0, 0, 0},
        // sin(1+i): S = P - Q = -1.269928 + 2.596915i, over 2i:
        // (S * -2i) / 4 = (5.19383 + 2.539856i) / 4 = 1.298458 + 0.634964i.
        LibraryCase{"SinOneOne", CALL1(CSin, 1, 1), 1.298458, 0.634964, 0},
        LibraryCase{"TanZero", CALL1(CTan, 0, 0), 0, 0, 0},
        // tan 1 = .841471 / .540302: the product .454648 over .291926 is
        // 1.557407 (exactly tan 1 = 1.5574077 would cut to 1.557408).
        LibraryCase{"TanOne", CALL1(CTan, 1, 0), 1.557407, 0, 0},
        // The cosine of 1.5707963 cuts to 0 + 0i: CDiv fails, one box.
        LibraryCase{"TanPole", CALL1(CTan, 1.5707963, 0), kStaleRe, kStaleIm, 1},
        // (2.718282 - 0.367879) / 2 = 1.1752015, a tie cut up (1 is odd) to
        // 1.175202, where sinh 1 = 1.1752012 would give 1.175201.
        LibraryCase{"SinhOne", CALL1(CSinh, 1, 0), 1.175202, 0, 0},
        // (2.718282 + 0.367879) / 2 = 1.5430805, a tie kept (0 is even):
        // 1.54308, where cosh 1 = 1.5430806 would give 1.543081.
        LibraryCase{"CoshOne", CALL1(CCosh, 1, 0), 1.54308, 0, 0},
        // 2.350403 / 3.086161: product 7.253722 over 9.52439 = 0.761594.
        LibraryCase{"TanhOne", CALL1(CTanh, 1, 0), 0.761594, 0, 0},
        // e^1000 overflows (one box), the difference and sum are 0 + 0i,
        // and the division by them fails too (second box).
        LibraryCase{"TanhTwoBoxes", CALL1(CTanh, 1000, 0), kStaleRe, kStaleIm, 2},
        // e^1000 overflows (one box); 0 - 0 over 2 is 0.
        LibraryCase{"SinhStale", CALL1(CSinh, 1000, 0), 0, 0, 1},
        // (0.634964 + 1.298458i) / (0.83373 + 0.988898i) = 1.083923 + 0.271753i.
        LibraryCase{"TanhOneOne", CALL1(CTanh, 1, 1), 1.083923, 0.271753, 0},
        // atn(1/1) = 0.785398, im = 0.
        LibraryCase{"ArgRadFirst", CALL1(CArgRad, 1, 1), 0.785398, 0, 0},
        // No quadrant correction: atn(1/-1) = -0.785398 for -1 + i.
        LibraryCase{"ArgRadSecond", CALL1(CArgRad, -1, 1), -0.785398, 0, 0},
        // a = 0 divides by zero: box, outputs untouched.
        LibraryCase{"ArgRadImaginaryAxis", CALL1(CArgRad, 0, 1), kStaleRe, kStaleIm, 1},
        // 57.2957795130824 * atn(4/3) = 53.1301023541560 -> 53.130102.
        LibraryCase{"ArgDegThreeFour", CALL1(CArgDeg, 3, 4), 53.130102, 0, 0},
        // 45.00000000000004 reads back as 45 from its 15-digit text.
        LibraryCase{"ArgDegFortyFive", CALL1(CArgDeg, 1, 1), 45, 0, 0},
        // Third quadrant answers as the first: atn(-1/-1) = 45.
        LibraryCase{"ArgDegThirdQuadrant", CALL1(CArgDeg, -1, -1), 45, 0, 0},
        LibraryCase{"ArgDegImaginaryAxis", CALL1(CArgDeg, 0, -2), kStaleRe, kStaleIm, 1}),
    [](const auto& row) { return std::string(row.param.name); });

#undef CALL1
#undef CALL2

// The unguarded functions show nothing and leave the fault to their caller.
struct UnguardedCase {
  const char* name;
  std::function<void(Complex&, double&, double&)> call;
  double re;  // what was assigned before the fault
  double im;
};

TEST(ComplexLibraryUnguarded, FaultPassesToCaller) {
  const UnguardedCase cases[] = {
      // 1e308 + 1e308 overflows in the real part: nothing assigned.
      {"AddOverflow", [](Complex& l, double& re, double& im) { l.CAdd(1e308, 0, 1e308, 0, re, im); },
       kStaleRe, kStaleIm},
      // The real part 1 is assigned before the imaginary part overflows.
      {"AddOverflowLate", [](Complex& l, double& re, double& im) { l.CAdd(1, 1e308, 0, 1e308, re, im); }, 1,
       kStaleIm},
      {"SubOverflow", [](Complex& l, double& re, double& im) { l.CSub(-1e308, 0, 1e308, 0, re, im); },
       kStaleRe, kStaleIm},
  };
  for (const auto& c : cases) {
    testing::RecordingMessageBox box;
    Complex lib(box);
    double re = kStaleRe;
    double im = kStaleIm;
    EXPECT_THROW(c.call(lib, re, im), expr::Fault) << c.name;
    EXPECT_TRUE(box.Boxes().empty()) << c.name;
    EXPECT_EQ(re, c.re) << c.name;
    EXPECT_EQ(im, c.im) << c.name;
  }
}

// CPow holds no arithmetic of its own: its guarded steps catch everything,
// so even an overflowing power comes back without a fault.
TEST(ComplexLibraryUnguarded, PowOverflowStaysInsideItsSteps) {
  testing::RecordingMessageBox box;
  Complex lib(box);
  double re = kStaleRe;
  double im = kStaleIm;
  // ln 10 = 2.302585, times 400 = 921.034, e^921.034 overflows in CExp.
  EXPECT_NO_THROW(lib.CPow(10, 0, 400, 0, re, im));
  EXPECT_EQ(re, kStaleRe);
  EXPECT_EQ(im, kStaleIm);
  ASSERT_EQ(box.Boxes().size(), 1u);
  EXPECT_EQ(box.Boxes()[0].text, "Invalid input.");
}

}  // namespace
}  // namespace velmora::complex
