#include "graph/viewstate.h"

#include "expr/checked.h"
#include "expr/fault.h"
#include "expr/numtext.h"

namespace velmora::graph {
namespace {

constexpr std::string_view kMoveTags[] = {" R: ", " L: ", " Up: ", " D: "};

}  // namespace

void ViewState::Move(MoveDirection direction, std::string_view answer, double shift) {
  const bool horizontal = direction == MoveDirection::Right || direction == MoveDirection::Left;
  const double sign = (direction == MoveDirection::Right || direction == MoveDirection::Up) ? 1 : -1;
  if (horizontal) {
    movedRight_ = sign > 0;
    movedLeft_ = sign < 0;
    centerX_ += sign * zoom_ * shift;
  } else {
    movedUp_ = sign > 0;
    movedDown_ = sign < 0;
    centerY_ -= sign * zoom_ * shift;  // up raises the plot: the origin's row goes up
  }
  lastMoveInput_ = std::string(answer);
  lastMoveShift_ = shift;
  movedText_ += kMoveTags[static_cast<int>(direction)];
  movedText_ += answer;
}

void ViewState::UpdateMoveCentre(double width, double height) {
  expr::ResumeNext([&] { moveX_ = expr::RoundTo((centerX_ - width / 2) / zoom_, 3); });
  expr::ResumeNext([&] { moveY_ = expr::RoundTo(-(centerY_ - height / 2) / zoom_, 3); });
}

}  // namespace velmora::graph
