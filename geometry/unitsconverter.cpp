#include "geometry/unitsconverter.h"

#include <charconv>
#include <string>

#include "base/asciicase.h"
#include "expr/fault.h"
#include "expr/numtext.h"
#include "geometry/real.h"
#include "geometry/solver.h"

namespace velmora::geometry {
namespace {

using platform::MessageBox;

constexpr std::string_view kInvalid = "Invalid input.";

// Angles by the exact relations, counted per degree.
constexpr std::array<Unit, 5> kAngles = {{
    {"Degree ( ° )", "deg", 1.0},
    {"Grad ( g )", "grad", 10.0 / 9.0},
    {"Minute ( ' )", "min", 60.0},
    {"Radian ( rad )", "rad", kPi / 180.0},
    {"Second ( '' )", "sec", 3600.0},
}};

// Lengths and areas per meter and per square meter, to the few digits the
// program keeps (so 1 inch is 1 / 39.36996 m, not 0.0254 m).
constexpr std::array<Unit, 7> kLengths = {{
    {"Foot ( ft )", "ft", 3.28083},
    {"Inch ( in )", "in", 39.36996},
    {"Meter ( m )", "m", 1.0},
    {"Mile ( mil )", "mile", 1.0 / 1609.344},
    {"Nautic mile ( M )", "nmi", 1.0 / 1852.0},
    {"Parsec ( pc )", "pc", 1.0 / 3.085678e16},
    {"Yard ( yd )", "yd", 1.09361},
}};

constexpr std::array<Unit, 6> kAreas = {{
    {"Foot ² ( ft ² )", "ft2", 10.76391},
    {"Inch ² ( in ² )", "in2", 1550.003},
    {"Meter ² ( m ² )", "m2", 1.0},
    {"Mile ² ( mil ² )", "mile2", 1.0 / 2589988.0},
    {"Acre", "acre", 1.0 / 4046.825},
    {"Yard ² ( yd ² )", "yd2", 1.19599},
}};

constexpr std::array<ListPage, 3> kPages = {{
    {"angles", "Text1", "List1", "List2", "Text2", "Command3", kAngles},
    {"areas", "Text3", "List3", "List4", "Text4", "Command4", kAreas},
    {"lengths", "Text5", "List5", "List6", "Text6", "Command5", kLengths},
}};

constexpr std::array<CopyEntry, 2> kDegreesCopy = {{
    {"mnurad", "Radians", "txtRad"},
    {"mnugrad", "Grads", "txtGrad"},
}};

struct DegreesCheck {
  std::string_view box;
  std::string_view refusal;
};
// The texts speak of "> 0", but zero passes.
constexpr std::array<DegreesCheck, 3> kDegreesChecks = {{
    {"txtDeg", "Invalid input for Degrees (Deg > 0)."},
    {"txtMin", "Invalid input for Minutes (Min > 0)."},
    {"txtSec", "Invalid input for Seconds (Sec > 0)."},
}};

}  // namespace

std::span<const ListPage> ListPages() { return kPages; }

const ListPage* FindListPage(std::string_view word) {
  for (const auto& p : kPages) {
    if (base::EqualsIgnoringCase(p.word, word)) return &p;
  }
  return nullptr;
}

std::size_t FindUnit(const ListPage& page, std::string_view keyOrPosition) {
  for (std::size_t i = 0; i < page.units.size(); ++i) {
    if (base::EqualsIgnoringCase(page.units[i].key, keyOrPosition)) return i;
  }
  std::size_t position = 0;
  const auto* end = keyOrPosition.data() + keyOrPosition.size();
  const auto [ptr, ec] = std::from_chars(keyOrPosition.data(), end, position);
  if (ec == std::errc() && ptr == end && position >= 1 && position <= page.units.size()) return position - 1;
  return page.units.size();
}

ListConverter::ListConverter(const ListPage& page) : page_(&page), boxes_({page.input, page.output}) {}

void ListConverter::ChooseFrom(std::size_t unit, MessageBox& box) {
  if (unit >= page_->units.size()) return;
  from_ = unit;
  boxes_.SetText(page_->input, "1");
  Convert(box);
}

void ListConverter::ChooseTo(std::size_t unit, MessageBox& box) {
  if (unit >= page_->units.size()) return;
  to_ = unit;
  boxes_.SetText(page_->input, "1");
  Convert(box);
}

void ListConverter::Convert(MessageBox& box) {
  Trapped(box, kInvalid, [&] {
    const Real value = boxes_.Read(page_->input);
    if (value < 0) {
      ShowMessage(box, kInvalid);
      return;
    }
    if (from_ == to_) {
      boxes_.SetText(page_->output, boxes_.Text(page_->input));
      return;
    }
    const Real result = value / page_->units[from_].factor * page_->units[to_].factor;
    boxes_.SetText(page_->output, expr::NumberToText(result.Value()));
  });
}

std::span<const CopyEntry> DegreesCopyMenu() { return kDegreesCopy; }

void ConvertDegrees(BoxRecord& boxes, MessageBox& box) {
  Trapped(box, kInvalid, [&] {
    for (const auto& check : kDegreesChecks) {
      if (boxes.Read(check.box) < 0) {
        ShowMessage(box, check.refusal);
        boxes.SetText(check.box, "");
        return;
      }
    }
    const Real degrees = boxes.Read("txtDeg") + boxes.Read("txtMin") / 60 + boxes.Read("txtSec") / 3600;
    boxes.Write("txtRad", degrees * kPi / 180);
    boxes.Write("txtGrad", degrees * 10 / 9);
  });
}

}  // namespace velmora::geometry
