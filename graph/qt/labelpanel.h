#pragma once

#include <functional>
#include <optional>
#include <string>

#include <QFont>
#include <QFrame>

#include "graph/labelstyle.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace velmora::graph_qt {

// `frkur`: the label panel inside the graph window, the in-window twin of
// the `frmLabel` dialog. Its frame `frmText` ("Insert Label") holds the
// label's text (`Text2`), "Font" (`cmdFont`), the colour button (`cmdBoja`,
// "Click to change color"), the angle (`txtAngle`, "Angle (deg)", between
// "Rotate text:" and "Deg"), "&Transparent" (`Check1`), "OK" (`cmdLabel`)
// and "Cancel" (`cmdTextCancel`). The panel only keeps what is chosen; its
// buttons are wired to the window's cmdFontL, cmdBojaL, cmdLabelL and
// cmdTextCancelL, and a click on txtAngle to the angle's input box.
class LabelPanel final : public QFrame {
  Q_OBJECT

 public:
  using FontChooser = std::function<std::optional<QFont>(const QFont& initial)>;
  using ColourChooser = std::function<std::optional<graph::Colour>(graph::Colour initial)>;

  explicit LabelPanel(QWidget* parent = nullptr);

  QGroupBox* frmText() const { return frmText_; }
  QLineEdit* Text2() const { return text2_; }
  QPushButton* cmdFont() const { return cmdFont_; }
  QPushButton* cmdBoja() const { return cmdBoja_; }
  QLineEdit* txtAngle() const { return txtAngle_; }
  QLabel* Label1() const { return label1_; }
  QLabel* Label2() const { return label2_; }
  QCheckBox* Check1() const { return check1_; }
  QPushButton* cmdLabel() const { return cmdLabel_; }
  QPushButton* cmdTextCancel() const { return cmdTextCancel_; }

  // Null choosers: the platform's font and colour dialogs.
  void SetFontChooser(FontChooser chooser) { chooseFont_ = std::move(chooser); }
  void SetColourChooser(ColourChooser chooser) { chooseColour_ = std::move(chooser); }

  // A new label: the text offered, angle 0, font and colour kept from the
  // last one, as the dialog does.
  void Start(const std::string& text);
  // The font and colour dialogs; a cancelled dialog changes nothing.
  void ChooseFont();
  void ChooseColour();
  void SetAngle(double degrees);
  double Angle() const { return angle_; }
  // The label as the panel now describes it.
  graph::LabelStyle Style() const;

 signals:
  // A click on txtAngle.
  void AngleClicked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowColour();

  FontChooser chooseFont_;
  ColourChooser chooseColour_;
  QFont font_;
  graph::Colour colour_ = 0;
  double angle_ = 0;
  QGroupBox* frmText_ = nullptr;
  QLineEdit* text2_ = nullptr;
  QPushButton* cmdFont_ = nullptr;
  QPushButton* cmdBoja_ = nullptr;
  QLineEdit* txtAngle_ = nullptr;
  QLabel* label1_ = nullptr;
  QLabel* label2_ = nullptr;
  QCheckBox* check1_ = nullptr;
  QPushButton* cmdLabel_ = nullptr;
  QPushButton* cmdTextCancel_ = nullptr;
};

}  // namespace velmora::graph_qt
