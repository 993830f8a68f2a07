// The frame's menus: every caption with its access letter, control name and
// index, and the rules that keep tools of later versions disabled.
#include "app/menutable.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "app/toolbartable.h"

namespace velmora::app {
namespace {

struct Row {
  std::string_view menu;     // caption of the menu (or submenu) holding the entry
  std::string_view name;     // control name
  int index;                 // control index, -1 for none
  std::string_view caption;  // exact caption
  char letter;               // access letter
};

// Every entry in menu order; separators are left out.
const Row kRows[] = {
    {"&File", "mnuFile", 0, "&New", 'N'},
    {"&File", "mnuFile", 1, "&Close", 'C'},
    {"&File", "mnuFile", 3, "&Draw Function", 'D'},
    {"&File", "mnuFile", 4, "Draw &Tangent && Normal...", 'T'},  // "&&" is a plain ampersand
    {"&File", "mnuFile", 5, "Draw &Integral && Average...", 'I'},
    {"&File", "mnuFile", 6, "Draw D&erivative", 'e'},
    {"&File", "mnuFile", 7, "S&wap Y - X", 'w'},
    {"&File", "mnuFile", 9, "Save &Graph As", 'G'},
    {"Save &Graph As", "mnubmp", -1, "&BMP, WMF", 'B'},
    {"Save &Graph As", "mnujpg", -1, "&JPEG...", 'J'},
    {"&File", "mnuFile", 10, "&Save History...", 'S'},
    {"&File", "mnuFile", 12, "&Print", 'P'},
    {"&Print", "mnuFile2", -1, "&Graph...", 'G'},
    {"&Print", "mnuFile3", -1, "&History...", 'H'},
    {"&File", "mnuFile", 13, "Print Set&up...", 'u'},
    {"&File", "mnuFile", 15, "E&xit", 'x'},
    {"&Edit", "mnued1", -1, "&Copy Graph", 'C'},
    {"&Edit", "mnued2", -1, "Clear &All", 'A'},
    {"&Edit", "mnued3", -1, "Clear &Screen", 'S'},
    {"&Edit", "mnued4", -1, "Clear &History", 'H'},
    {"&Edit", "mnuclearall", -1, "Clear &Grid", 'G'},
    {"&Edit", "mnuredraw", -1, "&Redraw Grid", 'R'},
    {"&Edit", "mnuglwidth", -1, "Graph Line &Width...", 'W'},
    {"&View", "mnuView", 0, "&Drawing Toolbar", 'D'},
    {"&View", "mnuView", 1, "&Standard Toolbar", 'S'},
    {"&View", "mnuView", 2, "&Calculators Toolbar", 'C'},
    {"&View", "mnuView", 3, "&Tools Toolbar", 'T'},
    {"&Graph", "mnuFtypeMenu", -1, "&Function Type", 'F'},
    {"&Function Type", "mnuftype", 0, "&Cartesian", 'C'},
    {"&Function Type", "mnuftype", 1, "&Parametric", 'P'},
    {"&Function Type", "mnuftype", 2, "P&olar", 'o'},
    {"&Graph", "mnuZoomMenu", -1, "&Zoom", 'Z'},
    {"&Zoom", "mnuZoom", 0, "Zoom&in", 'i'},
    {"&Zoom", "mnuZoom", 1, "Zoom&out", 'o'},
    {"&Zoom", "mnuZoom", 2, "&Default", 'D'},
    {"&Zoom", "mnuZoom", 4, "&Custom...", 'C'},
    {"&Graph", "mnuMoveMenu", -1, "&Move", 'M'},
    {"&Move", "mnuMove", 0, "&Left...", 'L'},
    {"&Move", "mnuMove", 1, "&Right...", 'R'},
    {"&Move", "mnuMove", 2, "&Up...", 'U'},
    {"&Move", "mnuMove", 3, "&Down...", 'D'},
    {"&Move", "mnuMove", 4, "&Center", 'C'},
    {"&Graph", "mnuColorMenu", -1, "&Color", 'C'},
    {"&Color", "mnuColor", 0, "&Background...", 'B'},
    {"&Color", "mnuColor", 1, "G&rid...", 'r'},
    {"&Color", "mnuColor", 2, "&Axes...", 'A'},
    {"&Color", "mnuColor", 3, "&Graph...", 'G'},
    {"&Color", "mnuColor", 4, "&Default", 'D'},
    {"&Graph", "mnuOptions", -1, "Plotting &Options...", 'O'},
    {"&Tools", "mnuTools", 0, "&Evaluator...", 'E'},
    {"&Tools", "mnuTools", 1, "&Point Evaluate...", 'P'},
    {"&Tools", "mnuTools", 3, "&Integrate...", 'I'},
    {"&Tools", "mnuTools", 4, "Find Critic&al Points...", 'a'},
    {"&Tools", "mnuTools", 5, "Find &Zeros...", 'Z'},
    {"&Tools", "mnuTools", 6, "Find I&ntersection...", 'n'},
    {"&Tools", "mnuTools", 8, "Insert &Label...", 'L'},
    {"&Tools", "mnuTools", 9, "&Value Tables...", 'V'},
    {"&Tools", "mnuTools", 11, "&Scientific Calculator...", 'S'},
    {"&Tools", "mnuTools", 12, "&Complex Calculator...", 'C'},
    {"&Tools", "mnuTools", 13, "&Geometry Calculator...", 'G'},
    {"&Tools", "mnuTools", 14, "&Matrix Calculator...", 'M'},
    {"&Tools", "mnuTools", 15, "&Units Converter...", 'U'},
    {"&Tools", "mnuTools", 17, "Mat&hPad", 'h'},
    {"&Window", "mnuWinall", 0, "&Cascade", 'C'},
    {"&Window", "mnuWinall", 1, "&Tile", 'T'},
    {"&Help", "mnuHelpContents", -1, "&Contents...", 'C'},
    {"&Help", "mnuhelp", -1, "&Read Me...", 'R'},
    {"&Help", "mnuAbout", -1, "&About Velmora...", 'A'},
};

void Collect(std::string_view menu, std::span<const MenuItem> items, std::vector<Row>& out) {
  for (const MenuItem& item : items) {
    if (item.IsSeparator()) continue;
    out.push_back({menu, item.name, item.index, item.caption, AccessLetter(item.caption)});
    Collect(item.caption, item.submenu, out);
  }
}

TEST(MenuTable, EveryCaptionAccessLetterNameAndIndexInOrder) {
  std::vector<Row> actual;
  for (const TopMenu& menu : MenuBar()) Collect(menu.caption, menu.items, actual);
  ASSERT_EQ(actual.size(), std::size(kRows));
  for (std::size_t i = 0; i < actual.size(); ++i) {
    SCOPED_TRACE(kRows[i].caption);
    EXPECT_EQ(actual[i].menu, kRows[i].menu);
    EXPECT_EQ(actual[i].name, kRows[i].name);
    EXPECT_EQ(actual[i].index, kRows[i].index);
    EXPECT_EQ(actual[i].caption, kRows[i].caption);
    EXPECT_EQ(actual[i].letter, kRows[i].letter);
  }
}

TEST(MenuTable, MenuBarInOrder) {
  const std::vector<std::string_view> expected{"&File",  "&Edit",     "&View",   "&Graph",
                                               "&Tools", "&Examples", "&Window", "&Help"};
  std::vector<std::string_view> actual;
  for (const TopMenu& menu : MenuBar()) actual.push_back(menu.caption);
  EXPECT_EQ(actual, expected);
}

TEST(MenuTable, AccessLetters) {
  struct Case {
    std::string_view caption;
    char letter;
  };
  const Case cases[] = {
      {"&New", 'N'},                        // first letter
      {"E&xit", 'x'},                       // inside
      {"Draw &Tangent && Normal...", 'T'},  // a literal ampersand later
      {"Drag && &Drop", 'D'},               // a literal ampersand first
      {"No letter", 0},                     // none
      {"Trailing &", 0},                    // nothing after it
  };
  for (const auto& c : cases) EXPECT_EQ(AccessLetter(c.caption), c.letter) << c.caption;
}

TEST(MenuTable, NoTwoEntriesOfOneMenuShareAnAccessLetter) {
  // The File menu's Print submenu and Save submenu stand apart; within one
  // list each letter reaches one entry.
  std::function<void(std::string_view, std::span<const MenuItem>)> check =
      [&](std::string_view menu, std::span<const MenuItem> items) {
        std::set<char> seen;
        for (const MenuItem& item : items) {
          if (item.IsSeparator()) continue;
          const char letter = static_cast<char>(std::tolower(AccessLetter(item.caption)));
          EXPECT_TRUE(seen.insert(letter).second) << menu << ": " << item.caption;
          check(item.caption, item.submenu);
        }
      };
  for (const TopMenu& menu : MenuBar()) check(menu.caption, menu.items);
}

TEST(MenuTable, ToolsOfLaterVersionsAreDisabledAndTheGraphCommandsNeedAWindow) {
  struct Case {
    std::string_view name;
    int index;
    EnableRule rule;
    Command command;
  };
  const Case cases[] = {
      {"mnuFile", 0, EnableRule::Always, Command::New},
      {"mnuFile", 1, EnableRule::NeedsWindow, Command::Close},
      {"mnuFile", 3, EnableRule::NeedsWindow, Command::DrawFunction},
      {"mnuFile", 4, EnableRule::NeedsWindow, Command::DrawTangent},
      {"mnuFile", 13, EnableRule::Always, Command::PrintSetup},
      {"mnuFile", 15, EnableRule::Always, Command::Exit},
      {"mnubmp", -1, EnableRule::NeedsWindow, Command::SaveBmp},
      {"mnujpg", -1, EnableRule::NeedsWindow, Command::SaveJpeg},
      {"mnuFile2", -1, EnableRule::NeedsWindow, Command::PrintGraph},
      {"mnuFile3", -1, EnableRule::NeedsWindow, Command::PrintHistory},
      {"mnued2", -1, EnableRule::NeedsWindow, Command::ClearAll},
      {"mnuclearall", -1, EnableRule::NeedsWindow, Command::ClearGrid},
      {"mnuTools", 11, EnableRule::NotBuilt, Command::ToolScientific},
      {"mnuTools", 12, EnableRule::Always, Command::ToolComplex},
      {"mnuTools", 14, EnableRule::Always, Command::ToolMatrix},
      {"mnuTools", 17, EnableRule::Always, Command::ToolMathPad},
      {"mnuOptions", -1, EnableRule::NeedsWindow, Command::Options},
      {"mnuHelpContents", -1, EnableRule::Always, Command::HelpContents},
  };
  for (const auto& c : cases) {
    const MenuItem* item = FindMenuItem(c.name, c.index);
    ASSERT_NE(item, nullptr) << c.name << c.index;
    EXPECT_EQ(item->enable, c.rule) << item->caption;
    EXPECT_EQ(item->command, c.command) << item->caption;
  }
}

TEST(MenuTable, ExitCaptionAtLoadAndTheRecentPlace) {
  EXPECT_EQ(kExitCaption, "E&xit\tAlt+F4");
  ASSERT_NE(FindMenuItem(kRecentPlace), nullptr);
  EXPECT_TRUE(FindMenuItem(kRecentPlace)->IsSeparator());
  EXPECT_EQ(FindMenuItem(kExitName, kExitIndex)->caption, "E&xit");
}

TEST(ToolbarTable, FourBandsAndTheirKeys) {
  const std::vector<std::vector<std::string_view>> expected{
      {"Draw Graph", "Draw Tangent", "Tangent/Normal", "Draw Integral", "Integral/Average", "Izvod", "Zoom",
       "Color", "Move", "ClearG", "ClearF"},
      {"New", "Copy", "Save", "Print"},
      {"Scientific", "Complex", "Geometry", "Matrix"},
      {"Newton", "Analiza", "Integral", "Tabela", "Label", "MathPad", "Options", "Evaluator", "Calc"},
  };
  const auto bars = Toolbars();
  ASSERT_EQ(bars.size(), 4u);
  for (std::size_t b = 0; b < 4; ++b) {
    EXPECT_EQ(bars[b].band, static_cast<int>(b + 1));
    std::vector<std::string_view> keys;
    for (const auto& button : bars[b].buttons) keys.push_back(button.key);
    EXPECT_EQ(keys, expected[b]);
  }
}

TEST(ToolbarTable, DropDownKeysAndCommands) {
  struct Case {
    std::string_view button;
    std::vector<std::string_view> keys;
  };
  const Case cases[] = {
      {"Zoom", {"Zoomin", "Zoomout", "Defaultzoom", "", "Finezoom"}},  // entry 4 is the separator
      {"Color", {"Back", "Grid", "Axes", "Graph", "", "Defaultcol"}},
      {"Move", {"Left", "Right", "Up", "Down", "", "Defaultmove"}},
      {"Save", {"bmp", "jpg"}},
      {"Newton", {"newt1", "newt2"}},
      {"Evaluator", {"ev1", "ev2"}},
      {"Calc", {"c1", "c2", "c3", "c4", "c6"}},
  };
  for (const auto& c : cases) {
    const ToolButton* button = FindToolButton(c.button);
    ASSERT_NE(button, nullptr) << c.button;
    std::vector<std::string_view> keys;
    for (const auto& item : button->menu) keys.push_back(item.key);
    EXPECT_EQ(keys, c.keys) << c.button;
  }
  // The zoom drop-down shows the window's texts at positions 1 to 3 and 5.
  const auto zoom = FindToolButton("Zoom")->menu;
  EXPECT_EQ(zoom[0].zoomEntry, 0);
  EXPECT_EQ(zoom[1].zoomEntry, 1);
  EXPECT_EQ(zoom[2].zoomEntry, 2);
  EXPECT_EQ(zoom[4].zoomEntry, 4);
  EXPECT_EQ(FindToolButton("Options")->command, Command::Options);
  EXPECT_EQ(FindToolButton("Options")->enable, EnableRule::NeedsWindow);
  EXPECT_EQ(FindToolButton("Scientific")->enable, EnableRule::NotBuilt);
  // The Complex Calculator is built: its key and the calculators' drop-down are live.
  EXPECT_EQ(FindToolButton("Complex")->enable, EnableRule::Always);
  EXPECT_EQ(FindToolButton("Calc")->enable, EnableRule::Always);
}

TEST(ToolbarTable, TheNewtonButtonHasACommandOfItsOwn) {
  // The button refuses a function that is not Cartesian; the menu entry and
  // the button's own drop-down entry do not, so they cannot share a command.
  const ToolButton* newton = FindToolButton("Newton");
  ASSERT_NE(newton, nullptr);
  EXPECT_EQ(newton->command, Command::ToolZerosCartesian);
  EXPECT_EQ(newton->enable, EnableRule::Always);
  EXPECT_EQ(newton->menu[0].command, Command::ToolZeros);
  const MenuItem* entry = FindMenuItem("mnuTools", 5);
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->command, Command::ToolZeros);
}

}  // namespace
}  // namespace velmora::app
