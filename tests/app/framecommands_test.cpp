// The frame's commands on the active graph window, on the program's own
// formula engine, with the window-side routines recorded by a fake child.
#include "app/framecommands.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/graph/windowfixture.h"

namespace velmora::app {
namespace {

using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;
using testing::RecordingSurface;

// A graph window without widgets: the logic on a recording surface, and the
// window's own routines as records.
class FakeChild final : public GraphChild {
 public:
  FakeChild() {
    graph::GraphServices services = graph::StandardServices(settings, messages, input);
    history =
        std::make_unique<graph::HistoryLog>(::testing::TempDir() + "/velmora_framecommands_GraphLog.txt");
    history->Clear();
    services.history = history.get();
    logic = std::make_unique<graph::GraphWindow>(surface, std::move(services));
  }
  graph::GraphWindow& Logic() override { return *logic; }
  void DrawFunction() override {
    calls.push_back("DrawFunction");
    logic->DrawFromTxtY();
  }
  void SwapYX() override { calls.push_back("SwapYX"); }
  void Kopirajgraf() override { calls.push_back("Kopirajgraf"); }
  void Sav1() override { calls.push_back("Sav1"); }
  void mnuBojeBack() override { calls.push_back("mnuBojeBack"); }
  void mnuBojeGrid() override {
    calls.push_back("mnuBojeGrid");
    logic->GridColor = newGridColour;
  }
  void mnuBojeAxes() override { calls.push_back("mnuBojeAxes"); }
  void mnuBojeGraph() override { calls.push_back("mnuBojeGraph"); }
  void mnuBojeDef() override { calls.push_back("mnuBojeDef"); }
  void Sacboje() override { calls.push_back("Sacboje"); }
  void mnuPlotWidth() override { calls.push_back("mnuPlotWidth"); }
  void OpenPlottingOptions() override { calls.push_back("OpenPlottingOptions"); }
  void SyncFromLogic() override { ++syncs; }

  void Draw(const std::string& y) {
    logic->txtY.Text = y;
    logic->DrawFromTxtY();
  }
  // Lines of the plot colour on the picture as it stands: after the last clear.
  std::size_t CurveLines() {
    std::size_t count = 0;
    for (const auto& op : surface.Ops()) {
      if (op.kind == RecordingSurface::Kind::Clear) count = 0;
      if (op.kind == RecordingSurface::Kind::Line && op.colour == logic->Graph_Clr) ++count;
    }
    return count;
  }

  RecordingSurface surface{600, 400};
  platform::MemorySettingsStore settings;
  testing::RecordingMessageBox messages;
  testing::ScriptedInputBox input;
  std::unique_ptr<graph::HistoryLog> history;
  std::unique_ptr<graph::GraphWindow> logic;
  std::vector<std::string> calls;
  int syncs = 0;
  graph::Colour newGridColour = 0x123456;
};

struct Fixture {
  FakeChild child;
  FrameCommands commands{child.settings, child.messages, child.history.get()};
};

TEST(FrameCommands, WithNoActiveWindowEveryWindowCommandDoesNothing) {
  Fixture f;
  for (Command c :
       {Command::ClearAll, Command::ClearGrid, Command::ZoomIn, Command::MoveRight, Command::ColorBack,
        Command::TypePolar, Command::DrawFunction, Command::Options, Command::ClearFunction}) {
    EXPECT_TRUE(f.commands.Run(c, nullptr));
  }
  f.commands.DrawRecent("SinX ; K | Cartesian", nullptr);
  EXPECT_TRUE(f.child.messages.Boxes().empty());
  EXPECT_TRUE(f.child.calls.empty());
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
  };
  for (const auto& c : cases) {
    Fixture f;
    f.commands.Run(c.command, &f.child);
    EXPECT_EQ(f.child.calls, std::vector<std::string>{c.routine});
  }
}

TEST(FrameCommands, ClearGridWithAutoRedrawOnRedrawsWithoutAQuestion) {
  Fixture f;
  f.child.Draw("SinX");
  ASSERT_EQ(f.child.logic->KolkoFunkc, 1);
  f.child.surface.ClearOps();
  f.commands.Run(Command::ClearGrid, &f.child);
  EXPECT_TRUE(f.child.messages.Boxes().empty());
  EXPECT_EQ(f.child.surface.Ops().front().kind, RecordingSurface::Kind::Clear);
  EXPECT_GT(f.child.CurveLines(), 500u);  // the curve is back
  EXPECT_EQ(f.child.logic->KolkoFunkc, 1);
}

TEST(FrameCommands, ClearGridWithAutoRedrawOffAsksAndOkClearsToBlank) {
  Fixture f;
  f.child.settings.Store("Grid", "Autored", "0");
  f.child.Draw("SinX");
  f.child.surface.ClearOps();
  f.child.messages.Answer(MsgResult::Ok);
  f.commands.Run(Command::ClearGrid, &f.child);
  ASSERT_EQ(f.child.messages.Boxes().size(), 1u);
  const auto& box = f.child.messages.Boxes()[0];
  EXPECT_EQ(box.text, "Your current graph(s) will be erased.\nContinue?");
  EXPECT_EQ(box.title, "Clear");
  EXPECT_EQ(box.buttons, MsgButtons::OkCancel);
  EXPECT_EQ(f.child.CurveLines(), 0u);  // nothing drawn again
  ASSERT_EQ(f.child.surface.Ops().size(), 1u);
  EXPECT_EQ(f.child.surface.Ops()[0].kind, RecordingSurface::Kind::Clear);
}

TEST(FrameCommands, ClearGridWithAutoRedrawOffAndCancelLeavesThePicture) {
  Fixture f;
  f.child.settings.Store("Grid", "Autored", "0");
  f.child.Draw("SinX");
  f.child.surface.ClearOps();
  f.child.messages.Answer(MsgResult::Cancel);
  f.commands.Run(Command::ClearGrid, &f.child);
  EXPECT_EQ(f.child.messages.Boxes().size(), 1u);
  EXPECT_TRUE(f.child.surface.Ops().empty());
}

TEST(FrameCommands, ClearGridWithNoFunctionDrawnNeverAsks) {
  Fixture f;
  f.child.settings.Store("Grid", "Autored", "0");
  f.commands.Run(Command::ClearGrid, &f.child);
  EXPECT_TRUE(f.child.messages.Boxes().empty());
}

TEST(FrameCommands, RedrawGridPaintsThePaperAndTheFunctionsAgain) {
  Fixture f;
  f.child.Draw("CosX");
  f.child.surface.ClearOps();
  f.commands.Run(Command::RedrawGrid, &f.child);
  EXPECT_TRUE(f.child.messages.Boxes().empty());
  EXPECT_FALSE(f.child.surface.LinesIn(f.child.logic->GridColor).empty());
  EXPECT_GT(f.child.CurveLines(), 500u);
}

TEST(FrameCommands, ClearAllAsksYesNoAndYesEmptiesTheLists) {
  Fixture f;
  f.child.Draw("SinX");
  f.child.messages.Answer(MsgResult::No);
  f.commands.Run(Command::ClearAll, &f.child);
  EXPECT_EQ(f.child.logic->KolkoFunkc, 1);
  f.child.messages.Answer(MsgResult::Yes);
  f.commands.Run(Command::ClearAll, &f.child);
  ASSERT_EQ(f.child.messages.Boxes().size(), 2u);
  EXPECT_EQ(f.child.messages.Boxes()[1].text, "Clear graphs and equation lists?");
  EXPECT_EQ(f.child.messages.Boxes()[1].title, "Clear All");
  EXPECT_EQ(f.child.messages.Boxes()[1].buttons, MsgButtons::YesNo);
  EXPECT_EQ(f.child.logic->KolkoFunkc, 0);
  EXPECT_TRUE(f.child.logic->txtY.List.empty());
  EXPECT_EQ(f.child.logic->txtY.Text, "");
  // Nothing drawn: no question.
  f.commands.Run(Command::ClearAll, &f.child);
  EXPECT_EQ(f.child.messages.Boxes().size(), 2u);
}

TEST(FrameCommands, ClearScreenKeepsTheListsAndResetsZezaj) {
  Fixture f;
  f.child.Draw("SinX");
  f.commands.Run(Command::ClearScreen, &f.child);
  EXPECT_TRUE(f.child.messages.Boxes().empty());
  EXPECT_EQ(f.child.CurveLines(), 0u);
  EXPECT_EQ(f.child.logic->txtY.List.size(), 1u);
  EXPECT_FALSE(f.child.logic->Zezaj);
}

TEST(FrameCommands, ClearFunctionAsksAndEmptiesTheBoxes) {
  Fixture f;
  f.child.logic->optFunk(graph::kParametric);
  f.child.logic->txtY.Text = "SinK";
  f.child.logic->txtX.Text = "CosK";
  f.child.messages.Answer(MsgResult::Ok);
  f.commands.Run(Command::ClearFunction, &f.child);
  ASSERT_EQ(f.child.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.child.messages.Boxes()[0].text, "Function expression will be erased.\nContinue?");
  EXPECT_EQ(f.child.messages.Boxes()[0].title, "Clear Function");
  EXPECT_EQ(f.child.logic->txtY.Text, "");
  EXPECT_EQ(f.child.logic->txtX.Text, "");
}

TEST(FrameCommands, ClearHistoryAsksThenEmptiesTheFileAndTheWindowsCopy) {
  Fixture f;
  f.child.Draw("SinX");
  ASSERT_FALSE(f.child.history->ReadAll().empty());
  f.child.logic->rtb = "something";
  f.child.messages.Answer(MsgResult::Yes);
  f.commands.Run(Command::ClearHistory, &f.child);
  ASSERT_EQ(f.child.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.child.messages.Boxes()[0].text, "Clear Function History?");
  EXPECT_EQ(f.child.messages.Boxes()[0].icon, MsgIcon::Question);
  EXPECT_EQ(f.child.messages.Boxes()[0].buttons, MsgButtons::YesNo);
  EXPECT_TRUE(f.child.history->ReadAll().empty());
  EXPECT_EQ(f.child.logic->rtb, "");
}

TEST(FrameCommands, ZoomReplaysTheFunctionsWithAutoRedrawAndLeavesBlankPaperWithout) {
  for (const bool autored : {true, false}) {
    Fixture f;
    f.child.settings.Store("Grid", "Autored", autored ? "1" : "0");
    f.child.Draw("SinX");
    f.commands.Run(Command::ZoomIn, &f.child);
    EXPECT_EQ(f.child.logic->Zoom, 50);
    EXPECT_EQ(f.child.logic->zoomMenu.ZoomIn, "> Zoom&In (50)");
    EXPECT_EQ(f.child.CurveLines() > 0, autored);
    EXPECT_FALSE(f.child.logic->Zezaj);
    EXPECT_GT(f.child.syncs, 0);
  }
}

TEST(FrameCommands, MoveRightAsksAndShowsItsStatusText) {
  Fixture f;
  f.child.input.Answer("2");
  f.commands.Run(Command::MoveRight, &f.child);
  ASSERT_EQ(f.child.input.AskedBoxes().size(), 1u);
  EXPECT_EQ(f.child.input.AskedBoxes()[0].title, "Moving Right");
  EXPECT_EQ(f.child.logic->MovedText, "Moved: R: 2");
  f.commands.Run(Command::MoveCenter, &f.child);
  EXPECT_EQ(f.child.logic->MovedText, "Moved:");
  EXPECT_EQ(f.child.logic->MoveX, 0);
}

TEST(FrameCommands, ColoursAreStoredOnlyWhenTheyChanged) {
  Fixture f;
  f.commands.Run(Command::ColorGrid, &f.child);
  EXPECT_EQ(f.child.calls, (std::vector<std::string>{"mnuBojeGrid", "Sacboje"}));
  f.child.calls.clear();
  f.commands.Run(Command::ColorGrid, &f.child);  // the same colour again
  EXPECT_EQ(f.child.calls, std::vector<std::string>{"mnuBojeGrid"});
  f.child.calls.clear();
  f.commands.Run(Command::ColorBack, &f.child);  // cancelled: nothing changed
  EXPECT_EQ(f.child.calls, std::vector<std::string>{"mnuBojeBack"});
}

TEST(FrameCommands, FunctionTypeSetsTheWindowsType) {
  Fixture f;
  f.commands.Run(Command::TypePolar, &f.child);
  EXPECT_EQ(f.child.logic->optFunkcije, graph::kPolar);
  EXPECT_EQ(f.child.logic->labY.Caption, "R (K) =");
  f.commands.Run(Command::TypeParametric, &f.child);
  EXPECT_EQ(f.child.logic->labY.Caption, "Y (K) =");
  EXPECT_TRUE(f.child.logic->txtX.Visible);
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
    EXPECT_EQ(f.child.logic->optFunkcije, c.type) << c.line;
    EXPECT_EQ(f.child.logic->txtY.Text, c.y) << c.line;
    EXPECT_EQ(f.child.logic->txtX.Text, c.x) << c.line;
    EXPECT_EQ(f.child.logic->KolkoFunkc, 1) << c.line;
    EXPECT_GT(f.child.CurveLines(), 0u) << c.line;
  }
}

TEST(FrameCommands, CommandsWaitWhileTheWindowDraws) {
  Fixture f;
  f.child.Draw("SinX");
  f.child.logic->Drawing = true;
  f.commands.Run(Command::ClearAll, &f.child);
  f.commands.Run(Command::ClearGrid, &f.child);
  f.commands.Run(Command::ZoomIn, &f.child);
  f.commands.Run(Command::TypePolar, &f.child);
  EXPECT_TRUE(f.child.messages.Boxes().empty());
  EXPECT_EQ(f.child.logic->Zoom, 30);
  EXPECT_EQ(f.child.logic->optFunkcije, graph::kCartesian);
  EXPECT_EQ(f.child.logic->KolkoFunkc, 1);
}

}  // namespace
}  // namespace velmora::app
