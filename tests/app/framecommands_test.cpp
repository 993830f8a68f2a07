// The frame's commands on the active graph window, on the program's own
// formula engine, with the window-side routines recorded by a fake child.
#include "app/framecommands.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/graph/windowfixture.h"

namespace velmora::app {
namespace {

using testing::RecordingSurface;

// A graph window without widgets: the logic on a recording surface, and the
// window's own routines as records.
class FakeChild final : public GraphChild {
 public:
  FakeChild() {
    graph::GraphServices services = graph::StandardServices(settings, messages, input);
    logic = std::make_unique<graph::GraphWindow>(surface, std::move(services));
  }
  graph::GraphWindow& Logic() override { return *logic; }
  void DrawFunction() override { calls.push_back("DrawFunction"); }
  void SwapYX() override { calls.push_back("SwapYX"); }
  void Kopirajgraf() override { calls.push_back("Kopirajgraf"); }
  void Sav1() override { calls.push_back("Sav1"); }
  void ColourMenu(int index) override { calls.push_back("ColourMenu(" + std::to_string(index) + ")"); }
  void mnuPlotWidth() override { calls.push_back("mnuPlotWidth"); }
  void ClearAll() override { calls.push_back("ClearAll"); }
  void ClearScreen() override { calls.push_back("ClearScreen"); }
  void mnuclhistory() override { calls.push_back("mnuclhistory"); }
  void ClearGrid() override { calls.push_back("ClearGrid"); }
  void RedrawGrid() override { calls.push_back("RedrawGrid"); }
  void ClearFju() override { calls.push_back("ClearFju"); }
  void OpenPlottingOptions() override { calls.push_back("OpenPlottingOptions"); }
  void mnuDrawTangent() override { calls.push_back("mnuDrawTangent"); }
  void mnuDrawIntegral(bool fromToolbar) override {
    calls.push_back(fromToolbar ? "mnuDrawIntegral(toolbar)" : "mnuDrawIntegral");
  }
  void CrtajFJUDeriv() override { calls.push_back("CrtajFJUDeriv"); }
  void mnulabel() override { calls.push_back("mnulabel"); }
  void mnusaveHistory() override { calls.push_back("mnusaveHistory"); }
  void SyncFromLogic() override { ++syncs; }

  void Draw(const std::string& y) {
    logic->SettxtY(y);
    logic->DrawFromTxtY();
  }
  // Lines of the plot colour on the picture as it stands: after the last clear.
  std::size_t CurveLines() {
    std::size_t count = 0;
    for (const auto& op : surface.Ops()) {
      if (op.kind == RecordingSurface::Kind::Clear) count = 0;
      if (op.kind == RecordingSurface::Kind::Line && op.colour == logic->Pen().Graph_Clr()) ++count;
    }
    return count;
  }

  RecordingSurface surface{600, 400};
  velmora::testing::FakeSettingsStore settings;
  testing::RecordingMessageBox messages;
  testing::ScriptedInputBox input;
  std::unique_ptr<graph::GraphWindow> logic;
  std::vector<std::string> calls;
  int syncs = 0;
};

struct Fixture {
  FakeChild child;
  FrameCommands commands;
};

TEST(FrameCommands, WithNoActiveWindowEveryWindowCommandDoesNothing) {
  // The commands hold no state, and the child is not given to them: its
  // settings store is where a command that went on without a window would
  // leave a trace (the examples read and write it, the views read
  // AutoRedraw).
  Fixture f;
  const int reads = f.child.settings.Reads();
  const int writes = f.child.settings.Writes();
  for (Command c :
       {Command::ClearAll, Command::ClearGrid, Command::ZoomIn, Command::MoveRight, Command::ColorBack,
        Command::TypePolar, Command::DrawFunction, Command::Options, Command::ClearFunction}) {
    EXPECT_TRUE(f.commands.Run(c, nullptr));
  }
  f.commands.DrawRecent("SinX ; K | Cartesian", nullptr);
  f.commands.LoadExample(graph::ExampleMenus()[0].entries[0], nullptr);
  EXPECT_EQ(f.child.settings.Reads(), reads);
  EXPECT_EQ(f.child.settings.Writes(), writes);

  // The same example with the window does reach the store.
  f.commands.LoadExample(graph::ExampleMenus()[0].entries[0], &f.child);
  EXPECT_GT(f.child.settings.Reads() + f.child.settings.Writes(), reads + writes);
}

TEST(FrameCommands, NonWindowCommandsAreLeftToTheFrame) {
  Fixture f;
  for (Command c : {Command::New, Command::Exit, Command::Close, Command::ToolMatrix, Command::WindowTile}) {
    EXPECT_FALSE(f.commands.Run(c, &f.child));
  }
}

TEST(FrameCommands, WindowSideRoutinesAreCalledByName) {
  struct Case {
    Command command;
    std::string routine;
  };
  const Case cases[] = {
      {Command::SwapYX, "SwapYX"},
      {Command::CopyGraph, "Kopirajgraf"},
      {Command::SaveBmp, "Sav1"},
      {Command::LineWidth, "mnuPlotWidth"},
      {Command::Options, "OpenPlottingOptions"},
      {Command::DrawTangent, "mnuDrawTangent"},
      {Command::DrawIntegral, "mnuDrawIntegral"},
      // The toolbar's Integral/Average refuses with its own text.
      {Command::DrawIntegralAverage, "mnuDrawIntegral(toolbar)"},
      {Command::DrawDerivative, "CrtajFJUDeriv"},
      {Command::ToolLabel, "mnulabel"},
      {Command::SaveHistory, "mnusaveHistory"},
  };
  for (const auto& c : cases) {
    Fixture f;
    f.commands.Run(c.command, &f.child);
    EXPECT_EQ(f.child.calls, std::vector<std::string>{c.routine});
  }
}

TEST(FrameCommands, ZoomReplaysTheFunctionsWithAutoRedrawAndLeavesBlankPaperWithout) {
  for (const bool autored : {true, false}) {
    Fixture f;
    f.child.settings.Store("Grid", "Autored", autored ? "1" : "0");
    f.child.Draw("SinX");
    f.commands.Run(Command::ZoomIn, &f.child);
    EXPECT_EQ(f.child.logic->View().Zoom(), 50);
    EXPECT_EQ(f.child.logic->zoomMenu().ZoomIn, "> Zoom&In (50)");
    EXPECT_EQ(f.child.CurveLines() > 0, autored);
    EXPECT_FALSE(f.child.logic->State().Zezaj());
    EXPECT_GT(f.child.syncs, 0);
  }
}

TEST(FrameCommands, MoveRightAsksAndShowsItsStatusText) {
  Fixture f;
  f.child.input.Answer("2");
  f.commands.Run(Command::MoveRight, &f.child);
  ASSERT_EQ(f.child.input.AskedBoxes().size(), 1u);
  EXPECT_EQ(f.child.input.AskedBoxes()[0].title, "Moving Right");
  EXPECT_EQ(f.child.logic->View().MovedText(), "Moved: R: 2");
  f.commands.Run(Command::MoveCenter, &f.child);
  EXPECT_EQ(f.child.logic->View().MovedText(), "Moved:");
  EXPECT_EQ(f.child.logic->View().MoveX(), 0);
}

TEST(FrameCommands, FunctionTypeSetsTheWindowsType) {
  Fixture f;
  f.commands.Run(Command::TypePolar, &f.child);
  EXPECT_EQ(f.child.logic->Boxes().optFunkcije(), graph::kPolar);
  EXPECT_EQ(f.child.logic->Boxes().labY().Caption, "R (K) =");
  f.commands.Run(Command::TypeParametric, &f.child);
  EXPECT_EQ(f.child.logic->Boxes().labY().Caption, "Y (K) =");
  EXPECT_TRUE(f.child.logic->Boxes().txtX().Visible);
}

TEST(FrameCommands, ARecentLineIsSplitAndDrawnInItsType) {
  struct Case {
    std::string line;
    int type;
    std::string y;
    std::string x;
  };
  const Case cases[] = {
      {"SinX ; K | Cartesian", graph::kCartesian, "SinX", "K"},
      {"SinK ; CosK | Parametric", graph::kParametric, "SinK", "CosK"},
      {"1+CosK ; K | Polar", graph::kPolar, "1+CosK", "K"},
  };
  for (const auto& c : cases) {
    Fixture f;
    f.commands.DrawRecent(c.line, &f.child);
    EXPECT_EQ(f.child.logic->Boxes().optFunkcije(), c.type) << c.line;
    EXPECT_EQ(f.child.logic->Boxes().txtY().Text, c.y) << c.line;
    EXPECT_EQ(f.child.logic->Boxes().txtX().Text, c.x) << c.line;
    EXPECT_EQ(f.child.logic->State().KolkoFunkc(), 1) << c.line;
    EXPECT_GT(f.child.CurveLines(), 0u) << c.line;
  }
}

TEST(FrameCommands, CommandsWaitWhileTheWindowDraws) {
  Fixture f;
  f.child.Draw("SinX");
  auto busy = f.child.logic->Busy();
  f.commands.Run(Command::ZoomIn, &f.child);
  f.commands.Run(Command::MoveCenter, &f.child);
  f.commands.LoadExample(graph::ExampleMenus()[0].entries[0], &f.child);
  f.commands.DrawRecent("CosX ; K | Cartesian", &f.child);
  f.commands.Run(Command::TypePolar, &f.child);
  EXPECT_TRUE(f.child.messages.Boxes().empty());
  EXPECT_EQ(f.child.logic->View().Zoom(), 30);
  EXPECT_EQ(f.child.logic->Boxes().optFunkcije(), graph::kCartesian);
  EXPECT_EQ(f.child.logic->State().KolkoFunkc(), 1);
}

}  // namespace
}  // namespace velmora::app
