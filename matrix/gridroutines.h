#pragma once

#include <cstdint>
#include <string>

#include "matrix/complexmatrix.h"
#include "matrix/grid.h"
#include "platform/messagebox.h"

// The routines that join the grids of the Matrix Calculator to its
// matrices: the size checks of an operation and their messages, and the
// moves of cell texts into matrix entries and back.
namespace velmora::matrix {

// The operations of the calculator, by the numbers the size checks use.
enum Operation : std::int16_t {
  kAdd = 1,
  kSubtract = 2,
  kMultiply = 3,
  kScalarMultiply = 4,
  kScalarDivide = 5,
  kDeterminantInverse = 6,
  kSolutionSet = 7,
};

class GridRoutines {
 public:
  explicit GridRoutines(platform::MessageBox& messages) : messages_(messages) {}

  // Builds the message of an error code and shows it (title "Error").
  // Codes without a message show nothing.
  void ShowError(int code, const std::string& name, const std::string& text);

  // Sets ErrCode (0 when the sizes suit the operation), ErrName, ErrText.
  void CheckSizes(const ComplexMatrix& a, const ComplexMatrix& b, int operation);

  // Moves the cells into the matrix, NumRows x NumCollumns of them. Returns
  // 1 after the message about an empty cell; a grid smaller than the matrix
  // shows "Invalid Matrix order." and sets ReadFailed.
  int GridToMatrix(const Grid& grid, ComplexMatrix& matrix);

  bool ReadFailed = false;
  std::int16_t ErrCode = 0;
  std::string ErrName;
  std::string ErrText;

 private:
  platform::MessageBox& messages_;
};

// Every cell (r, c) takes the rectangular text of Item(r, c).
void MatrixToGrid(const ComplexMatrix& matrix, Grid& grid);
// The grid takes the matrix's size, centred cells and cell (0, 0) current.
void SizeGrid(const ComplexMatrix& matrix, Grid& grid);
// The text the determinant box shows.
std::string ShowDeterminant(const ComplexMatrix& matrix);

// The swap grid takes the transpose of the grid.
void TransposeGrid(const Grid& grid, Grid& swap);
// The swap grid takes a copy of the grid with two rows (columns) exchanged.
void SwapRowsGrid(const Grid& grid, int r1, int r2, Grid& swap);
void SwapColumnsGrid(const Grid& grid, int c1, int c2, Grid& swap);
// All cell texts with the size, to the copy grid and back.
void CopyGrid(const Grid& grid, Grid& copy);
void PasteGrid(const Grid& copy, Grid& grid);
// With "Add zeros in empty cells" ticked, every empty cell of both operand
// grids becomes "0".
void AddZeros(bool addZeros, Grid& grid1, Grid& grid2);

}  // namespace velmora::matrix
