#pragma once

#include <functional>
#include <optional>
#include <string>

#include <QDialog>

#include "graph/surface.h"
#include "platform/messagebox.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace velmora::graph {
class GraphWindow;
}

namespace velmora::graph_qt {

// `frmMini`, "Draw Integral & Average": the range of the fill (Xmin, Xmax,
// both expressions), "Draw Function" (`Check2`), "Draw Average" (`Check1`,
// which enables the value and the band's colour). OK hands the request to
// the window; a refused average keeps the dialog open.
class FrmMini final : public QDialog {
  Q_OBJECT

 public:
  // Asks a colour under a title; nothing when cancelled.
  using ColourChooser =
      std::function<std::optional<graph::Colour>(graph::Colour initial, const QString& title)>;

  // `choose` null: the platform's colour dialog.
  FrmMini(graph::GraphWindow& window, ColourChooser choose = nullptr, QWidget* parent = nullptr);

  QLineEdit* Text1() const { return text1_; }
  QLineEdit* Text2() const { return text2_; }
  QLineEdit* Text3() const { return text3_; }
  QCheckBox* Check1() const { return check1_; }
  QCheckBox* Check2() const { return check2_; }
  QGroupBox* Frame2() const { return frame2_; }
  QPushButton* Shape1() const { return shape1_; }
  QPushButton* Command1() const { return ok_; }
  QPushButton* Command2() const { return cancel_; }

 signals:
  void Drawn();

 private:
  void Ok();
  void ChooseColour();
  void ShowColour(graph::Colour colour);

  graph::GraphWindow& window_;
  ColourChooser choose_;
  QLineEdit* text1_ = nullptr;
  QLineEdit* text2_ = nullptr;
  QLineEdit* text3_ = nullptr;
  QCheckBox* check1_ = nullptr;
  QCheckBox* check2_ = nullptr;
  QGroupBox* frame2_ = nullptr;
  QPushButton* shape1_ = nullptr;
  QPushButton* ok_ = nullptr;
  QPushButton* cancel_ = nullptr;
};

}  // namespace velmora::graph_qt
