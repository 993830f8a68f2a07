// The graph window's commands that ask first: colours, the Clear commands,
// Swap Y - X and the save of the picture.
#include "graph/windowcommands.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "graph/graphwindow.h"
#include "platform/settingskeys.h"
#include "tests/graph/dialogfakes.h"
#include "tests/graph/windowfixture.h"

namespace velmora::graph {

namespace keys = platform::keys;
namespace {

using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;
using testing::RecordingSurface;

class CommandsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ =
        std::filesystem::temp_directory_path() /
        ("velmora-commands-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    history = std::make_unique<HistoryLog>((folder_ / "GraphLog.txt").string());
    f.Make();
    commands =
        std::make_unique<WindowCommands>(*f.window, f.settings, f.messages, &colours, &files, history.get());
    f.surface.ClearOps();
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  GraphWindow& W() { return *f.window; }
  // A new window over a history file that holds one record: a window
  // loads the history when it opens.
  void WindowWithHistory() {
    history->Append({"", " Y(X) = x"});
    f.history = std::make_unique<HistoryLog>((folder_ / "GraphLog.txt").string());
    f.Make();
    commands =
        std::make_unique<WindowCommands>(*f.window, f.settings, f.messages, &colours, &files, history.get());
  }
  // A window that holds one function in its list.
  void OneFunction() { testing::HoldFunctions(W(), {"X"}); }
  bool Cleared() const {
    const auto& ops = f.surface.Ops();
    return !ops.empty() && ops[0].kind == RecordingSurface::Kind::Clear;
  }

  std::filesystem::path folder_;
  testing::WindowFixture f;
  testing::ScriptedColorDialog colours;
  testing::ScriptedFileDialog files;
  std::unique_ptr<HistoryLog> history;
  std::unique_ptr<WindowCommands> commands;
};

// ---- Colours --------------------------------------------------------------------

struct ColourCase {
  const char* name;
  WindowCommands::ColourEntry entry;
  const char* key;
  Colour before;  // the colour the dialog opens on: the default of a first start
};

class ColourTest : public CommandsTest, public ::testing::WithParamInterface<ColourCase> {};

TEST_P(ColourTest, TheChosenColourIsUsedAndSaved) {
  const ColourCase& c = GetParam();
  colours.answers.push_back(0x00FF00);
  commands->ColourMenu(c.entry);
  ASSERT_EQ(colours.opened.size(), 1u);
  EXPECT_EQ(colours.opened[0], c.before);
  EXPECT_EQ(f.settings.Query(keys::kBoje, c.key), std::optional<std::string>("65280"));
  EXPECT_FALSE(W().State().Zezaj());
}

INSTANTIATE_TEST_SUITE_P(
    Entries, ColourTest,
    ::testing::Values(ColourCase{"Background", WindowCommands::ColourEntry::Background, "Pozadina", 0xF5F5F5},
                      ColourCase{"Grid", WindowCommands::ColourEntry::Grid, "Grid", 0xBFBFBF},
                      ColourCase{"Axes", WindowCommands::ColourEntry::Axes, "Ose", 0},
                      ColourCase{"Graph", WindowCommands::ColourEntry::Graph, "Grafik", 0xC08000}),
    [](const auto& param) { return std::string(param.param.name); });

TEST_F(CommandsTest, ABackgroundColourRepaintsTheEmptyPaper) {
  colours.answers.push_back(0x112233);
  EXPECT_TRUE(commands->mnuBojeBack());
  EXPECT_EQ(W().pDraw().BackColor(), 0x112233u);
  EXPECT_TRUE(Cleared());
  EXPECT_FALSE(f.surface.Lines().empty());  // the paper again
}

TEST_F(CommandsTest, GridAndAxesColoursPaintThePaper) {
  colours.answers.push_back(0x0000FF);
  EXPECT_TRUE(commands->mnuBojeGrid());
  EXPECT_EQ(W().Pen().GridColor(), 0x0000FFu);
  EXPECT_FALSE(f.surface.LinesIn(0x0000FF).empty());
  colours.answers.push_back(0x00FF00);
  EXPECT_TRUE(commands->mnuBojeAxes());
  EXPECT_EQ(W().Pen().AxesColor(), 0x00FF00u);
  EXPECT_FALSE(f.surface.LinesIn(0x00FF00).empty());
}

TEST_F(CommandsTest, AGraphColourIsTheColourOfTheNextPlotAndPaintsNothing) {
  colours.answers.push_back(0x123456);
  EXPECT_TRUE(commands->mnuBojeGraph());
  EXPECT_EQ(W().Pen().Graph_Clr(), 0x123456u);
  EXPECT_EQ(W().Pen().lblBoja(), 0x123456u);
  EXPECT_TRUE(f.surface.Ops().empty());
}

TEST_F(CommandsTest, ACancelledColourChangesNothing) {
  colours.answers.push_back(std::nullopt);
  commands->ColourMenu(WindowCommands::ColourEntry::Background);
  EXPECT_EQ(W().pDraw().BackColor(), 0xF5F5F5u);
  EXPECT_TRUE(f.surface.Ops().empty());
  EXPECT_FALSE(f.settings.Query(keys::kBoje, keys::boje::kPozadina).has_value());
}

TEST_F(CommandsTest, DefaultColoursComeBack) {
  W().SetGridColor(1);
  W().SetAxesColor(2);
  W().ChooseGraphColour(3);
  W().pDraw().SetBackColor(4);
  commands->ColourMenu(WindowCommands::ColourEntry::Default);
  EXPECT_EQ(W().Pen().GridColor(), 0xBFBFBFu);
  EXPECT_EQ(W().Pen().AxesColor(), 0u);
  EXPECT_EQ(W().Pen().Graph_Clr(), 0xC08000u);
  EXPECT_EQ(W().pDraw().BackColor(), 0xF5F5F5u);
  EXPECT_EQ(f.settings.Query(keys::kBoje, keys::boje::kGrafik), std::optional<std::string>("12615680"));
  EXPECT_EQ(f.settings.Query(keys::kBoje, keys::boje::kPozadina), std::optional<std::string>("16119285"));
  EXPECT_EQ(f.settings.Query(keys::kBoje, keys::boje::kGrid), std::optional<std::string>("12566463"));
  EXPECT_EQ(f.settings.Query(keys::kBoje, keys::boje::kOse), std::optional<std::string>("0"));
}

TEST_F(CommandsTest, AColourMenuRedrawsTheFunctionsOfTheWindow) {
  OneFunction();
  W().SettxtY("other");
  colours.answers.push_back(0x00FF00);
  commands->ColourMenu(WindowCommands::ColourEntry::Axes);
  EXPECT_EQ(W().Boxes().txtY().Text, "X");  // the list was replayed
}

TEST_F(CommandsTest, NoColourDialogMeansNoColourCommand) {
  WindowCommands bare(W(), f.settings, f.messages, nullptr, nullptr, nullptr);
  EXPECT_FALSE(bare.mnuBojeBack());
  EXPECT_FALSE(bare.Sav1([](const std::string&) { return true; }));
}

// ---- Clear commands ------------------------------------------------------------------

TEST_F(CommandsTest, ClearAllAsksAndClearsTheLists) {
  OneFunction();
  f.messages.Answer(MsgResult::No);
  commands->ClearAll();
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, "Clear graphs and equation lists?");
  EXPECT_EQ(f.messages.Boxes()[0].title, "Clear All");
  EXPECT_EQ(f.messages.Boxes()[0].buttons, MsgButtons::YesNo);
  EXPECT_EQ(W().State().KolkoFunkc(), 1);
  EXPECT_TRUE(f.surface.Ops().empty());
  f.messages.Answer(MsgResult::Yes);
  commands->ClearAll();
  EXPECT_EQ(W().State().KolkoFunkc(), 0);
  EXPECT_TRUE(W().Boxes().txtY().List.empty());
  EXPECT_TRUE(Cleared());
}

TEST_F(CommandsTest, ClearAllWithoutFunctionsDoesNotAsk) {
  commands->ClearAll();
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_TRUE(Cleared());
}

TEST_F(CommandsTest, ClearScreenKeepsTheLists) {
  OneFunction();
  commands->ClearScreen();
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_TRUE(Cleared());
  EXPECT_FALSE(f.surface.Lines().empty());  // the paper again
  EXPECT_EQ(W().State().KolkoFunkc(), 1);
  EXPECT_EQ(W().Boxes().txtY().List.size(), 1u);
  EXPECT_FALSE(W().State().Zezaj());
}

TEST_F(CommandsTest, ClearHistoryAsksThenEmptiesTheFile) {
  WindowWithHistory();
  ASSERT_FALSE(W().rtb().empty());
  f.messages.Answer(MsgResult::No);
  commands->mnuclhistory();
  EXPECT_EQ(f.messages.Boxes()[0].text, "Clear Function History?");
  EXPECT_EQ(f.messages.Boxes()[0].icon, MsgIcon::Question);
  EXPECT_EQ(f.messages.Boxes()[0].buttons, MsgButtons::YesNo);
  EXPECT_FALSE(W().rtb().empty());
  f.messages.Answer(MsgResult::Yes);
  commands->mnuclhistory();
  EXPECT_TRUE(W().rtb().empty());
  EXPECT_TRUE(history->ReadAll().empty());
}

struct ClearGridCase {
  const char* name;
  bool apply;   // the apply path (ApplyClearGrid, ApplyRedrawGrid), which never asks
  bool redraw;  // "&Redraw Grid" rather than "Clear &Grid"
  const char* autored;
  bool functions;
  bool asks;
  MsgResult answer;
  bool cleared;   // the surface was cleared first
  bool paper;     // the paper was painted
  bool replayed;  // the functions came back
};

const ClearGridCase kClearGridCases[] = {
    // AutoRedraw on: no question; the functions come back (without paper).
    {"GridAutoOn", false, false, "1", true, false, MsgResult::Ok, true, false, true},
    // AutoRedraw off with functions: the question; Cancel stops.
    {"GridAutoOffCancel", false, false, "0", true, true, MsgResult::Cancel, false, false, false},
    {"GridAutoOffOk", false, false, "0", true, true, MsgResult::Ok, true, false, false},
    // Nothing drawn: nothing to lose, no question.
    {"GridAutoOffEmpty", false, false, "0", false, false, MsgResult::Ok, true, false, false},
    // Redraw Grid paints the paper over the picture.
    {"RedrawAutoOn", false, true, "1", true, false, MsgResult::Ok, false, true, true},
    {"RedrawAutoOffCancel", false, true, "0", true, true, MsgResult::Cancel, false, false, false},
    {"RedrawAutoOffOk", false, true, "0", true, true, MsgResult::Ok, false, true, false},
    // The apply paths act as after Ok, without the question.
    {"ApplyGridAutoOff", true, false, "0", true, false, MsgResult::Ok, true, false, false},
    {"ApplyGridAutoOn", true, false, "1", true, false, MsgResult::Ok, true, false, true},
    {"ApplyRedrawAutoOff", true, true, "0", true, false, MsgResult::Ok, false, true, false},
    {"ApplyRedrawAutoOn", true, true, "1", true, false, MsgResult::Ok, false, true, true},
};

class ClearGridTest : public CommandsTest, public ::testing::WithParamInterface<ClearGridCase> {};

TEST_P(ClearGridTest, AsksOnlyWhenFunctionsWouldBeLost) {
  const ClearGridCase& c = GetParam();
  f.settings.Store(keys::kGrid, keys::grid::kAutored, c.autored);
  if (c.functions) OneFunction();
  W().SettxtY("typed");
  if (c.asks) f.messages.Answer(c.answer);
  if (c.apply && c.redraw) {
    commands->ApplyRedrawGrid();
  } else if (c.apply) {
    commands->ApplyClearGrid();
  } else if (c.redraw) {
    commands->RedrawGrid();
  } else {
    commands->ClearGrid();
  }
  if (c.asks) {
    ASSERT_EQ(f.messages.Boxes().size(), 1u);
    EXPECT_EQ(f.messages.Boxes()[0].text, "Your current graph(s) will be erased.\r\nContinue?");
    EXPECT_EQ(f.messages.Boxes()[0].title, "Clear");
    EXPECT_EQ(f.messages.Boxes()[0].buttons, MsgButtons::OkCancel);
  } else {
    EXPECT_TRUE(f.messages.Boxes().empty());
  }
  EXPECT_EQ(Cleared(), c.cleared);
  EXPECT_EQ(!f.surface.LinesIn(0xBFBFBF).empty(), c.paper);
  EXPECT_EQ(W().Boxes().txtY().Text == "X", c.replayed);
}

INSTANTIATE_TEST_SUITE_P(Cases, ClearGridTest, ::testing::ValuesIn(kClearGridCases),
                         [](const auto& param) { return std::string(param.param.name); });

TEST_F(CommandsTest, ClearFunctionAsksThenEmptiesTheBox) {
  W().SettxtY("SinX");
  f.messages.Answer(MsgResult::Cancel);
  commands->ClearFju();
  EXPECT_EQ(f.messages.Boxes()[0].text, "Function expression will be erased.\r\nContinue?");
  EXPECT_EQ(f.messages.Boxes()[0].title, "Clear Function");
  EXPECT_EQ(W().Boxes().txtY().Text, "SinX");
  f.messages.Answer(MsgResult::Ok);
  commands->ClearFju();
  EXPECT_TRUE(W().Boxes().txtY().Text.empty());
}

TEST_F(CommandsTest, SwapExchangesTheTwoTexts) {
  W().SettxtY("SinK");
  W().SettxtX("CosK");
  commands->SwapYX();
  EXPECT_EQ(W().Boxes().txtY().Text, "CosK");
  EXPECT_EQ(W().Boxes().txtX().Text, "SinK");
}

// ---- Apply paths ------------------------------------------------------------------
// What a command does once answered, called without the question: the
// catalogue and the cli reach the commands this way.

struct ApplyColourCase {
  const char* name;
  WindowCommands::ColourEntry entry;
  const char* key;
  bool paper;  // the empty paper is painted again
};

class ApplyColourTest : public CommandsTest, public ::testing::WithParamInterface<ApplyColourCase> {};

TEST_P(ApplyColourTest, SetsSavesAndRedrawsWithoutTheDialog) {
  const ApplyColourCase& c = GetParam();
  OneFunction();
  W().SettxtY("other");
  commands->ApplyColour(c.entry, 0x00FF00);
  EXPECT_TRUE(colours.opened.empty()) << "no dialog";
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_EQ(f.settings.Query(keys::kBoje, c.key), std::optional<std::string>("65280"));
  EXPECT_EQ(Cleared(), c.paper);
  EXPECT_EQ(W().Boxes().txtY().Text, "X") << "the window's functions are drawn again";
  EXPECT_FALSE(W().State().Zezaj());
}

INSTANTIATE_TEST_SUITE_P(Entries, ApplyColourTest,
                         ::testing::Values(
                             // The background, grid and axes colours show on the paper at once.
                             ApplyColourCase{"Background", WindowCommands::ColourEntry::Background,
                                             "Pozadina", true},
                             ApplyColourCase{"Grid", WindowCommands::ColourEntry::Grid, "Grid", true},
                             ApplyColourCase{"Axes", WindowCommands::ColourEntry::Axes, "Ose", true},
                             // The graph colour is the pen of the next plot: the paper stays.
                             ApplyColourCase{"Graph", WindowCommands::ColourEntry::Graph, "Grafik", false}),
                         [](const auto& param) { return std::string(param.param.name); });

TEST_F(CommandsTest, ApplyColourSetsTheColourItNames) {
  commands->ApplyColour(WindowCommands::ColourEntry::Background, 0x112233);
  EXPECT_EQ(W().pDraw().BackColor(), 0x112233u);
  commands->ApplyColour(WindowCommands::ColourEntry::Grid, 0x0000FF);
  EXPECT_EQ(W().Pen().GridColor(), 0x0000FFu);
  commands->ApplyColour(WindowCommands::ColourEntry::Axes, 0x00FF00);
  EXPECT_EQ(W().Pen().AxesColor(), 0x00FF00u);
  // Only the colour's 24 bits are kept, as from the dialog.
  commands->ApplyColour(WindowCommands::ColourEntry::Graph, 0xFF123456);
  EXPECT_EQ(W().Pen().Graph_Clr(), 0x123456u);
  EXPECT_EQ(f.settings.Query(keys::kBoje, keys::boje::kGrafik), std::optional<std::string>("1193046"));
}

TEST_F(CommandsTest, ApplyDefaultColourTakesTheFirstStartColours) {
  W().SetGridColor(1);
  W().pDraw().SetBackColor(4);
  commands->ApplyColour(WindowCommands::ColourEntry::Default, 0x123456);  // the colour is ignored
  EXPECT_EQ(W().Pen().GridColor(), 0xBFBFBFu);
  EXPECT_EQ(W().pDraw().BackColor(), 0xF5F5F5u);
  EXPECT_EQ(f.settings.Query(keys::kBoje, keys::boje::kPozadina), std::optional<std::string>("16119285"));
}

TEST_F(CommandsTest, ApplyClearAllClearsWithoutAsking) {
  OneFunction();
  commands->ApplyClearAll();
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_EQ(W().State().KolkoFunkc(), 0);
  EXPECT_TRUE(W().Boxes().txtY().List.empty());
  EXPECT_TRUE(Cleared());
}

TEST_F(CommandsTest, ApplyClearHistoryEmptiesTheFileWithoutAsking) {
  WindowWithHistory();
  ASSERT_FALSE(W().rtb().empty());
  commands->ApplyClearHistory();
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_TRUE(W().rtb().empty());
  EXPECT_TRUE(history->ReadAll().empty());
}

TEST_F(CommandsTest, ApplyClearFjuEmptiesTheBoxWithoutAsking) {
  W().SettxtY("SinX");
  commands->ApplyClearFju();
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_TRUE(W().Boxes().txtY().Text.empty());
}

TEST_F(CommandsTest, NoApplyRunsDuringADraw) {
  OneFunction();
  W().SettxtY("SinK");
  history->Append({"", " Y(X) = x"});
  auto busy = W().Busy();
  commands->ApplyColour(WindowCommands::ColourEntry::Background, 0x112233);
  commands->ApplyColour(WindowCommands::ColourEntry::Default);
  commands->ApplyClearAll();
  commands->ApplyClearHistory();
  commands->ApplyClearGrid();
  commands->ApplyRedrawGrid();
  commands->ApplyClearFju();
  EXPECT_TRUE(f.surface.Ops().empty());
  EXPECT_EQ(W().pDraw().BackColor(), 0xF5F5F5u);
  EXPECT_FALSE(f.settings.Query(keys::kBoje, keys::boje::kPozadina).has_value());
  EXPECT_EQ(W().State().KolkoFunkc(), 1);
  EXPECT_EQ(W().Boxes().txtY().Text, "SinK");
  EXPECT_FALSE(history->ReadAll().empty());
}

TEST_F(CommandsTest, NothingRunsDuringADraw) {
  OneFunction();
  W().SettxtY("SinK");
  auto busy = W().Busy();
  commands->ClearAll();
  commands->ClearScreen();
  commands->ClearGrid();
  commands->RedrawGrid();
  commands->ClearFju();
  commands->mnuclhistory();
  commands->SwapYX();
  commands->ColourMenu(WindowCommands::ColourEntry::Background);
  commands->mnuBojeDef();
  EXPECT_FALSE(commands->Sav1([](const std::string&) { return true; }));
  EXPECT_TRUE(f.messages.Boxes().empty());
  EXPECT_TRUE(colours.opened.empty());
  EXPECT_TRUE(files.asked.empty());
  EXPECT_TRUE(f.surface.Ops().empty());
  EXPECT_EQ(W().Boxes().txtY().Text, "SinK");
}

// ---- Sav1 -----------------------------------------------------------------------------

class SaveTest : public CommandsTest {
 protected:
  bool Save() {
    return commands->Sav1([this](const std::string& path) {
      written.push_back(path);
      std::ofstream(path) << "BM";
      return writes;
    });
  }
  std::string Path(const char* name) { return (folder_ / name).string(); }
  std::vector<std::string> written;
  bool writes = true;
};

TEST_F(SaveTest, ANewFileIsWrittenWithoutAQuestion) {
  files.answers.push_back(Path("graph.bmp"));
  EXPECT_TRUE(Save());
  ASSERT_EQ(files.asked.size(), 1u);
  EXPECT_EQ(files.asked[0].title, "Save Graph As");
  EXPECT_EQ(files.asked[0].filter, "Bitmap (*.bmp)|*.bmp");
  EXPECT_EQ(files.asked[0].defaultName, "");
  EXPECT_EQ(written, std::vector<std::string>{Path("graph.bmp")});
  EXPECT_TRUE(f.messages.Boxes().empty());
}

TEST_F(SaveTest, ANameWithoutExtensionGetsBmp) {
  files.answers.push_back(Path("graph"));
  EXPECT_TRUE(Save());
  EXPECT_EQ(written, std::vector<std::string>{Path("graph.bmp")});
}

TEST_F(SaveTest, AnExistingFileIsReplacedOnlyOnYes) {
  std::ofstream(Path("old.bmp")) << "old";
  files.answers.push_back(Path("old.bmp"));
  f.messages.Answer(MsgResult::No);
  EXPECT_FALSE(Save());
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, Path("old.bmp") + " already exists.\r\nDo you want to replace it?");
  EXPECT_EQ(f.messages.Boxes()[0].title, "Save As");
  EXPECT_EQ(f.messages.Boxes()[0].buttons, MsgButtons::YesNo);
  EXPECT_TRUE(written.empty());
  files.answers.push_back(Path("old.bmp"));
  f.messages.Answer(MsgResult::Yes);
  EXPECT_TRUE(Save());
  EXPECT_EQ(written, std::vector<std::string>{Path("old.bmp")});
}

TEST_F(SaveTest, ACancelledDialogWritesNothing) {
  files.answers.push_back(std::nullopt);
  EXPECT_FALSE(Save());
  EXPECT_TRUE(written.empty());
}

TEST_F(SaveTest, AFailedWriteIsReported) {
  files.answers.push_back(Path("graph.bmp"));
  writes = false;
  EXPECT_FALSE(Save());
  ASSERT_EQ(f.messages.Boxes().size(), 1u);
  EXPECT_EQ(f.messages.Boxes()[0].text, Path("graph.bmp") + "\r\nThe picture could not be saved.");
  EXPECT_EQ(f.messages.Boxes()[0].icon, MsgIcon::Critical);
}

TEST_F(CommandsTest, CopiesAreFramedWhenRamIsOn) {
  EXPECT_FALSE(commands->FrameOnCopies());
  f.settings.Store(keys::kGrid, keys::grid::kRam, "1");
  EXPECT_TRUE(commands->FrameOnCopies());
}

}  // namespace
}  // namespace velmora::graph
