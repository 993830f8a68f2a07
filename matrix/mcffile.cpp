#include "matrix/mcffile.h"

#include <fstream>
#include <istream>
#include <sstream>

#include "base/atomicfile.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::matrix {
namespace {

using expr::Fault;

constexpr const char* kLineEnd = "\r\n";

// A count as the print statement writes a number: a blank (or the minus
// sign) before the digits and one blank after them.
std::string PrintCount(int n) {
  std::string digits = std::to_string(n < 0 ? -static_cast<long>(n) : static_cast<long>(n));
  return (n < 0 ? "-" : " ") + digits + " ";
}

// One line as the line reader takes it: up to CR LF, a lone LF or a lone CR;
// the last line needs no end. False at the end of the file.
bool ReadWholeLine(std::istream& in, std::string& line) {
  line.clear();
  if (in.peek() == std::char_traits<char>::eof()) return false;
  for (;;) {
    const int c = in.get();
    if (c == std::char_traits<char>::eof()) return true;
    if (c == '\n') return true;
    if (c == '\r') {
      if (in.peek() == '\n') in.get();
      return true;
    }
    line.push_back(static_cast<char>(c));
  }
}

// One free-form numeric field: blanks and line ends before it are skipped,
// and it ends at a blank, a comma or the end of the line. Faults at the end
// of the file and for a field that is not a number.
double ReadNumber(std::istream& in) {
  int c = in.peek();
  while (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
    in.get();
    c = in.peek();
  }
  if (c == std::char_traits<char>::eof()) throw Fault(Fault::kTypeMismatch);
  std::string field;
  while (c != std::char_traits<char>::eof() && c != ' ' && c != '\t' && c != ',' && c != '\r' && c != '\n') {
    field.push_back(static_cast<char>(in.get()));
    c = in.peek();
  }
  if (c == ',') in.get();
  if (!expr::IsNumericText(field)) throw Fault(Fault::kTypeMismatch);
  return expr::TextToNumber(field);
}

}  // namespace

std::string McfText(const Grid& grid) {
  std::string text = PrintCount(grid.Rows()) + PrintCount(grid.Cols()) + kLineEnd;
  for (int r = 0; r < grid.Rows(); ++r) {
    for (int c = 0; c < grid.Cols(); ++c) {
      text += grid.TextMatrix(r, c);
      text += kLineEnd;
    }
  }
  return text;
}

bool SaveGrid(const std::filesystem::path& path, const Grid& grid) {
  // The cells are read before the file is touched.
  return base::WriteFileAtomically(path, McfText(grid));
}

void ReadMcf(std::istream& in, Grid& grid) {
  grid.SetRows(1);
  grid.SetCols(1);
  grid.Clear();
  try {
    const int rows = expr::ToLong(ReadNumber(in));
    grid.SetRows(rows);
    const int cols = expr::ToLong(ReadNumber(in));
    grid.SetCols(cols);
    // Whatever else stands on the size line is not a cell.
    std::string line;
    if (in.peek() == '\r') {
      in.get();
      if (in.peek() == '\n') in.get();
    } else if (in.peek() == '\n') {
      in.get();
    } else {
      ReadWholeLine(in, line);
    }
    for (int r = 0; r < rows; ++r) {
      grid.SetRow(r);
      for (int c = 0; c < cols; ++c) {
        grid.SetCol(c);
        if (!ReadWholeLine(in, line)) return;  // the end of the file: the rest stays empty
        grid.SetText(line);
      }
    }
  } catch (const Fault&) {
    // a malformed file: the grid stays as far as it got
  }
}

void LoadGrid(const std::filesystem::path& path, Grid& grid) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    grid.SetRows(1);
    grid.SetCols(1);
    grid.Clear();
    return;
  }
  ReadMcf(in, grid);
}

bool SwapGridsThroughFiles(const std::filesystem::path& folder, Grid& grid1, Grid& grid2) {
  const auto tmp1 = folder / "tmp1.mcf";
  const auto tmp2 = folder / "tmp2.mcf";
  grid1.SetRedraw(false);
  grid2.SetRedraw(false);
  // A scratch file that could not be written is never read: an old one left
  // there would bring back a matrix from an earlier run.
  const bool saved = SaveGrid(tmp1, grid1) && SaveGrid(tmp2, grid2);
  if (saved) {
    LoadGrid(tmp1, grid2);
    LoadGrid(tmp2, grid1);
  }
  grid1.SetRedraw(true);
  grid2.SetRedraw(true);
  return saved;
}

}  // namespace velmora::matrix
