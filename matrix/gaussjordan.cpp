// ComplexMatrix::GaussJordan: inverse, determinant and the solution of a
// system in one pass of Gauss-Jordan elimination with full pivoting.
//
// Every move of a value is a copy through its text, and every intermediate
// result is printed to 15 places before it is stored, so each working value
// is cut to 15 decimals and 15 significant digits at each step. That cut is
// the only tolerance: there is no epsilon, and a stage that finds no entry
// with a modulus above exactly 0 makes the matrix singular.
#include <cstdint>
#include <vector>

#include "complex/complexnumber.h"
#include "matrix/complexmatrix.h"
#include "matrix/matrixcontext.h"

namespace velmora::matrix {
namespace {

using complex::ComplexNumber;

constexpr std::int32_t kWorkingPlaces = 0;  // prints at the full 15 places

ComplexNumber FromText(const char* text) {
  ComplexNumber z;
  z.SetRectText(text);
  return z;
}

void SwapEntries(ComplexMatrix& m, int r1, int c1, int r2, int c2, ComplexNumber& dum) {
  dum.CopyRectText(m.Item(r1, c1));
  m.SetItem(r1, c1, m.Item(r2, c2));
  m.SetItem(r2, c2, dum);
}

}  // namespace

void ComplexMatrix::GaussJordan(const ComplexMatrix& a, const ComplexMatrix& b, ComplexMatrix& x,
                                MatrixContext& context) {
  const int n = a.NumRows();

  ComplexMatrix mc;
  mc.SetName("Copy of MC");
  mc.SetNumRows(a.NumRows());
  mc.SetNumCollumns(a.NumCollumns());
  mc.Init();
  ComplexMatrix mf;
  mf.SetName("Copy of MF");
  mf.SetNumRows(b.NumRows());
  mf.SetNumCollumns(1);
  mf.Init();
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) mc.SetItem(i, j, a.Item(i, j));
    mf.SetItem(i, 0, b.Item(i, 0));
  }

  std::vector<std::int16_t> indxr(static_cast<std::size_t>(n), 0);
  std::vector<std::int16_t> indxc(static_cast<std::size_t>(n), 0);
  std::vector<std::int16_t> ipiv(static_cast<std::size_t>(n), 0);
  const ComplexNumber one = FromText("1+j0");
  const ComplexNumber zero = FromText("0+j0");
  ComplexNumber det = FromText("1+j0");
  ComplexNumber pivot;
  ComplexNumber dum;
  ComplexNumber t1;
  ComplexNumber t2;
  ComplexNumber quotient;
  // Not reset between rounds: a round that finds no candidate reuses the
  // previous pivot, which is what the singular test detects.
  int irow = 0;
  int icol = 0;

  auto singular = [&] {
    context.Messages.Show(a.Name() + " is singular and cannot be inverted.", "Error",
                          platform::MsgIcon::Exclamation);
    context.SingularFlag = true;
  };
  auto at = [](std::vector<std::int16_t>& v, int i) -> std::int16_t& {
    return v[static_cast<std::size_t>(i)];
  };

  for (int i = 0; i < n; ++i) {
    double big = 0;
    for (int j = 0; j < n; ++j) {
      if (at(ipiv, j) == 1) continue;
      for (int k = 0; k < n; ++k) {
        if (at(ipiv, k) > 1) return singular();
        if (at(ipiv, k) != 1) {
          const double modulus = mc.Item(j, k).Modulus();
          if (big < modulus) {
            irow = j;
            icol = k;
            big = modulus;
          }
        }
      }
    }
    ++at(ipiv, icol);
    at(indxr, i) = static_cast<std::int16_t>(irow);
    at(indxc, i) = static_cast<std::int16_t>(icol);
    if (irow != icol) {
      det.Negate();
      for (int l = 0; l < n; ++l) SwapEntries(mc, irow, l, icol, l, dum);
      SwapEntries(mf, irow, 0, icol, 0, dum);
    }
    pivot.CopyRectText(mc.Item(icol, icol));
    // The running determinant is its own first operand: its imaginary part
    // is computed with the real part just written.
    det.Multiply(det, pivot);
    det.FormatRectangular(kWorkingPlaces);
    mc.SetItem(icol, icol, one);
    // A zero pivot does not stop the run: the quotient keeps the fault and
    // the entry takes the quotient's last text.
    for (int l = 0; l < n; ++l) {
      quotient.Divide(mc.Item(icol, l), pivot);
      quotient.FormatRectangular(kWorkingPlaces);
      mc.SetItem(icol, l, quotient);
    }
    quotient.Divide(mf.Item(icol, 0), pivot);
    quotient.FormatRectangular(kWorkingPlaces);
    mf.SetItem(icol, 0, quotient);
    for (int ll = 0; ll < n; ++ll) {
      if (ll == icol) continue;
      dum.CopyRectText(mc.Item(ll, icol));
      mc.SetItem(ll, icol, zero);
      for (int l = 0; l < n; ++l) {
        t1.Multiply(mc.Item(icol, l), dum);
        t1.FormatRectangular(kWorkingPlaces);
        t2.Subtract(mc.Item(ll, l), t1);
        t2.FormatRectangular(kWorkingPlaces);
        mc.SetItem(ll, l, t2);
      }
      t1.Multiply(mf.Item(icol, 0), dum);
      t1.FormatRectangular(kWorkingPlaces);
      t2.Subtract(mf.Item(ll, 0), t1);
      t2.FormatRectangular(kWorkingPlaces);
      mf.SetItem(ll, 0, t2);
    }
  }

  // Undo the column interchanges in the reverse order of the pivots.
  for (int l = n - 1; l >= 0; --l) {
    if (at(indxr, l) == at(indxc, l)) continue;
    for (int k = 0; k < n; ++k) SwapEntries(mc, k, at(indxr, l), k, at(indxc, l), dum);
  }

  for (int k = 0; k < n; ++k)
    if (at(ipiv, k) != 1) return singular();

  for (int i = 0; i < n; ++i) {
    ComplexNumber result = mf.Item(i, 0);
    result.FormatRectangular(context.Precision);
    x.SetItem(i, 0, result);
  }
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      ComplexNumber& entry = Entry(i, j);
      entry.CopyRectText(mc.Item(i, j));
      entry.FormatRectangular(context.Precision);
    }
  }
  if (!hasDeterminant_) {
    determinant_ = ComplexNumber();
    hasDeterminant_ = true;
  }
  determinant_.CopyRectText(det);
  determinant_.FormatRectangular(context.Precision);
}

}  // namespace velmora::matrix
