#include "matrix/matrixcalculator.h"

#include <algorithm>

#include "expr/fault.h"
#include "matrix/traceequation.h"

namespace velmora::matrix {
namespace {

using platform::MsgIcon;

std::int16_t Count(int n) { return static_cast<std::int16_t>(std::min(n, 32767)); }

}  // namespace

MatrixCalculator::MatrixCalculator(platform::MessageBox& messages)
    : Context(messages), Routines(messages), messages_(messages) {
  MatrixA.SetName("Matrix A");
  MatrixB.SetName("Matrix B");
  MatrixS.SetName("Matrix S");
  MatrixI.SetName("Matrix I");
}

bool MatrixCalculator::SizeFromGrid(ComplexMatrix& m, const std::string& name, const Grid& grid) {
  m.Terminate();
  m.SetName(name);
  m.SetNumRows(Count(grid.Rows()));
  m.SetNumCollumns(Count(grid.Cols()));
  m.Init();
  if (m.NumRows() < 1 || m.NumCollumns() < 1) {
    Routines.ShowError(3, name, std::string());
    return false;
  }
  return true;
}

bool MatrixCalculator::EnterValues() {
  Context.Precision = PrecisionAtGo(txtPrecision);
  if (!SizeFromGrid(MatrixA, "Matrix A", grdGrid1)) return false;
  switch (Operation) {
    case kAdd:
    case kSubtract:
    case kMultiply:
    case kSolutionSet:
      if (!SizeFromGrid(MatrixB, "Matrix B", grdGrid2)) return false;
      break;
    case kScalarMultiply:
    case kScalarDivide:
      Scalar = complex::ComplexNumber();
      Scalar.SetRectText(txtEntry2);
      if (Scalar.ErrNumber() != 0) {
        Routines.ShowError(13, "Scalar Constant", Scalar.ErrDescription());
        txtEntry2.clear();
        return false;
      }
      break;
    default:
      MatrixB.Terminate();
      MatrixB.SetName("Matrix_F");
      MatrixB.SetNumRows(MatrixA.NumRows());
      MatrixB.SetNumCollumns(1);
      MatrixB.Init();
      break;
  }
  MatrixS.SetName("Matrix S");
  MatrixS.SetIsDisplay(true);
  MatrixI.Terminate();
  MatrixI.SetName("Matrix I");
  MatrixI.SetIsDisplay(false);
  MatrixI.SetIsInverse(true);
  MatrixI.SetNumRows(MatrixA.NumRows());
  MatrixI.SetNumCollumns(MatrixA.NumCollumns());
  MatrixI.Init();
  Routines.CheckSizes(MatrixA, MatrixB, Operation);
  if (Routines.ErrCode != 0) {
    Routines.ShowError(Routines.ErrCode, Routines.ErrName, Routines.ErrText);
    return false;
  }
  return true;
}

bool MatrixCalculator::ShowResult(const ComplexMatrix& m, Grid& grid) {
  if (m.ErrNumber() != 0) {
    messages_.Show(m.ErrDescription(), "Error", MsgIcon::Critical);
    return false;
  }
  SizeGrid(m, grid);
  MatrixToGrid(m, grid);
  return true;
}

bool MatrixCalculator::Go2() {
  try {
    AddZeros(chNule, grdGrid1, grdGrid2);
    if (Routines.GridToMatrix(grdGrid1, MatrixA) == 1 || Routines.ReadFailed) return false;
    if (Operation == kAdd || Operation == kSubtract || Operation == kMultiply || Operation == kSolutionSet) {
      if (Routines.GridToMatrix(grdGrid2, MatrixB) == 1 || Routines.ReadFailed) return false;
    }
    const std::int32_t p = Context.Precision;
    switch (Operation) {
      case kAdd: MatrixS.Add(MatrixA, MatrixB, p); return ShowResult(MatrixS, grdSolution);
      case kSubtract: MatrixS.Subtract(MatrixA, MatrixB, p); return ShowResult(MatrixS, grdSolution);
      case kMultiply: MatrixS.Multiply(MatrixA, MatrixB, p); return ShowResult(MatrixS, grdSolution);
      case kScalarMultiply:
        MatrixS.ScalarMultiply(MatrixA, Scalar, p);
        return ShowResult(MatrixS, grdSolution);
      case kScalarDivide: MatrixS.ScalarDivide(MatrixA, Scalar, p); return ShowResult(MatrixS, grdSolution);
      case kDeterminantInverse:
      case kSolutionSet: {
        MatrixS.SetNumRows(MatrixA.NumRows());
        MatrixS.SetNumCollumns(1);
        MatrixS.Init();
        const bool wasSingular = Context.SingularFlag;
        Context.SingularFlag = false;
        MatrixI.GaussJordan(MatrixA, MatrixB, MatrixS, Context);
        const bool singular = Context.SingularFlag;
        Context.SingularFlag = Context.SingularFlag || wasSingular;
        ShowResult(MatrixI, grdInverse);
        txtDet = ShowDeterminant(MatrixI);
        if (Operation == kSolutionSet) ShowResult(MatrixS, grdSolution);
        return !singular;
      }
      default: return false;
    }
  } catch (const expr::Fault& fault) {
    messages_.Show(fault.what(), kCalculatorTitle, MsgIcon::Critical);
    return false;
  }
}

bool MatrixCalculator::DeterminantInverse(const Grid& grid, ComplexMatrix& m, const std::string& name) {
  Context.Precision = PrecisionAtGo(txtPrecision);
  if (!SizeFromGrid(m, name, grid)) return false;
  if (!m.IsSquare()) {
    Routines.ShowError(10, name, " must be a square matrix.");
    return false;
  }
  AddZeros(chNule, grdGrid1, grdGrid2);
  if (Routines.GridToMatrix(grid, m) == 1 || Routines.ReadFailed) return false;
  ComplexMatrix f;
  f.SetName("Matrix_F");
  f.SetNumRows(m.NumRows());
  f.SetNumCollumns(1);
  f.Init();
  MatrixS.SetNumRows(m.NumRows());
  MatrixS.SetNumCollumns(1);
  MatrixS.Init();
  MatrixI.Terminate();
  MatrixI.SetName("Matrix I");
  MatrixI.SetIsInverse(true);
  MatrixI.SetNumRows(m.NumRows());
  MatrixI.SetNumCollumns(m.NumCollumns());
  MatrixI.Init();
  MatrixI.GaussJordan(m, f, MatrixS, Context);
  ShowResult(MatrixI, grdInverse);
  txtDet = ShowDeterminant(MatrixI);
  return true;
}

bool MatrixCalculator::Guarded(const char* title, bool (MatrixCalculator::*step)(int), int tab) {
  try {
    return (this->*step)(tab);
  } catch (const expr::Fault& fault) {
    messages_.Show(fault.what(), title, MsgIcon::Critical);
    return false;
  }
}

bool MatrixCalculator::Adjoint(int tab) {
  return Guarded("Adjoint Matrix", &MatrixCalculator::AdjointStep, tab);
}

bool MatrixCalculator::AdjointStep(int tab) {
  if (tab != kTabA) {
    messages_.Show("Select matrix [A] to compute adjoint matrix.", kCalculatorTitle, MsgIcon::Information);
    return false;
  }
  if (grdGrid1.Rows() != grdGrid1.Cols()) {
    messages_.Show("Matrix [A] must be the square matrix.", kCalculatorTitle, MsgIcon::Information);
    return false;
  }
  Context.SingularFlag = false;
  if (!DeterminantInverse(grdGrid1, MatrixA, "Matrix A") || Context.SingularFlag) return false;
  // The adjoint is the inverse times the determinant.
  MatrixS.ScalarMultiply(MatrixI, MatrixI.Determinant(), Context.Precision);
  if (!ShowResult(MatrixS, grdSwap)) return false;
  SwapCaption = "Adjoint";
  return true;
}

bool MatrixCalculator::Trace(int tab) { return Guarded("Trace", &MatrixCalculator::TraceStep, tab); }

bool MatrixCalculator::TraceStep(int tab) {
  if (tab != kTabA && tab != kTabB) {
    messages_.Show("Select matrix [A] or [B] to trace.", kCalculatorTitle, MsgIcon::Information);
    return false;
  }
  const Grid& grid = tab == kTabA ? grdGrid1 : grdGrid2;
  const TraceSum sum = TraceCells(grid);
  if (!sum.held) {
    messages_.Show(complex::kInvalidComplexNumber,
                   std::string("Invalid Entry in Matrix ") + (tab == kTabA ? "Matrix A" : "Matrix B"),
                   MsgIcon::Exclamation);
    return false;
  }
  messages_.Show(TraceMessage(tab == kTabA ? "[A]" : "[B]", sum), "Trace", MsgIcon::Information);
  return true;
}

bool MatrixCalculator::CharacteristicEquation(int tab) {
  return Guarded("Characteristic Equation", &MatrixCalculator::EquationStep, tab);
}

bool MatrixCalculator::EquationStep(int tab) {
  if (tab != kTabA && tab != kTabB) {
    messages_.Show("Select matrix [A] or [B].", kCalculatorTitle, MsgIcon::Information);
    return false;
  }
  const Grid& grid = tab == kTabA ? grdGrid1 : grdGrid2;
  const int n = grid.Rows();
  if (grid.Cols() != n || (n != 2 && n != 3)) {
    messages_.Show(kEquationOnlyForSmall, kCalculatorTitle, MsgIcon::Information);
    return false;
  }
  // The determinant comes from a run of the inverse; a singular matrix shows
  // its message and leaves the determinant box as that run left it.
  if (!DeterminantInverse(grid, tab == kTabA ? MatrixA : MatrixB, tab == kTabA ? "Matrix A" : "Matrix B"))
    return false;
  const EquationCoefficients k = CoefficientsOf(grid);
  txtEq = n == 2 ? CharacteristicEquation2(k.tr, k.ti, txtDet)
                 : CharacteristicEquation3(k.tr, k.ti, k.mr, k.mi, txtDet);
  return true;
}

MatrixReport MatrixCalculator::Report() const {
  return MatrixReport{Operation, grdGrid1,  grdGrid2, grdSolution, grdInverse,
                      grdSwap,   txtEntry2, txtDet,   txtEq};
}

}  // namespace velmora::matrix
