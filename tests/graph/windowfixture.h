#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "graph/graphwindow.h"
#include "graph/historylog.h"
#include "platform/recentlist.h"
#include "tests/support/evaluatorstate.h"
#include "tests/support/fakesettingsstore.h"
#include "tests/support/recordingmessagebox.h"
#include "tests/support/recordingsurface.h"
#include "tests/support/scriptedformula.h"
#include "tests/support/scriptedinputbox.h"

namespace velmora::testing {

// A window layer that records what the logic asks of it and can act during
// the event pump of a draw (a Stop click, a second Enter).
class RecordingHost final : public graph::GraphHost {
 public:
  void DoEvents() override {
    ++pumps;
    if (onPump) onPump(pumps);
  }
  void ProgressChanged() override { ++progressChanges; }
  void RefreshFrame() override { ++frameRefreshes; }
  void TypeChosen(int type) override { types.push_back(type); }
  void FocusFunctionBox() override { ++focuses; }
  void ShowStatusText(const std::string& text) override { statusTexts.push_back(text); }
  void ToolChanged() override { ++toolChanges; }

  int pumps = 0;
  int toolChanges = 0;
  int progressChanges = 0;
  int frameRefreshes = 0;
  int focuses = 0;
  std::vector<int> types;
  std::vector<std::string> statusTexts;
  std::function<void(int)> onPump;
};

// Records every pass of the sampling loop.
class RecordingObserver final : public graph::LoopObserver {
 public:
  void Pass(const graph::LoopPass& pass) override { passes.push_back(pass); }
  std::vector<graph::LoopPass> passes;
};

// Puts functions in a window's list of drawn functions as Cartesian draws
// do (the count grows with them), leaving the box's text as it was.
inline void HoldFunctions(graph::GraphWindow& w, std::initializer_list<std::string> functions) {
  const std::string text = w.Boxes().txtY().Text;
  for (const auto& y : functions) {
    w.SettxtY(y);
    w.CrtajFJU();
  }
  w.SettxtY(text);
}

// A graph window on a recording surface with in-memory settings, recording
// message and input boxes, a scripted formula engine (no value unless the
// test scripts one) and no syntax check.
struct WindowFixture {
  explicit WindowFixture(int width = 600, int height = 400, std::vector<std::string> fonts = {})
      : surface(width, height, std::move(fonts)) {}

  // Turns on what a full draw uses: the evaluator's check before a draw, a
  // history file and the recent list.
  void Full(const std::string& historyPath) {
    check = true;
    history = std::make_unique<graph::HistoryLog>(historyPath);
    recent = std::make_unique<platform::RecentList>(settings, platform::RecentList::kFunctions);
  }

  graph::GraphWindow& Make(ScriptedFormula::Script script = nullptr) {
    if (!script) script = [](std::string_view) -> std::optional<double> { return std::nullopt; };
    graph::GraphServices services;
    services.settings = &settings;
    services.messages = &messages;
    services.input = &input;
    auto formula = std::make_unique<ScriptedFormula>(std::move(script));
    engine = formula.get();
    services.evaluator1 = std::move(formula);
    services.host = &host;
    services.observer = &observer;
    if (check) services.makeChecker = &graph::MakeEvaluatorChecker;
    services.history = history.get();
    services.recent = recent.get();
    window = std::make_unique<graph::GraphWindow>(surface, std::move(services));
    return *window;
  }

  // The same window over the program's formula engine (both controls), for
  // the routines that differentiate through it.
  graph::GraphWindow& MakeWithEngine() {
    graph::GraphServices services;
    services.settings = &settings;
    services.messages = &messages;
    services.input = &input;
    services.evaluator1 = expr::MakeFormulaControl();
    services.evaluator2 = expr::MakeFormulaControl();
    services.host = &host;
    services.observer = &observer;
    if (check) services.makeChecker = &graph::MakeEvaluatorChecker;
    services.history = history.get();
    services.recent = recent.get();
    window = std::make_unique<graph::GraphWindow>(surface, std::move(services));
    return *window;
  }

  RecordingSurface surface;
  velmora::testing::FakeSettingsStore settings;
  RecordingMessageBox messages;
  ScriptedInputBox input;
  RecordingHost host;
  RecordingObserver observer;
  ScriptedFormula* engine = nullptr;
  bool check = false;
  std::unique_ptr<graph::HistoryLog> history;
  std::unique_ptr<platform::RecentList> recent;
  std::unique_ptr<graph::GraphWindow> window;
};

}  // namespace velmora::testing
