#pragma once

#include <string>

#include "expr/fault.h"
#include "expr/graphfields.h"

namespace velmora::testing {

// A graph window for the evaluator's tests: four settable fields, counters
// of the pen routines and of field reads, and a switch that makes the frame
// report no active graph window.
class FakeGraphWindow final : public expr::ActiveWindow, public expr::GraphFields {
 public:
  expr::GraphFields* ActiveGraph() override { return hasGraph ? this : nullptr; }
  std::string TxtImenilac() override { return Read(txtImenilac); }
  std::string TxtY3() override { return Read(txtY3); }
  std::string TxtY2() override { return Read(txtY2); }
  std::string LblY3() override { return Read(lblY3); }
  void Boje2() override { ++boje2Calls; }
  void Boje3() override { ++boje3Calls; }

  // Rational mode on, with the three digit fields given.
  void Rational(std::string y3, std::string imenilac, std::string y2) {
    lblY3 = "OK";
    txtY3 = std::move(y3);
    txtImenilac = std::move(imenilac);
    txtY2 = std::move(y2);
  }

  bool hasGraph = true;
  // The fraction keypad's digit fields (the parity of their last digits
  // picks the row of a rational power) and the caption whose "OK" turns
  // rational mode on.
  std::string txtImenilac, txtY3, txtY2, lblY3;
  int boje2Calls = 0;  // pen set to the background colour
  int boje3Calls = 0;  // pen set back to the graph colour
  int fieldReads = 0;

 private:
  std::string Read(const std::string& field) {
    ++fieldReads;
    return field;
  }
};

}  // namespace velmora::testing
