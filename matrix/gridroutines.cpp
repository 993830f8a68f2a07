#include "matrix/gridroutines.h"

#include <array>

#include "expr/fault.h"

namespace velmora::matrix {
namespace {

using complex::ComplexNumber;

constexpr const char* kErrorTitle = "Error";
constexpr std::int16_t kMaxSize = 50;

// A message is prefix + name + suffix.
struct ErrorMessage {
  int code;
  const char* prefix;
  const char* suffix;
};

constexpr std::array<ErrorMessage, 10> kErrorMessages = {{
    {2, "Invalid number of columns in ", ". A valid matrix must have at least 1 column."},
    {3, "Invalid number of rows and columns in ", ". A valid matrix must have at least 1 row and 1 column."},
    {4, "You entered an invalid order for ", "."},
    {5, "", " must be the same order to perform addition."},
    {6, "", " must be the same order to perform subtraction."},
    {7, "In order to multiply ",
     " the number of columns in the first matrix must equal the number of rows in the second matrix."},
    {10, "", " must be square to compute the inverse and determinant."},
    {11, "", " must be square compute the solution set."},
    {12, "The number of rows in ", " must equal the number of rows in the solution set."},
    {13, "The ", " must be a valid complex number."},
}};

}  // namespace

void GridRoutines::ShowError(int code, const std::string& name, const std::string& text) {
  std::string message;
  if (code == 1 || code == 14) {
    message = name + text;
  } else {
    const ErrorMessage* found = nullptr;
    for (const auto& m : kErrorMessages)
      if (m.code == code) found = &m;
    if (found == nullptr) return;
    message = found->prefix + name + found->suffix;
  }
  // The program asks for exclamation and information at once; the warning
  // icon is the one a desktop can draw.
  messages_.Show(message, kErrorTitle, platform::MsgIcon::Exclamation);
}

void GridRoutines::CheckSizes(const ComplexMatrix& a, const ComplexMatrix& b, int operation) {
  ErrCode = 0;
  ErrName.clear();
  ErrText.clear();
  const ComplexMatrix* tooLarge = nullptr;
  if (a.NumRows() > kMaxSize || a.NumCollumns() > kMaxSize) {
    tooLarge = &a;
  } else if (b.NumRows() > kMaxSize || b.NumCollumns() > kMaxSize) {
    tooLarge = &b;
  }
  if (tooLarge != nullptr) {
    ErrCode = 14;
    ErrName = tooLarge->Name();
    ErrText = " maximum size is 50x50.";
    return;
  }
  const std::string both = a.Name() + " and " + b.Name();
  switch (operation) {
    case kAdd:
    case kSubtract:
      if (a.NumRows() != b.NumRows() || a.NumCollumns() != b.NumCollumns()) {
        ErrCode = operation == kAdd ? 5 : 6;
        ErrName = both;
        ErrText = " must be the same size.";
      }
      break;
    case kMultiply:
      if (a.NumCollumns() != b.NumRows()) {
        ErrCode = 7;
        ErrName = both;
        ErrText = "[A] must have the same number of columns as [B] has rows.";
      }
      break;
    case kDeterminantInverse:
      if (!a.IsSquare()) {
        ErrCode = 10;
        ErrName = a.Name();
        ErrText = " must be a square matrix.";
      }
      break;
    case kSolutionSet:
      if (!a.IsSquare()) {
        ErrCode = 11;
        ErrName = a.Name();
        ErrText = " must be a square matrix.";
      } else if (b.NumRows() != a.NumRows() || b.NumCollumns() >= 2) {
        ErrCode = 12;
        ErrName = b.Name();
        ErrText =
            " [A] and [B] must have the same number of rows, and number of matrix [B] columns must be 1.";
      }
      break;
    default: break;
  }
}

int GridRoutines::GridToMatrix(const Grid& grid, ComplexMatrix& matrix) {
  ReadFailed = false;
  try {
    // One scratch number for all cells: a malformed cell leaves it as the
    // cell before it left it.
    ComplexNumber scratch;
    for (int r = 0; r < matrix.NumRows(); ++r) {
      for (int c = 0; c < matrix.NumCollumns(); ++c) {
        const std::string& text = grid.TextMatrix(r, c);
        if (text.empty()) {
          messages_.Show("All cells must contain an entry.", "Invalid Entry in Matrix " + matrix.Name(),
                         platform::MsgIcon::Exclamation);
          return 1;
        }
        scratch.SetRectText(text);
        if (scratch.ParseOverflowed()) {
          // A number too large to hold would go in as whatever the scratch
          // number was left with: the entry is refused instead.
          messages_.Show(complex::kInvalidComplexNumber, "Invalid Entry in Matrix " + matrix.Name(),
                         platform::MsgIcon::Exclamation);
          return 1;
        }
        matrix.SetItem(r, c, scratch);
      }
    }
  } catch (const expr::Fault&) {
    messages_.Show("Invalid Matrix order.", kErrorTitle, platform::MsgIcon::Exclamation);
    ReadFailed = true;
  }
  return 0;
}

void MatrixToGrid(const ComplexMatrix& matrix, Grid& grid) {
  for (int r = 0; r < matrix.NumRows(); ++r)
    for (int c = 0; c < matrix.NumCollumns(); ++c) grid.SetTextMatrix(r, c, matrix.Item(r, c).RectText());
}

void SizeGrid(const ComplexMatrix& matrix, Grid& grid) {
  grid.SetRows(matrix.NumRows());
  grid.SetCols(matrix.NumCollumns());
  grid.SetCellAlignment(Grid::kAlignCenter);
  if (grid.Rows() > 0 && grid.Cols() > 0) {
    grid.SetRow(0);
    grid.SetCol(0);
  }
}

std::string ShowDeterminant(const ComplexMatrix& matrix) { return matrix.Determinant().RectText(); }

void TransposeGrid(const Grid& grid, Grid& swap) {
  const Grid source = grid;  // read first: the swap grid may be the grid itself
  swap.SetRows(0);
  swap.SetCols(source.Rows());
  swap.SetRows(source.Cols());
  for (int r = 0; r < swap.Rows(); ++r)
    for (int c = 0; c < swap.Cols(); ++c) swap.SetTextMatrix(r, c, source.TextMatrix(c, r));
}

void SwapRowsGrid(const Grid& grid, int r1, int r2, Grid& swap) {
  const Grid source = grid;
  const int rows[2] = {r1, r2};
  for (int row : rows)
    if (row < 0 || row >= source.Rows()) throw expr::Fault(expr::Fault::kSubscriptOutOfRange);
  CopyGrid(source, swap);
  for (int c = 0; c < source.Cols(); ++c) {
    swap.SetTextMatrix(r1, c, source.TextMatrix(r2, c));
    swap.SetTextMatrix(r2, c, source.TextMatrix(r1, c));
  }
}

void SwapColumnsGrid(const Grid& grid, int c1, int c2, Grid& swap) {
  const Grid source = grid;
  const int cols[2] = {c1, c2};
  for (int col : cols)
    if (col < 0 || col >= source.Cols()) throw expr::Fault(expr::Fault::kSubscriptOutOfRange);
  CopyGrid(source, swap);
  for (int r = 0; r < source.Rows(); ++r) {
    swap.SetTextMatrix(r, c1, source.TextMatrix(r, c2));
    swap.SetTextMatrix(r, c2, source.TextMatrix(r, c1));
  }
}

void CopyGrid(const Grid& grid, Grid& copy) {
  if (&grid == &copy) return;
  copy.SetRows(0);
  copy.SetCols(grid.Cols());
  copy.SetRows(grid.Rows());
  for (int r = 0; r < grid.Rows(); ++r)
    for (int c = 0; c < grid.Cols(); ++c) copy.SetTextMatrix(r, c, grid.TextMatrix(r, c));
}

void PasteGrid(const Grid& copy, Grid& grid) { CopyGrid(copy, grid); }

void AddZeros(bool addZeros, Grid& grid1, Grid& grid2) {
  if (!addZeros) return;
  for (Grid* grid : {&grid1, &grid2})
    for (int r = 0; r < grid->Rows(); ++r)
      for (int c = 0; c < grid->Cols(); ++c)
        if (grid->TextMatrix(r, c).empty()) grid->SetTextMatrix(r, c, "0");
}

}  // namespace velmora::matrix
