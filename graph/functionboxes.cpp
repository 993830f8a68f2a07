#include "graph/functionboxes.h"

#include "base/asciicase.h"

namespace velmora::graph {
namespace {

constexpr std::string_view kLabY[] = {"Y (X) =", "Y (K) =", "R (K) ="};

std::string WithoutBlanks(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    if (c != ' ') out += c;
  }
  return out;
}

}  // namespace

FunctionBoxes::FunctionBoxes() {
  txtX_.Text = "K";
  labx_.Caption = "X (K) =";
  lblxy_.Caption = "Y";
  lblxy_.Visible = false;
  SetType(kCartesian);
}

bool FunctionBoxes::SetType(int index) {
  if (index < kCartesian || index > kPolar) return false;
  type_ = index;
  labY_.Caption = std::string(kLabY[index - 1]);
  const bool parametric = index == kParametric;
  if (!parametric) txtX_.Text = "K";
  txtX_.Visible = parametric;
  labx_.Visible = parametric;
  return true;
}

void FunctionBoxes::RemoveBlanks(bool onlyY) {
  txtY_.Text = WithoutBlanks(txtY_.Text);
  if (!onlyY) txtX_.Text = WithoutBlanks(txtX_.Text);
}

void FunctionBoxes::Remember(bool parametric) {
  txtY_.AddItemNoDuplicates(txtY_.Text);
  if (parametric) {
    txtX_.AddItemNoDuplicates(txtX_.Text);
    cmbR3_.AddItemNoDuplicates(txtY_.Text);
  }
}

void FunctionBoxes::Clear() {
  txtY_.Text.clear();
  txtY_.List.clear();
  txtX_.List.clear();
  cmbR3_.List.clear();
  txtX_.Visible = false;
  lblxy_.Caption = "Y (X) =";
  SetType(kCartesian);
  txtX_.Text = "K";
}

void FunctionBoxes::AdoptLists(const FunctionBoxes& other) {
  txtY_.List = other.txtY_.List;
  txtX_.List = other.txtX_.List;
  cmbR3_.List = other.cmbR3_.List;
}

int FunctionBoxes::TypeOfPick() {
  if (base::UpperCase(txtY_.Text).find('K') == std::string::npos) return kCartesian;
  for (std::size_t i = 0; i < cmbR3_.List.size(); ++i) {
    if (cmbR3_.List[i] != txtY_.Text) continue;
    if (i < txtX_.List.size()) txtX_.Text = txtX_.List[i];
    return kParametric;
  }
  return kPolar;
}

std::string FunctionBoxes::StatusCaption() const {
  if (type_ == kParametric)
    return labY_.Caption + " " + txtY_.Text + " ; " + labx_.Caption + " " + txtX_.Text;
  return labY_.Caption + " " + txtY_.Text;
}

}  // namespace velmora::graph
