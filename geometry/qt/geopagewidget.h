#pragma once

#include <map>
#include <string>

#include <QWidget>

#include "geometry/geopage.h"
#include "platform/messagebox.h"

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QRadioButton;

namespace velmora::geometry_qt {

class FigureView;

// One page of the Geometry Calculator's tab control: the option buttons of
// its figures, a text box for every measure, Calculate (which opens the
// "Select Case:" menu of the selected figure) and Reset, the help texts and
// the figure. The boxes are bound to the page's record: a case reads what is
// typed and every box shows what the solver wrote.
class GeoPageWidget final : public QWidget {
  Q_OBJECT

 public:
  GeoPageWidget(std::string_view caption, platform::MessageBox& messages, QWidget* parent = nullptr);

  geometry::GeoPage& Page() { return page_; }
  QLineEdit* Box(std::string_view name) const;
  FigureView* Figure() const { return figure_; }
  QPushButton* CalculateButton() const { return calculate_; }
  QPushButton* ResetButton() const { return reset_; }
  // The option button with this caption, or null.
  QRadioButton* Option(std::string_view caption) const;
  // The help texts as the page shows them, one line each.
  QString HelpText() const;

  // The "Select Case:" menu of the selected figure, made anew: its heading
  // and one action per entry, named after the entry's control.
  QMenu* MakeMenu();
  // Runs the menu entry with this control name, as choosing it does; false
  // when the selected figure's menu has none.
  bool Choose(std::string_view entry);
  // Selects the figure of the option with this caption ("" for a general
  // triangle), as clicking its option button does.
  void SelectOption(std::string_view option);
  // The Reset button.
  void Reset();
  // The "Convert to Radians" and "Rad" buttons: the angle box in degrees
  // turned into radians in place.
  void ConvertToRadians(std::string_view box);

  // Draws the figure from the boxes again.
  void Redraw();

 signals:
  // A case was solved; `text` is its result line for the window's log.
  void Solved(const QString& text);

 private:
  void BuildBoxes(QGridLayout* grid);
  void BuildOptions(QBoxLayout* column);
  void ReadBoxes();
  void ShowBoxes();
  void ShowKind();

  geometry::GeoPage page_;
  platform::MessageBox& messages_;
  std::map<std::string, QLineEdit*, std::less<>> boxes_;
  std::map<std::string, QLabel*, std::less<>> labels_;
  std::map<std::string, QWidget*, std::less<>> extras_;  // the radians buttons, by their box
  std::map<std::string, QRadioButton*, std::less<>> options_;
  QCheckBox* shade_ = nullptr;
  QPushButton* calculate_ = nullptr;
  QPushButton* reset_ = nullptr;
  QLabel* help_ = nullptr;
  QLabel* title_ = nullptr;
  FigureView* figure_ = nullptr;
};

}  // namespace velmora::geometry_qt
