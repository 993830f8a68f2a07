#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "complex/complexnumber.h"
#include "matrix/complexmatrix.h"
#include "matrix/grid.h"
#include "matrix/gridroutines.h"
#include "matrix/htmlreport.h"
#include "matrix/matrixcontext.h"
#include "platform/messagebox.h"

namespace velmora::matrix {

// The Matrix Calculator without its window: the matrices, the grids and the
// boxes the calculations read and fill, and the steps of a calculation. The
// window binds its controls to these members; velmora-cli drives it directly.
class MatrixCalculator {
 public:
  // The tabs of the grids, by index.
  enum Tab { kTabA = 0, kTabB = 1, kTabSolution = 2, kTabInverse = 3, kTabSwap = 4 };

  explicit MatrixCalculator(platform::MessageBox& messages);
  MatrixCalculator(const MatrixCalculator&) = default;

  // Where the keyboard goes after "&Continue": nowhere when the sizes were
  // taken, else the entry box whose text was refused.
  enum class ContinueFocus { None, Entry1, Entry2 };

  // "&Continue": the size of [A] from the first entry box and, by the
  // operation, the size of [B] or the scalar from the second; the sizes are
  // checked for the operation and the operand grids take them (keeping the
  // texts of the cells that remain).
  ContinueFocus Continue(const std::string& entry1, const std::string& entry2);

  // The sizes are taken from the operand grids as they stand (the route
  // after a file is opened or cells are pasted), the scalar from the second
  // entry box, and the sizes are checked for the operation. False after a
  // message.
  bool EnterValues();

  // The calculation of the current operation on the grid contents: empty
  // cells filled with zeros when asked, cells moved into the matrices, the
  // operation run and its results put in the result grids and boxes. False
  // after a message, and always after a singular matrix.
  bool Go2();

  // Tools on the grid of a tab. Each shows its message and returns false
  // when it cannot run.
  bool Adjoint(int tab);                 // into grdSwap
  bool Trace(int tab);                   // a message box with the trace
  bool CharacteristicEquation(int tab);  // into txtEq

  // Multiply a column (row) of [A] by a complex factor, or add the column
  // (row) `from` to `to`, both 0-based: the line is computed through the
  // matrix operations and written back into the grid, whose other cells
  // stay as they were. False after a message.
  bool MultiplyLine(bool column, int index, const std::string& factor);
  bool SubmitLine(bool column, int from, int to);

  // What "Publish as HTML..." reports for the current operation.
  MatrixReport Report() const;

  MatrixContext Context;
  GridRoutines Routines;
  std::int16_t Operation = kAdd;
  ComplexMatrix MatrixA;
  ComplexMatrix MatrixB;
  ComplexMatrix MatrixS;
  ComplexMatrix MatrixI;
  complex::ComplexNumber Scalar;
  Grid grdGrid1{2, 2};             // matrix [A] as typed
  Grid grdGrid2{2, 2};             // matrix [B] as typed
  Grid grdSolution;                // the result of the last operation
  Grid grdInverse;                 // the inverse of [A] (or its adjoint)
  Grid grdSwap;                    // the [T] tab: a transposed or swapped copy
  Grid grdCopy;                    // the grid the Copy and Paste commands keep
  std::string txtPrecision = "3";  // decimal places of printed results, 1 to 15
  std::string txtEntry2;           // the scalar of the scalar operations, as typed
  std::string txtDet;              // the determinant, as printed
  std::string txtEq;               // the characteristic equation, as printed
  std::string SwapCaption;         // the caption of the [T] tab
  bool chNule = false;             // "Add zeros in empty cells"

 private:
  bool SizeFromText(ComplexMatrix& m, const std::string& name, const std::string& text);
  bool LineStep(bool column, int index, const std::function<void(std::int32_t)>& compute);
  bool SizeFromGrid(ComplexMatrix& m, const std::string& name, const Grid& grid);
  bool ReadScalar();
  void MakeColumnB();
  bool PrepareResults();
  bool DeterminantInverse(const Grid& grid, ComplexMatrix& m, const std::string& name);
  bool Guarded(const char* title, bool (MatrixCalculator::*step)(int), int tab);
  bool AdjointStep(int tab);
  bool TraceStep(int tab);
  bool EquationStep(int tab);
  bool ShowResult(const ComplexMatrix& m, Grid& grid);

  platform::MessageBox& messages_;
};

}  // namespace velmora::matrix
