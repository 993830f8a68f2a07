#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include <QWidget>

#include "geometry/boxrecord.h"
#include "geometry/unitsconverter.h"
#include "platform/clipboard.h"
#include "platform/messagebox.h"
#include "platform/toolwindows.h"

class QLineEdit;
class QListWidget;
class QMenu;
class QPushButton;
class QTabWidget;

namespace velmora::geometry_qt {

// The services of the converter. `clipboard` may be null: the window then
// uses the application's clipboard. `tools` reaches the Evaluator window.
struct ConvertServices {
  platform::MessageBox* messages = nullptr;  // required
  platform::ToolWindows* tools = nullptr;    // null: no hand-back to the Evaluator
  platform::Clipboard* clipboard = nullptr;
};

// `frmConvert`, the "Geometry Units Converter": angles, areas and lengths
// converted between the units of two lists, and degrees, minutes and seconds
// turned into radians and grads. A result can be copied, or written into
// the Evaluator window while that window is open.
class FrmConvert final : public QWidget {
  Q_OBJECT

 public:
  FrmConvert(QWidget* owner, ConvertServices services);
  ~FrmConvert() override;

  QTabWidget* Tabs() const { return tabs_; }
  // A box of any page by its control name ("Text1", "txtRad", ...), or null.
  QLineEdit* Box(std::string_view name) const;
  QListWidget* List(std::string_view name) const;
  QPushButton* Button(std::string_view name) const;

  // Chooses an entry of a list (`List1` to `List6`), as a click does.
  void ChooseUnit(std::string_view list, int row);
  // Converts the list page whose input box is `input`, as Enter does.
  void ConvertPage(std::size_t page);
  // The Degrees page's conversion.
  void ConvertDegrees();
  // `mnuCopy1` of the Degrees page, made anew.
  QMenu* MakeCopyMenu();
  // Copies a box's text to the clipboard.
  void CopyBox(std::string_view name);
  // Writes the current page's result into the Evaluator window; nothing
  // when that window is not open.
  void SendToEvaluator();
  // Whether the Evaluator window is there to take a result; the hand-back
  // buttons follow it.
  bool EvaluatorOpen() const;
  void RefreshHandBack();

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  struct ListTab {
    std::unique_ptr<geometry::ListConverter> converter;
    QLineEdit* input = nullptr;
    QLineEdit* output = nullptr;
    QListWidget* from = nullptr;
    QListWidget* to = nullptr;
  };
  QWidget* MakeListTab(ListTab& tab);
  QWidget* MakeDegreesTab();
  void ShowList(ListTab& tab);
  void ReadDegrees();
  void ShowDegrees();
  QPushButton* MakeHandBack(QWidget* parent);

  ConvertServices services_;
  std::unique_ptr<platform::Clipboard> ownClipboard_;
  QTabWidget* tabs_ = nullptr;
  std::vector<ListTab> lists_;
  geometry::BoxRecord degrees_{geometry::kDegreesBoxes};
  std::vector<QPushButton*> handBack_;
};

}  // namespace velmora::geometry_qt
