#pragma once

#include <functional>
#include <optional>

#include <QDialog>
#include <QFont>

#include "graph/labelstyle.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace velmora::graph {
class GraphWindow;
}

namespace velmora::graph_qt {

// `frmLabel`, "Label": the label's text, its font ("Font"), colour ("Font
// Color:", click to change), the angle of its text ("Rotate text:", asked
// by an input box on a click) and whether it is transparent. "Insert"
// (`cmdLabel`) hands it to the window, which holds it over the plot; an
// empty text shows "Enter Graph Label text." and the dialog stays.
class FrmLabel final : public QDialog {
  Q_OBJECT

 public:
  using FontChooser = std::function<std::optional<QFont>(const QFont& initial)>;
  using ColourChooser = std::function<std::optional<graph::Colour>(graph::Colour initial)>;

  // Null choosers: the platform's dialogs.
  FrmLabel(graph::GraphWindow& window, const std::string& text, FontChooser font = nullptr,
           ColourChooser colour = nullptr, QWidget* parent = nullptr);

  QLineEdit* Text2() const { return text2_; }
  QPushButton* cmdFont() const { return cmdFont_; }
  QPushButton* cmdBoja() const { return cmdBoja_; }
  QLineEdit* txtAngle() const { return txtAngle_; }
  QCheckBox* Check1() const { return check1_; }
  QPushButton* cmdLabel() const { return cmdLabel_; }
  QPushButton* cmdTextCancel() const { return cmdTextCancel_; }
  // The label as the dialog now describes it.
  graph::LabelStyle Style() const;
  // A click on txtAngle: the angle's input box.
  void AskAngle();
  // The angle set as an answer to that box would set it.
  void SetAngle(double degrees);

 signals:
  // The label is in hand over the plot.
  void Inserted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Insert();
  void ChooseFont();
  void ChooseColour();

  graph::GraphWindow& window_;
  FontChooser chooseFont_;
  ColourChooser chooseColour_;
  QFont font_;
  graph::Colour colour_ = 0;
  double angle_ = 0;
  QLineEdit* text2_ = nullptr;
  QPushButton* cmdFont_ = nullptr;
  QPushButton* cmdBoja_ = nullptr;
  QLineEdit* txtAngle_ = nullptr;
  QCheckBox* check1_ = nullptr;
  QPushButton* cmdLabel_ = nullptr;
  QPushButton* cmdTextCancel_ = nullptr;
};

}  // namespace velmora::graph_qt
