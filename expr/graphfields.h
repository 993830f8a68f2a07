#pragma once

#include <string>

namespace velmora::expr {

// What the text evaluator needs of the active graph window: the hidden
// fields the fraction keypad fills (for rational powers) and the two pen
// routines the inverse secant and cosecant call. Any of these may fault
// (throw expr::Fault) when the window has no such fields.
class GraphFields {
 public:
  virtual ~GraphFields() = default;
  virtual std::string TxtImenilac() = 0;  // text of txtImenilac
  virtual std::string TxtY3() = 0;        // text of txtY3
  virtual std::string TxtY2() = 0;        // text of txtY2
  virtual std::string LblY3() = 0;        // caption of lblY3
  virtual void Boje2() = 0;               // pen to the background colour
  virtual void Boje3() = 0;               // pen back to the graph colour
};

// The main frame's active child, as the evaluator reaches it on every use.
// ActiveGraph returns null when no graph window is active; the evaluator then
// treats every field read as a fault.
class ActiveWindow {
 public:
  virtual ~ActiveWindow() = default;
  virtual GraphFields* ActiveGraph() = 0;
};

}  // namespace velmora::expr
