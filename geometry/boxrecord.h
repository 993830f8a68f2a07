#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "geometry/real.h"

namespace velmora::geometry {

// The text boxes of a calculator page, by control name, in a fixed order. The
// solvers read and write these texts exactly as the window's boxes hold them;
// a window only binds its text boxes to the record.
class BoxRecord {
 public:
  explicit BoxRecord(std::initializer_list<std::string_view> names);
  explicit BoxRecord(std::span<const std::string_view> names);

  std::size_t Size() const { return boxes_.size(); }
  const std::string& NameAt(std::size_t i) const { return boxes_.at(i).first; }
  const std::string& TextAt(std::size_t i) const { return boxes_.at(i).second; }
  bool Has(std::string_view name) const;

  // The text of a box. An unknown name is a programming error and throws
  // std::out_of_range.
  const std::string& Text(std::string_view name) const;
  void SetText(std::string_view name, std::string text);

  // The box's number, read with the leading-number parse ("" is 0, "12abc"
  // is 12); a number beyond the range of a double faults.
  Real Read(std::string_view name) const;
  // Writes the value rounded to `places` decimals, as every result box of the
  // calculator shows it.
  void Write(std::string_view name, Real value, int places = 5);

  // Empties every box.
  void Clear();

 private:
  std::pair<std::string, std::string>& Find(std::string_view name);
  const std::pair<std::string, std::string>& Find(std::string_view name) const;

  std::vector<std::pair<std::string, std::string>> boxes_;
};

}  // namespace velmora::geometry
