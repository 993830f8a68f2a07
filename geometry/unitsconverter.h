#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "geometry/boxrecord.h"
#include "platform/messagebox.h"

// `frmConvert`, the Geometry Units Converter, without its window: three list
// pages that convert angles, areas and lengths through a base unit, and a
// page that turns degrees, minutes and seconds into radians and grads.
namespace velmora::geometry {

inline constexpr std::string_view kConverterCaption = "Geometry Units Converter";

struct Unit {
  std::string_view caption;  // the list entry
  std::string_view key;      // a short name for velmora-cli
  double factor;             // how many of this unit make one base unit
};

// A list page: its input box, its two lists and its output box.
struct ListPage {
  std::string_view word;  // "angles", "areas", "lengths"
  std::string_view input;
  std::string_view fromList;
  std::string_view toList;
  std::string_view output;
  std::string_view copyButton;  // copies the output box
  std::span<const Unit> units;
};

// The three list pages in tab order: angles, areas, lengths.
std::span<const ListPage> ListPages();
const ListPage* FindListPage(std::string_view word);
// The unit of a page by its key (any case) or its 1-based position in the
// list; the page's unit count when there is none.
std::size_t FindUnit(const ListPage& page, std::string_view keyOrPosition);

inline constexpr std::string_view kCopyCaption = "Copy";
inline constexpr std::string_view kCopyToolTip = "Copy result";

// The state of one list page: its two boxes and the selected entries.
class ListConverter {
 public:
  explicit ListConverter(const ListPage& page);

  const ListPage& Page() const { return *page_; }
  BoxRecord& Boxes() { return boxes_; }
  const BoxRecord& Boxes() const { return boxes_; }
  std::size_t From() const { return from_; }
  std::size_t To() const { return to_; }

  // Choosing an entry in either list sets the input box to "1" and converts,
  // so that the output reads as the factor between the two units.
  void ChooseFrom(std::size_t unit, platform::MessageBox& box);
  void ChooseTo(std::size_t unit, platform::MessageBox& box);

  // Converts the input box into the output box: value / factor(from) *
  // factor(to), not rounded; the same unit on both sides copies the text. A
  // negative value is refused with "Invalid input.".
  void Convert(platform::MessageBox& box);

 private:
  const ListPage* page_;
  BoxRecord boxes_;
  std::size_t from_ = 0;
  std::size_t to_ = 0;
};

// The Degrees page: txtDeg, txtMin, txtSec in; txtRad, txtGrad out.
inline constexpr std::array<std::string_view, 5> kDegreesBoxes = {"txtDeg", "txtMin", "txtSec", "txtRad",
                                                                  "txtGrad"};
// The copy menu of the Degrees page: `Command1` opens `mnuCopy1`.
struct CopyEntry {
  std::string_view name;
  std::string_view caption;
  std::string_view box;
};
std::span<const CopyEntry> DegreesCopyMenu();

// Deg + Min / 60 + Sec / 3600 degrees into radians and grads, each rounded
// to 5 places. A negative box shows its message, is cleared, and nothing is
// converted; zero passes.
void ConvertDegrees(BoxRecord& boxes, platform::MessageBox& box);

}  // namespace velmora::geometry
