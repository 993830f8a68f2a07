#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "complex/complexnumber.h"

namespace velmora::matrix {

struct MatrixContext;

// A rectangular array of complex numbers with a name, a size text, a
// determinant and a few flags: [A], [B], [S] and [I] of the Matrix
// Calculator.
//
// An entry keeps its value as the text of its rectangular form. Reading an
// entry (Item) gives a new number parsed from that text, and storing one
// parses the given number's text, so a value travels with the digits of its
// last print and nothing more.
//
// Size failures land in ErrNumber and ErrDescription; an overflow inside an
// operation sets ErrNumber 6 ("Overflow") and ends that operation. An index
// outside the array is the caller's bounds failure: Item and the operations
// that read through it throw expr::Fault 9.
class ComplexMatrix {
 public:
  ComplexMatrix() = default;

  const std::string& Name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }

  complex::ComplexNumber Item(int row, int col) const;
  void SetItem(int row, int col, const complex::ComplexNumber& value);

  std::int32_t Tag() const { return tag_; }
  void SetTag(std::int32_t tag) { tag_ = tag; }

  // Plain: the array is not touched until Init.
  std::int16_t NumRows() const { return numRows_; }
  void SetNumRows(std::int16_t rows) { numRows_ = rows; }
  std::int16_t NumCollumns() const { return numCollumns_; }
  void SetNumCollumns(std::int16_t cols) { numCollumns_ = cols; }

  // Storing a size text such as "3x4" parses it into the two counts.
  const std::string& SizeText() const { return sizeText_; }
  void SetSizeText(std::string text);

  bool IsSquare() const { return isSquare_; }
  bool IsDefined() const { return isDefined_; }
  void SetIsDefined(bool value) { isDefined_ = value; }
  bool IsDisplay() const { return isDisplay_; }
  void SetIsDisplay(bool value) { isDisplay_ = value; }
  bool IsSolution() const { return isSolution_; }
  void SetIsSolution(bool value) { isSolution_ = value; }
  bool IsInverse() const { return isInverse_; }
  void SetIsInverse(bool value) { isInverse_ = value; }

  // Both copy through the rectangular text, like Item. Before Init (and
  // after Terminate) there is no determinant, and it reads as a new number.
  complex::ComplexNumber Determinant() const;
  void SetDeterminant(const complex::ComplexNumber& value);

  std::int16_t ErrNumber() const { return errNumber_; }
  const std::string& ErrDescription() const { return errDescription_; }

  // Whole-matrix operations: this matrix takes its size from the operands,
  // is initialised (dropping what it held) and receives the result, each
  // entry printed to `precision` places.
  void Add(const ComplexMatrix& a, const ComplexMatrix& b, std::int32_t precision);
  void Subtract(const ComplexMatrix& a, const ComplexMatrix& b, std::int32_t precision);
  void Multiply(const ComplexMatrix& a, const ComplexMatrix& b, std::int32_t precision);
  void ScalarMultiply(const ComplexMatrix& a, const complex::ComplexNumber& r, std::int32_t precision);
  void ScalarDivide(const ComplexMatrix& a, const complex::ComplexNumber& r, std::int32_t precision);
  // Line operations: only the target line is written; every other entry
  // stays empty and reads as 0.
  void AddColumn(const ComplexMatrix& a, int col, int col2, std::int32_t precision);
  void AddRow(const ComplexMatrix& a, int row, int row2, std::int32_t precision);
  void ScalarMultiplyColumn(const ComplexMatrix& a, const complex::ComplexNumber& r, int col,
                            std::int32_t precision);
  void ScalarMultiplyRow(const ComplexMatrix& a, const complex::ComplexNumber& r, int row,
                         std::int32_t precision);

  // Gauss-Jordan elimination with full pivoting: this matrix (initialised
  // n x n by the caller) receives the inverse of A and its determinant, X
  // (initialised n x 1) the solution of A x = B. A singular A shows its
  // message, raises the context's SingularFlag and leaves this matrix and X
  // as they were.
  void GaussJordan(const ComplexMatrix& a, const ComplexMatrix& b, ComplexMatrix& x, MatrixContext& context);

  // Back to the state of a new object.
  void Terminate();
  void Allocate();
  void Free();
  // Marks the matrix defined, sizes the array to NumRows x NumCollumns with
  // new numbers, and sets the determinant to 1.
  void Init();
  // Reads SizeText into NumRows and NumCollumns.
  void ParseSize();

 private:
  complex::ComplexNumber& Entry(int row, int col);
  const complex::ComplexNumber& Entry(int row, int col) const;
  void StartOperation(std::int16_t rows, std::int16_t cols);
  void SetOverflow();
  bool Store(int row, int col, complex::ComplexNumber& value, std::int32_t precision);

  std::string name_;
  std::int16_t numRows_ = 0;
  std::int16_t numCollumns_ = 0;
  std::string sizeText_;
  bool isSquare_ = false;
  bool isDefined_ = false;
  bool isDisplay_ = false;
  bool isSolution_ = false;
  bool isInverse_ = false;
  bool hasDeterminant_ = false;
  complex::ComplexNumber determinant_;
  std::vector<complex::ComplexNumber> entries_;  // row by row
  int arrayRows_ = 0;                            // the shape the array was allocated with
  int arrayCols_ = 0;
  std::int16_t errNumber_ = 0;
  std::string errDescription_;
  std::int32_t tag_ = 0;
};

}  // namespace velmora::matrix
