#pragma once

#include <string>
#include <string_view>

namespace velmora::graph {

// The directions of the Move commands.
enum class MoveDirection { Right, Left, Up, Down };

// Where a graph window looks: the zoom, the pixel of the user origin, and
// what the Move commands have done to it. The names are the window's own,
// which the status bar, the toolbar and the tools know it by.
class ViewState {
 public:
  static constexpr double kDefaultZoom = 30;
  static constexpr std::string_view kMovedCaption = "Moved:";

  // `Zoom`: pixels per user unit, the same on both axes.
  double Zoom() const { return zoom_; }
  void SetZoom(double zoom) { zoom_ = zoom; }
  // `zlevel`: the zoom as the toolbar and the status bar last showed it.
  double zlevel() const { return zlevel_; }
  void SetZlevel(double zoom) { zlevel_ = zoom; }
  // `CenterX`, `CenterY`: the pixel column and row of the user origin.
  double CenterX() const { return centerX_; }
  double CenterY() const { return centerY_; }
  void SetCentre(double x, double y) {
    centerX_ = x;
    centerY_ = y;
  }
  void ShiftCentre(double dx, double dy) {
    centerX_ += dx;
    centerY_ += dy;
  }

  // User units to pixels: Y grows upward in user units, downward in pixels.
  double PixelX(double x) const { return centerX_ + x * zoom_; }
  double PixelY(double y) const { return centerY_ + (-y) * zoom_; }
  // The user X of the left and right edges of a surface this wide, and the
  // user Y of the top and bottom edges of one this high.
  double LeftX() const { return -centerX_ / zoom_; }
  double RightX(double width) const { return (width - centerX_) / zoom_; }
  double TopY() const { return centerY_ / zoom_; }
  double BottomY(double height) const { return -(height - centerY_) / zoom_; }

  // `MoveX`, `MoveY`: the user coordinates of the middle of the plot area
  // after moves, 3 decimals; the readouts take them off.
  double MoveX() const { return moveX_; }
  double MoveY() const { return moveY_; }
  // `MovedLeft`...`MovedDown`: which way the last horizontal and vertical
  // moves went; a readout corrects an axis only once it has been moved.
  bool MovedLeft() const { return movedLeft_; }
  bool MovedRight() const { return movedRight_; }
  bool MovedUp() const { return movedUp_; }
  bool MovedDown() const { return movedDown_; }
  // `MovedText`: what the status bar shows of the moves ("Moved: R: 2").
  const std::string& MovedText() const { return movedText_; }
  // The answer and the shift in user units of the last move.
  const std::string& LastMoveInput() const { return lastMoveInput_; }
  double LastMoveShift() const { return lastMoveShift_; }

  // A move of `shift` user units: the centre goes that far (right and up
  // are positive), the direction flags of its axis and the status text
  // ("Moved:" then " R: " and the answer) follow.
  void Move(MoveDirection direction, std::string_view answer, double shift);
  // The middle of the plot area in user units after the centre changed,
  // rounded to 3 decimals (a fault leaves the value as it was).
  void UpdateMoveCentre(double width, double height);
  // Back to "Moved:" (Center); the flags stay as the last moves left them.
  void ResetMovedText() { movedText_ = std::string(kMovedCaption); }

  // `PomeriX`, `PomeriY`: a readout value with the move taken off, once
  // its axis has been moved.
  double PomeriX(double v) const { return (movedLeft_ || movedRight_) ? v - moveX_ : v; }
  double PomeriY(double v) const { return (movedUp_ || movedDown_) ? v - moveY_ : v; }

 private:
  double zoom_ = kDefaultZoom;
  double zlevel_ = kDefaultZoom;
  double centerX_ = 0;
  double centerY_ = 0;
  double moveX_ = 0;
  double moveY_ = 0;
  bool movedLeft_ = false;
  bool movedRight_ = false;
  bool movedUp_ = false;
  bool movedDown_ = false;
  std::string movedText_{kMovedCaption};
  std::string lastMoveInput_;
  double lastMoveShift_ = 0;
};

}  // namespace velmora::graph
