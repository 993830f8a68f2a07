#include "complex/complexlibrary.h"

#include <cmath>

#include "complex/complexmessages.h"
#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::complex {
namespace {

using expr::Fault;

// The checked arithmetic, one fault policy for the whole program.
double Square(double x) { return expr::CheckedMul(x, x); }

// Every result of the library is cut to 6 decimal places, ties to even.
double Round6(double x) { return expr::RoundTo(x, 6); }

// The library's pi, as its logarithm computes it.
double Pi() { return std::atan(1.0) * 4.0; }

// The degree factor of the argument, with pi written out to 15 digits.
constexpr double kDegreesPerRadian = 180.0 / 3.14159265358979;

}  // namespace

template <class Body>
void Complex::Guarded(Body body) {
  try {
    body();
  } catch (const Fault&) {
    Show(box_, kInvalidInput);
  }
}

void Complex::CAdd(double a, double b, double c, double d, double& re, double& im) {
  re = Round6(expr::CheckedAdd(a, c));
  im = Round6(expr::CheckedAdd(b, d));
}

void Complex::CSub(double a, double b, double c, double d, double& re, double& im) {
  re = Round6(expr::CheckedSub(a, c));
  im = Round6(expr::CheckedSub(b, d));
}

void Complex::CMul(double a, double b, double c, double d, double& re, double& im) {
  Guarded([&] {
    re = Round6(expr::CheckedSub(expr::CheckedMul(a, c), expr::CheckedMul(b, d)));
    im = Round6(expr::CheckedAdd(expr::CheckedMul(a, d), expr::CheckedMul(b, c)));
  });
}

void Complex::CDiv(double a, double b, double c, double d, double& re, double& im) {
  Guarded([&] {
    // The product goes to its own parts, so a zero divisor leaves the
    // outputs untouched.
    double pr = 0.0;
    double pi = 0.0;
    CMul(a, b, c, -d, pr, pi);
    const double denominator = expr::CheckedAdd(Square(c), Square(d));
    re = Round6(expr::CheckedDiv(pr, denominator));
    im = Round6(expr::CheckedDiv(pi, denominator));
  });
}

void Complex::CAbs(double a, double b, double& m) {
  Guarded([&] { m = Round6(expr::CheckedSqrt(expr::CheckedAdd(Square(a), Square(b)))); });
}

void Complex::CExp(double a, double b, double& re, double& im) {
  Guarded([&] {
    re = Round6(expr::CheckedMul(expr::CheckedExp(a), std::cos(b)));
    im = Round6(expr::CheckedMul(expr::CheckedExp(a), std::sin(b)));
  });
}

void Complex::CLn(double a, double b, double& re, double& im) {
  Guarded([&] {
    double m = 0.0;
    CAbs(a, b, m);
    re = Round6(m == 0.0 ? 0.0 : expr::CheckedLog(m));
    const double pi = Pi();
    double angle = 0.0;
    if (a >= 0.0 && b == 0.0) {
      angle = 0.0;
    } else if (a == 0.0 && b >= 0.0) {
      angle = pi / 2.0;
    } else if (a <= 0.0 && b == 0.0) {
      angle = pi;
    } else if (a == 0.0 && b <= 0.0) {
      angle = 3.0 * pi / 2.0;
    } else {
      // atn(|b/a|) * s + (1 - b/|b|) * (a*pi/|a|) + (1 - a/|a|) * pi/2, term
      // by term: the quadrants come out as atn, pi - atn, atn - pi and
      // 2*pi - atn, so the third quadrant stands apart from the others.
      const double ab = expr::CheckedMul(a, b);
      const double s = expr::CheckedDiv(ab, std::fabs(ab));
      const double first = expr::CheckedMul(std::atan(std::fabs(expr::CheckedDiv(b, a))), s);
      const double second = expr::CheckedMul(expr::CheckedSub(1.0, expr::CheckedDiv(b, std::fabs(b))),
                                             expr::CheckedDiv(expr::CheckedMul(a, pi), std::fabs(a)));
      const double third = expr::CheckedDiv(
          expr::CheckedMul(expr::CheckedSub(1.0, expr::CheckedDiv(a, std::fabs(a))), pi), 2.0);
      angle = expr::CheckedAdd(expr::CheckedAdd(first, second), third);
    }
    im = Round6(angle);
  });
}

void Complex::CLogBase(double a, double b, double c, double d, double& re, double& im) {
  Guarded([&] {
    double nr = 0.0;
    double ni = 0.0;
    double dr = 0.0;
    double di = 0.0;
    CLn(a, b, nr, ni);
    CLn(c, d, dr, di);
    CDiv(nr, ni, dr, di, re, im);
  });
}

void Complex::CPow(double a, double b, double c, double d, double& re, double& im) {
  double lr = 0.0;
  double li = 0.0;
  double tr = 0.0;
  double ti = 0.0;
  CLn(a, b, lr, li);
  CMul(c, d, lr, li, tr, ti);
  CExp(tr, ti, re, im);
}

void Complex::CInv(double a, double b, double& re, double& im) {
  Guarded([&] {
    re = Round6(expr::CheckedDiv(a, expr::CheckedAdd(Square(a), Square(b))));
    im = Round6(expr::CheckedDiv(expr::CheckedMul(b, -1.0), expr::CheckedAdd(Square(a), Square(b))));
  });
}

void Complex::CCos(double a, double b, double& re, double& im) {
  double izr = 0.0;  // i * z = (-b, a)
  double izi = 0.0;
  double pr = 0.0;
  double pi = 0.0;
  double mizr = 0.0;  // -i * z = (b, -a)
  double mizi = 0.0;
  double qr = 0.0;
  double qi = 0.0;
  double sr = 0.0;
  double si = 0.0;
  CMul(a, b, 0.0, 1.0, izr, izi);
  CExp(izr, izi, pr, pi);
  CMul(a, b, 0.0, -1.0, mizr, mizi);
  CExp(mizr, mizi, qr, qi);
  CAdd(pr, pi, qr, qi, sr, si);
  CDiv(sr, si, 2.0, 0.0, re, im);
  re = Round6(re);
  im = Round6(im);
}

void Complex::CSin(double a, double b, double& re, double& im) {
  Guarded([&] {
    double izr = 0.0;
    double izi = 0.0;
    double pr = 0.0;
    double pi = 0.0;
    double mizr = 0.0;
    double mizi = 0.0;
    double qr = 0.0;
    double qi = 0.0;
    double sr = 0.0;
    double si = 0.0;
    CMul(a, b, 0.0, 1.0, izr, izi);
    CExp(izr, izi, pr, pi);
    CMul(a, b, 0.0, -1.0, mizr, mizi);
    CExp(mizr, mizi, qr, qi);
    CAdd(pr, pi, -qr, -qi, sr, si);
    CDiv(sr, si, 0.0, 2.0, re, im);
    re = Round6(re);
    im = Round6(im);
  });
}

void Complex::CTan(double a, double b, double& re, double& im) {
  Guarded([&] {
    double sr = 0.0;
    double si = 0.0;
    double cr = 0.0;
    double ci = 0.0;
    CSin(a, b, sr, si);
    CCos(a, b, cr, ci);
    CDiv(sr, si, cr, ci, re, im);
  });
}

void Complex::CExpPair(double a, double b, double& pr, double& pi, double& qr, double& qi) {
  CExp(a, b, pr, pi);
  CExp(-a, -b, qr, qi);
}

void Complex::CSinh(double a, double b, double& re, double& im) {
  Guarded([&] {
    double pr = 0.0, pi = 0.0, qr = 0.0, qi = 0.0, sr = 0.0, si = 0.0;
    CExpPair(a, b, pr, pi, qr, qi);
    CSub(pr, pi, qr, qi, sr, si);
    CDiv(sr, si, 2.0, 0.0, re, im);
  });
}

void Complex::CCosh(double a, double b, double& re, double& im) {
  Guarded([&] {
    double pr = 0.0, pi = 0.0, qr = 0.0, qi = 0.0, sr = 0.0, si = 0.0;
    CExpPair(a, b, pr, pi, qr, qi);
    CAdd(pr, pi, qr, qi, sr, si);
    CDiv(sr, si, 2.0, 0.0, re, im);
  });
}

void Complex::CTanh(double a, double b, double& re, double& im) {
  Guarded([&] {
    double pr = 0.0, pi = 0.0, qr = 0.0, qi = 0.0;
    double dr = 0.0, di = 0.0, sr = 0.0, si = 0.0;
    CExpPair(a, b, pr, pi, qr, qi);
    CSub(pr, pi, qr, qi, dr, di);
    CAdd(pr, pi, qr, qi, sr, si);
    CDiv(dr, di, sr, si, re, im);
  });
}

void Complex::CArgRad(double a, double b, double& re, double& im) {
  Guarded([&] {
    re = Round6(std::atan(expr::CheckedDiv(b, a)));
    im = 0.0;
  });
}

void Complex::CArgDeg(double a, double b, double& re, double& im) {
  Guarded([&] {
    const double degrees = expr::CheckedMul(kDegreesPerRadian, std::atan(expr::CheckedDiv(b, a)));
    // The value goes through its printed form before it is rounded.
    re = Round6(expr::TextToNumber(expr::NumberToText(degrees)));
    im = 0.0;
  });
}

}  // namespace velmora::complex
