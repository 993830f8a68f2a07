#pragma once

#include <memory>

class QGuiApplication;

namespace velmora::graph_qt {

// A QGuiApplication for a program that paints without a screen (the batch
// front end, benchmarks, tests): it selects the "offscreen" platform unless
// one is chosen already, so fonts and text work with no display. It does
// nothing when an application object exists.
class HeadlessGui {
 public:
  HeadlessGui();
  ~HeadlessGui();
  HeadlessGui(const HeadlessGui&) = delete;
  HeadlessGui& operator=(const HeadlessGui&) = delete;

 private:
  std::unique_ptr<QGuiApplication> app_;
};

}  // namespace velmora::graph_qt
