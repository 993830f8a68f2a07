#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmora::graph {

// The shapes of a record of the history log.
enum class RecordKind {
  Cartesian,
  Parametric,
  Polar,
  CartesianTangent,
  CartesianNormal,
  ParametricTangent,
  ParametricNormal,
};

// Which record a finished draw writes: a parametric tangent or normal
// request first, then by the function type a Cartesian tangent or normal,
// or the plain record of the type (1 Cartesian, 2 parametric, 3 polar).
RecordKind ChooseRecord(bool tngentaP, bool normalkaP, int functionType, bool tngenta, bool normalka);

// What goes into a record; each shape uses its own fields.
struct RecordFields {
  RecordKind kind = RecordKind::Cartesian;
  std::string function;  // Cartesian and polar: the history form of the typed text; parametric: Y text
  std::string xText;     // parametric: X text
  // Cartesian: the first row of the value table as it stands when the record
  // is written (X cell, Y cell); no row, no line.
  std::optional<std::pair<std::string, std::string>> firstRow;
  // Cartesian tangent and normal.
  std::string fjaT;      // the function the line touches
  std::string x0;        // the point, TngentaX
  std::string y0;        // its value, 5 decimals
  std::string slope;     // Slopka
  std::string lineText;  // the drawn line, the text of txtY
  // Parametric tangent and normal.
  std::string fja1P;  // Y (K)
  std::string fja2P;  // X (K)
  std::string k;      // the point, TngentaXP
  std::string x;      // X (K) at k, 4 decimals
  std::string y;      // Y (K) at k, 4 decimals
  std::string txtX;   // the X text beside the drawn line
};

// " " and 36 underscores: the line that closes every record.
inline constexpr std::string_view kHistorySeparator = " ____________________________________";

// The lines of a record, a blank line first and the separator last.
std::vector<std::string> HistoryRecord(const RecordFields& fields);

// The function text of a Cartesian or polar record: the typed text in lower
// case, with "k" turned back into "x" for a Cartesian function.
std::string HistoryFunctionText(std::string_view typed, bool cartesian);

}  // namespace velmora::graph
