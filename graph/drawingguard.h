#pragma once

#include "graph/drawstate.h"

namespace velmora::graph {

// Holds `Drawing` set for its lifetime and clears it on every way out of a
// draw or a repaint, an exception included, so no fault can leave a window
// that refuses every command.
class DrawingGuard {
 public:
  explicit DrawingGuard(DrawState& state) : state_(state) { state_.drawing_ = true; }
  ~DrawingGuard() { state_.drawing_ = false; }
  DrawingGuard(const DrawingGuard&) = delete;
  DrawingGuard& operator=(const DrawingGuard&) = delete;

 private:
  DrawState& state_;
};

}  // namespace velmora::graph
