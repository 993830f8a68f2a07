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

bool MatrixCalculator::SizeFromText(ComplexMatrix& m, const std::string& name, const std::string& text) {
  m.Terminate();
  m.SetName(name);
  m.SetSizeText(text);
  if (m.ErrNumber() != 0) {
    // The texts of a size error begin with a blank: they follow the name.
    Routines.ShowError(1, name, m.ErrDescription());
    return false;
  }
  m.Init();
  if (m.NumRows() < 1 || m.NumCollumns() < 1) {
    Routines.ShowError(3, name, std::string());
    return false;
  }
  return true;
}

bool MatrixCalculator::ReadScalar() {
  Scalar = complex::ComplexNumber();
  Scalar.SetRectText(txtEntry2);
  if (Scalar.ErrNumber() != 0) {
    Routines.ShowError(13, "Scalar Constant", Scalar.ErrDescription());
    txtEntry2.clear();
    return false;
  }
  return true;
}

// Where B is not read from an entry or a grid, it is the one-column matrix F
// of A's height.
void MatrixCalculator::MakeColumnB() {
  MatrixB.Terminate();
  MatrixB.SetName("Matrix_F");
  MatrixB.SetNumRows(MatrixA.NumRows());
  MatrixB.SetNumCollumns(1);
  MatrixB.Init();
}

// The result S and the inverse work matrix I, sized from A, then the check
// that the sizes of A and B suit the operation (with its message when not).
bool MatrixCalculator::PrepareResults() {
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

MatrixCalculator::ContinueFocus MatrixCalculator::Continue(const std::string& entry1,
                                                           const std::string& entry2) {
  Context.Precision = PrecisionAtGo(txtPrecision);
  if (!SizeFromText(MatrixA, "Matrix A", entry1)) return ContinueFocus::Entry1;
  switch (Operation) {
    case kAdd:
    case kSubtract:
    case kMultiply:
      if (!SizeFromText(MatrixB, "Matrix B", entry2)) return ContinueFocus::Entry2;
      break;
    case kScalarMultiply:
    case kScalarDivide:
      txtEntry2 = entry2;
      if (!ReadScalar()) return ContinueFocus::Entry2;
      break;
    default: MakeColumnB(); break;
  }
  if (!PrepareResults()) return ContinueFocus::Entry1;
  SizeGrid(MatrixA, grdGrid1);
  if (Operation == kAdd || Operation == kSubtract || Operation == kMultiply || Operation == kSolutionSet)
    SizeGrid(MatrixB, grdGrid2);
  return ContinueFocus::None;
}

bool MatrixCalculator::LineStep(bool column, int index, const std::function<void(std::int32_t)>& compute) {
  Context.Precision = PrecisionAtGo(txtPrecision);
  if (!SizeFromGrid(MatrixA, "Matrix A", grdGrid1)) return false;
  const int count = column ? grdGrid1.Rows() : grdGrid1.Cols();
  if (index < 0 || index >= (column ? grdGrid1.Cols() : grdGrid1.Rows())) {
    messages_.Show(column ? "Invalid input for the column." : "Invalid input for the row.", kCalculatorTitle,
                   MsgIcon::Information);
    return false;
  }
  // The grid is parked while the target line, its empty cells made 0, goes
  // through the operation; only that line is written back.
  const Grid parked = grdGrid1;
  for (int k = 0; k < count; ++k) {
    const int r = column ? k : index;
    const int c = column ? index : k;
    if (grdGrid1.TextMatrix(r, c).empty()) grdGrid1.SetTextMatrix(r, c, "0");
  }
  AddZeros(chNule, grdGrid1, grdGrid2);
  const bool read = Routines.GridToMatrix(grdGrid1, MatrixA) != 1 && !Routines.ReadFailed;
  grdGrid1 = parked;
  if (!read) return false;
  compute(Context.Precision);
  if (MatrixS.ErrNumber() != 0) {
    messages_.Show(MatrixS.ErrDescription(), "Error", MsgIcon::Critical);
    return false;
  }
  for (int k = 0; k < count; ++k) {
    const int r = column ? k : index;
    const int c = column ? index : k;
    grdGrid1.SetTextMatrix(r, c, MatrixS.Item(r, c).RectText());
  }
  return true;
}

bool MatrixCalculator::MultiplyLine(bool column, int index, const std::string& factor) {
  try {
    complex::ComplexNumber r;
    r.SetRectText(factor);
    return LineStep(column, index, [&](std::int32_t p) {
      if (column) {
        MatrixS.ScalarMultiplyColumn(MatrixA, r, index, p);
      } else {
        MatrixS.ScalarMultiplyRow(MatrixA, r, index, p);
      }
    });
  } catch (const expr::Fault& fault) {
    messages_.Show(fault.what(), column ? "Multiply Column" : "Multiply Row", MsgIcon::Critical);
    return false;
  }
}

bool MatrixCalculator::SubmitLine(bool column, int from, int to) {
  try {
    const int limit = column ? grdGrid1.Cols() : grdGrid1.Rows();
    if (from < 0 || from >= limit) {
      messages_.Show(column ? "Invalid input for the column." : "Invalid input for the row.",
                     kCalculatorTitle, MsgIcon::Information);
      return false;
    }
    return LineStep(column, to, [&](std::int32_t p) {
      if (column) {
        MatrixS.AddColumn(MatrixA, to, from, p);
      } else {
        MatrixS.AddRow(MatrixA, to, from, p);
      }
    });
  } catch (const expr::Fault& fault) {
    messages_.Show(fault.what(), column ? "Submit Column" : "Submit Row", MsgIcon::Critical);
    return false;
  }
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
      if (!ReadScalar()) return false;
      break;
    default: MakeColumnB(); break;
  }
  return PrepareResults();
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
