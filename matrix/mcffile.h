#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>

#include "matrix/grid.h"

// The matrix file (.mcf): the cell texts of a grid as plain text, CR LF at
// the end of every line. Line 1 is the size, " R  C " (each count printed
// with a blank for its sign and one after it); then one line per cell, row
// by row, left to right, holding the cell's text exactly, empty or not.
namespace velmora::matrix {

inline constexpr const char* kMcfFilter = "Matrix Calculator Files (*.mcf)|*.mcf";

// The bytes of the file for a grid.
std::string McfText(const Grid& grid);

// Writes the file; an existing file is replaced whole or not at all
// (base::WriteFileAtomically), so a failed write never leaves half a matrix.
// Returns false when the file cannot be written.
bool SaveGrid(const std::filesystem::path& path, const Grid& grid);

// Reads a file into the grid. The grid starts as 1 x 1 and empty; the two
// numbers at the top (free form, blanks or commas between them) set its rows
// and columns as they are read; then each whole line is a cell. A missing or
// malformed file ends the load quietly with the grid as far as it got, and a
// file with too few lines leaves the remaining cells empty.
void LoadGrid(const std::filesystem::path& path, Grid& grid);
void ReadMcf(std::istream& in, Grid& grid);

// Exchanges two grids through the scratch files tmp1.mcf and tmp2.mcf in
// `folder`, with both grids' redraw off meanwhile. The files stay. When the
// folder cannot be written the grids stay as they are and false comes back.
bool SwapGridsThroughFiles(const std::filesystem::path& folder, Grid& grid1, Grid& grid2);

}  // namespace velmora::matrix
