#pragma once

#include <string>
#include <string_view>

#include "graph/controls.h"

namespace velmora::graph {

// The function types of optFunkcije.
enum FunctionType : int { kCartesian = 1, kParametric = 2, kPolar = 3 };

// The function boxes of a graph window with their captions and the type
// option: what the user types, and the lists of what the window has drawn.
class FunctionBoxes {
 public:
  FunctionBoxes();

  // `txtY`: the Y (or R) expression; its list is the list of drawn functions.
  const ComboBox& txtY() const { return txtY_; }
  // `txtX`: the X expression; "K" and hidden in Cartesian and polar type.
  const ComboBox& txtX() const { return txtX_; }
  // `cmbR3`: the Y texts of parametric functions, index for index with
  // txtX's list, so a picked Y finds its X.
  const ComboBox& cmbR3() const { return cmbR3_; }
  // `labY`: the caption of txtY, "Y (X) =", "Y (K) =" or "R (K) =".
  const Label& labY() const { return labY_; }
  // `LABx`: the caption of txtX, "X (K) =".
  const Label& LABx() const { return labx_; }
  // `optFunkcije`: the function type, 1 Cartesian, 2 parametric, 3 polar.
  int optFunkcije() const { return type_; }
  // `lblxy`: "Y" or "X", the box that last had the focus.
  const Label& lblxy() const { return lblxy_; }

  // A type 1 to 3: captions and the visibility of the X box; outside types
  // set "K" in txtX. Another index changes nothing and gives false.
  bool SetType(int index);
  void SetTxtY(std::string_view text) { txtY_.Text = std::string(text); }
  void SetTxtX(std::string_view text) { txtX_.Text = std::string(text); }
  void SwapTexts() { std::swap(txtY_.Text, txtX_.Text); }
  void SetFocusBox(char box) { lblxy_.Caption.assign(1, box); }
  // Blanks out of the boxes' texts (of txtX too unless `onlyY`).
  void RemoveBlanks(bool onlyY);
  // A drawn function joins the lists, a repeated text standing once; a
  // parametric one also puts its X in txtX's list and its Y in cmbR3.
  void Remember(bool parametric);
  // The whole window cleared: texts and lists emptied, txtX "K" and hidden.
  void Clear();
  // The lists of another window's boxes (a copy of what it has drawn).
  void AdoptLists(const FunctionBoxes& other);
  // The type of the text in txtY as a pick from the list finds it: with K,
  // parametric when cmbR3 holds it (txtX then takes its X), else polar;
  // without K, Cartesian.
  int TypeOfPick();
  // The window's caption as the status bar shows it.
  std::string StatusCaption() const;

 private:
  ComboBox txtY_;
  ComboBox txtX_;
  ComboBox cmbR3_;
  Label labY_;
  Label labx_;
  int type_ = kCartesian;
  Label lblxy_;
};

}  // namespace velmora::graph
