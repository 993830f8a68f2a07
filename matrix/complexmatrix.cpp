#include "matrix/complexmatrix.h"

#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::matrix {
namespace {

using complex::ComplexNumber;
using expr::Fault;

constexpr std::int16_t kSizeError = 2;
constexpr std::int16_t kMaxSize = 50;
constexpr const char* kEmptySize = " - Enter: Rows x Cols (e.g. 2x3).";
constexpr const char* kTooSmall = " must have at least 1 row and 1 column.";
constexpr const char* kTooLarge = " maximum size is 50x50.";

// An array larger than this is an out-of-memory failure of Allocate. The
// calculator itself never goes past 50 x 50; only counts set by hand can.
constexpr long kMaxEntries = 1L << 18;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

ComplexNumber& ComplexMatrix::Entry(int row, int col) {
  if (row < 0 || col < 0 || row >= arrayRows_ || col >= arrayCols_) throw Fault(Fault::kSubscriptOutOfRange);
  return entries_[static_cast<std::size_t>(row) * static_cast<std::size_t>(arrayCols_) +
                  static_cast<std::size_t>(col)];
}

const ComplexNumber& ComplexMatrix::Entry(int row, int col) const {
  if (row < 0 || col < 0 || row >= arrayRows_ || col >= arrayCols_) throw Fault(Fault::kSubscriptOutOfRange);
  return entries_[static_cast<std::size_t>(row) * static_cast<std::size_t>(arrayCols_) +
                  static_cast<std::size_t>(col)];
}

ComplexNumber ComplexMatrix::Item(int row, int col) const {
  ComplexNumber copy;
  copy.CopyRectText(Entry(row, col));
  return copy;
}

void ComplexMatrix::SetItem(int row, int col, const ComplexNumber& value) {
  Entry(row, col).CopyRectText(value);
}

ComplexNumber ComplexMatrix::Determinant() const {
  ComplexNumber copy;
  if (hasDeterminant_) copy.CopyRectText(determinant_);
  return copy;
}

void ComplexMatrix::SetDeterminant(const ComplexNumber& value) {
  if (!hasDeterminant_) {
    determinant_ = ComplexNumber();
    hasDeterminant_ = true;
  }
  determinant_.CopyRectText(value);
}

void ComplexMatrix::SetSizeText(std::string text) {
  sizeText_ = std::move(text);
  ParseSize();
}

void ComplexMatrix::ParseSize() {
  if (sizeText_.empty()) {
    errDescription_ = kEmptySize;
    return;
  }
  // Digits collect in a buffer; the first other character closes the row
  // count, later ones are skipped, and the rest of the digits are the columns.
  std::string buffer;
  bool rowsClosed = false;
  try {
    for (char c : sizeText_) {
      if (IsDigit(c)) {
        buffer.push_back(c);
      } else if (!rowsClosed) {
        numRows_ = expr::ToShort(expr::TextToNumber(buffer));
        buffer.clear();
        rowsClosed = true;
      }
    }
    numCollumns_ = expr::ToShort(expr::TextToNumber(buffer));
  } catch (const Fault&) {
    // A count past the 16-bit range is past the largest size too.
    errNumber_ = kSizeError;
    errDescription_ = kTooLarge;
    return;
  }
  if (numRows_ < 0 || numCollumns_ < 0) {
    errNumber_ = kSizeError;
    errDescription_ = kTooSmall;
  } else if (numRows_ > kMaxSize || numCollumns_ >= kMaxSize + 1) {
    errNumber_ = kSizeError;
    errDescription_ = kTooLarge;
  }
}

void ComplexMatrix::Init() {
  isDefined_ = true;
  isSquare_ = numRows_ == numCollumns_;
  Allocate();
  determinant_ = ComplexNumber();
  determinant_.SetRectText("1 + j0");
  hasDeterminant_ = true;
}

void ComplexMatrix::Allocate() {
  Free();
  const long rows = numRows_;
  const long cols = numCollumns_;
  // A size of no rows or no columns holds nothing addressable; a size too
  // large to hold fails quietly, as allocation failures here always have.
  if (rows <= 0 || cols <= 0 || rows * cols > kMaxEntries) return;
  entries_.assign(static_cast<std::size_t>(rows * cols), ComplexNumber());
  arrayRows_ = static_cast<int>(rows);
  arrayCols_ = static_cast<int>(cols);
}

void ComplexMatrix::Free() {
  entries_.clear();
  entries_.shrink_to_fit();
  arrayRows_ = 0;
  arrayCols_ = 0;
}

void ComplexMatrix::Terminate() {
  Free();
  name_.clear();
  sizeText_.clear();
  errDescription_.clear();
  numRows_ = 0;
  numCollumns_ = 0;
  isSquare_ = isDefined_ = isDisplay_ = isSolution_ = isInverse_ = false;
  tag_ = 0;
  errNumber_ = 0;
  determinant_ = ComplexNumber();
  hasDeterminant_ = false;
}

void ComplexMatrix::StartOperation(std::int16_t rows, std::int16_t cols) {
  errNumber_ = 0;
  errDescription_.clear();
  numRows_ = rows;
  numCollumns_ = cols;
  Init();
}

void ComplexMatrix::SetOverflow() {
  errNumber_ = Fault::kOverflow;
  errDescription_ = expr::FaultDescription(Fault::kOverflow);
}

bool ComplexMatrix::Store(int row, int col, ComplexNumber& value, std::int32_t precision) {
  value.FormatRectangular(precision);
  SetItem(row, col, value);
  return true;
}

void ComplexMatrix::Add(const ComplexMatrix& a, const ComplexMatrix& b, std::int32_t precision) {
  StartOperation(a.NumRows(), a.NumCollumns());
  for (int i = 0; i < numRows_; ++i) {
    for (int j = 0; j < numCollumns_; ++j) {
      ComplexNumber t;
      if (!t.Add(a.Item(i, j), b.Item(i, j))) return SetOverflow();
      Store(i, j, t, precision);
    }
  }
}

void ComplexMatrix::Subtract(const ComplexMatrix& a, const ComplexMatrix& b, std::int32_t precision) {
  StartOperation(a.NumRows(), a.NumCollumns());
  for (int i = 0; i < numRows_; ++i) {
    for (int j = 0; j < numCollumns_; ++j) {
      ComplexNumber t;
      if (!t.Subtract(a.Item(i, j), b.Item(i, j))) return SetOverflow();
      Store(i, j, t, precision);
    }
  }
}

void ComplexMatrix::Multiply(const ComplexMatrix& a, const ComplexMatrix& b, std::int32_t precision) {
  StartOperation(a.NumRows(), b.NumCollumns());
  ComplexNumber t;
  for (int i = 0; i < numRows_; ++i) {
    for (int j = 0; j < numCollumns_; ++j) {
      // The running sum lives in the entry itself and is printed after every
      // term, but the next term is added to its numbers, not to its text.
      ComplexNumber& sum = Entry(i, j);
      for (int k = 0; k < a.NumCollumns(); ++k) {
        if (!t.Multiply(a.Item(i, k), b.Item(k, j))) return SetOverflow();
        if (!sum.Add(sum, t)) return SetOverflow();
        sum.FormatRectangular(precision);
      }
    }
  }
}

void ComplexMatrix::ScalarMultiply(const ComplexMatrix& a, const ComplexNumber& r, std::int32_t precision) {
  StartOperation(a.NumRows(), a.NumCollumns());
  for (int i = 0; i < numRows_; ++i) {
    for (int j = 0; j < numCollumns_; ++j) {
      ComplexNumber t;
      if (!t.Multiply(a.Item(i, j), r)) return SetOverflow();
      Store(i, j, t, precision);
    }
  }
}

void ComplexMatrix::ScalarDivide(const ComplexMatrix& a, const ComplexNumber& r, std::int32_t precision) {
  StartOperation(a.NumRows(), a.NumCollumns());
  for (int i = 0; i < numRows_; ++i) {
    for (int j = 0; j < numCollumns_; ++j) {
      // A failed division keeps its fault in the quotient, which then prints
      // whatever it held: 0 for a new number.
      ComplexNumber t;
      t.Divide(a.Item(i, j), r);
      Store(i, j, t, precision);
    }
  }
}

void ComplexMatrix::AddColumn(const ComplexMatrix& a, int col, int col2, std::int32_t precision) {
  StartOperation(a.NumRows(), a.NumCollumns());
  for (int i = 0; i < numRows_; ++i) {
    ComplexNumber t;
    if (!t.Add(a.Item(i, col), a.Item(i, col2))) return SetOverflow();
    Store(i, col, t, precision);
  }
}

void ComplexMatrix::AddRow(const ComplexMatrix& a, int row, int row2, std::int32_t precision) {
  StartOperation(a.NumRows(), a.NumCollumns());
  for (int j = 0; j < numCollumns_; ++j) {
    ComplexNumber t;
    if (!t.Add(a.Item(row, j), a.Item(row2, j))) return SetOverflow();
    Store(row, j, t, precision);
  }
}

void ComplexMatrix::ScalarMultiplyColumn(const ComplexMatrix& a, const ComplexNumber& r, int col,
                                         std::int32_t precision) {
  StartOperation(a.NumRows(), a.NumCollumns());
  for (int i = 0; i < numRows_; ++i) {
    ComplexNumber t;
    if (!t.Multiply(a.Item(i, col), r)) return SetOverflow();
    Store(i, col, t, precision);
  }
}

void ComplexMatrix::ScalarMultiplyRow(const ComplexMatrix& a, const ComplexNumber& r, int row,
                                      std::int32_t precision) {
  StartOperation(a.NumRows(), a.NumCollumns());
  for (int j = 0; j < numCollumns_; ++j) {
    ComplexNumber t;
    if (!t.Multiply(a.Item(row, j), r)) return SetOverflow();
    Store(row, j, t, precision);
  }
}

}  // namespace velmora::matrix
