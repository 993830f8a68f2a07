#pragma once

#include "platform/messagebox.h"

namespace velmora::complex {

// The arithmetic behind the Complex Calculator. Every function takes the
// parts of its operands as plain numbers and hands back the parts of its
// result through the last two arguments (one for CAbs). Each result is
// rounded to 6 decimal places (ties to even) before the function returns,
// and the composite functions are built from the rounded ones, so the
// rounding happens at every stage and not only at the end.
//
// Most functions are guarded: a runtime failure in their body (overflow,
// division by zero, an argument outside a primitive's domain) stops the body,
// shows "Invalid input." with the critical icon, and returns with the outputs
// holding whatever had been assigned before the failure. Inside a composite
// function a failed step therefore shows its own box and the outer function
// goes on with stale values. CAdd, CSub, CPow and CCos are unguarded: a
// failure leaves them as an expr::Fault for their caller to trap.
//
// Intermediate parts are locals starting at 0, so a failed inner step leaves
// 0 behind for the outer function to go on with.
class Complex {
 public:
  explicit Complex(platform::MessageBox& box) : box_(box) {}

  // re = a + c, im = b + d. Unguarded.
  void CAdd(double a, double b, double c, double d, double& re, double& im);
  // re = a - c, im = b - d. Unguarded.
  void CSub(double a, double b, double c, double d, double& re, double& im);
  // re = a*c - b*d, im = a*d + b*c.
  void CMul(double a, double b, double c, double d, double& re, double& im);
  // (a, b) * (c, -d) through CMul, each part then divided by c^2 + d^2. A
  // zero divisor fails, so the outputs keep their old values.
  void CDiv(double a, double b, double c, double d, double& re, double& im);
  // m = sqrt(a^2 + b^2).
  void CAbs(double a, double b, double& m);
  // re = e^a cos b, im = e^a sin b.
  void CExp(double a, double b, double& re, double& im);
  // re = ln of the rounded modulus (0 for a zero modulus); im is the angle
  // by the quadrant rules below, with a range that is not contiguous.
  void CLn(double a, double b, double& re, double& im);
  // CLn(a, b) divided by CLn(c, d) through CDiv.
  void CLogBase(double a, double b, double c, double d, double& re, double& im);
  // CExp of (c, d) times CLn(a, b), the product through CMul. No special
  // case for a zero base. Unguarded.
  void CPow(double a, double b, double c, double d, double& re, double& im);
  // re = a / (a^2 + b^2), im = -b / (a^2 + b^2).
  void CInv(double a, double b, double& re, double& im);
  // (e^(iz) + e^(-iz)) / 2 from the rounded steps. Unguarded.
  void CCos(double a, double b, double& re, double& im);
  // (e^(iz) - e^(-iz)) / 2i from the rounded steps.
  void CSin(double a, double b, double& re, double& im);
  // CSin divided by CCos through CDiv.
  void CTan(double a, double b, double& re, double& im);
  // (e^z - e^-z) / 2, (e^z + e^-z) / 2, and their quotient.
  void CSinh(double a, double b, double& re, double& im);
  void CCosh(double a, double b, double& re, double& im);
  void CTanh(double a, double b, double& re, double& im);
  // re = atan(b / a), im = 0: no quadrant correction, and a = 0 fails.
  void CArgRad(double a, double b, double& re, double& im);
  // re = (180 / 3.14159265358979) * atan(b / a), read back from its
  // 15-digit text and then rounded; im = 0.
  void CArgDeg(double a, double b, double& re, double& im);

 private:
  // Runs a guarded body: a fault stops it and shows "Invalid input.".
  template <class Body>
  void Guarded(Body body);
  // e^(a + jb) into (pr, pi) and e^(-a - jb) into (qr, qi), each rounded as
  // CExp rounds: the two halves every hyperbolic function is built from.
  void CExpPair(double a, double b, double& pr, double& pi, double& qr, double& qi);

  platform::MessageBox& box_;
};

}  // namespace velmora::complex
