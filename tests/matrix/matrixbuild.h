#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "complex/complexnumber.h"
#include "complex/printshortcut.h"
#include "matrix/complexmatrix.h"
#include "matrix/grid.h"

namespace velmora::matrix::testing {

using Rows = std::vector<std::vector<std::string>>;

// A matrix of the given name whose entries are the given texts.
inline ComplexMatrix MakeMatrix(const std::string& name, const Rows& rows) {
  ComplexMatrix m;
  m.SetName(name);
  m.SetNumRows(static_cast<std::int16_t>(rows.size()));
  m.SetNumCollumns(static_cast<std::int16_t>(rows.empty() ? 0 : rows[0].size()));
  m.Init();
  for (std::size_t r = 0; r < rows.size(); ++r) {
    for (std::size_t c = 0; c < rows[r].size(); ++c) {
      complex::ComplexNumber z;
      z.SetRectText(rows[r][c]);
      m.SetItem(static_cast<int>(r), static_cast<int>(c), z);
    }
  }
  return m;
}

// An initialised, empty matrix of a size.
inline ComplexMatrix Sized(const std::string& name, int rows, int cols) {
  ComplexMatrix m;
  m.SetName(name);
  m.SetNumRows(static_cast<std::int16_t>(rows));
  m.SetNumCollumns(static_cast<std::int16_t>(cols));
  m.Init();
  return m;
}

// The rectangular texts of the entries as Item reads them.
inline Rows Texts(const ComplexMatrix& m) {
  Rows rows(static_cast<std::size_t>(m.NumRows()));
  for (int r = 0; r < m.NumRows(); ++r)
    for (int c = 0; c < m.NumCollumns(); ++c)
      rows[static_cast<std::size_t>(r)].push_back(m.Item(r, c).RectText());
  return rows;
}

inline Grid MakeGrid(const Rows& rows) {
  Grid g(static_cast<int>(rows.size()), rows.empty() ? 0 : static_cast<int>(rows[0].size()));
  for (std::size_t r = 0; r < rows.size(); ++r)
    for (std::size_t c = 0; c < rows[r].size(); ++c)
      g.SetTextMatrix(static_cast<int>(r), static_cast<int>(c), rows[r][c]);
  return g;
}

inline Rows GridTexts(const Grid& g) {
  Rows rows(static_cast<std::size_t>(g.Rows()));
  for (int r = 0; r < g.Rows(); ++r)
    for (int c = 0; c < g.Cols(); ++c) rows[static_cast<std::size_t>(r)].push_back(g.TextMatrix(r, c));
  return rows;
}

// Turns the print shortcuts off for the life of the object.
class TextOnly {
 public:
  TextOnly() : saved_(complex::PrintShortcuts()) { complex::SetPrintShortcuts(false); }
  ~TextOnly() { complex::SetPrintShortcuts(saved_); }
  TextOnly(const TextOnly&) = delete;
  TextOnly& operator=(const TextOnly&) = delete;

 private:
  bool saved_;
};

}  // namespace velmora::matrix::testing
