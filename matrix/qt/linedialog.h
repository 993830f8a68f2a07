#pragma once

#include <optional>
#include <string>
#include <utility>

class QWidget;

namespace velmora::matrix_qt {

// The captions of the small dialogs that pick lines of a grid: the swap and
// submit dialog (two line numbers) and the multiply dialog (a line number
// and a complex factor).
struct LineDialogCaptions {
  std::string title;   // "Swap Rows", "Multiply Column", ...
  std::string size;    // "Matrix Size: R x C"
  std::string label1;  // "Swap row:", "Column number:", ...
  std::string label2;  // "with the row:", "Factor:", ...
};

// Asks for the two texts; nothing after Cancel.
class LineDialogs {
 public:
  virtual ~LineDialogs() = default;
  virtual std::optional<std::pair<std::string, std::string>> Ask(const LineDialogCaptions& captions) = 0;
};

// The dialogs as modal QDialogs over `owner`.
class QtLineDialogs final : public LineDialogs {
 public:
  explicit QtLineDialogs(QWidget* owner) : owner_(owner) {}
  std::optional<std::pair<std::string, std::string>> Ask(const LineDialogCaptions& captions) override;

 private:
  QWidget* owner_;
};

}  // namespace velmora::matrix_qt
