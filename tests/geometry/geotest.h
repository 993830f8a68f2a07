#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "geometry/catalogue.h"
#include "geometry/solver.h"
#include "tests/support/recordingmessagebox.h"

// Shared steps of the geometry suites: run a menu entry as the window would
// (type the given values into the entry's boxes, pick the entry), then check
// boxes, result lines and message boxes.
namespace velmora::geometry::testing {

using Texts = std::vector<std::pair<std::string, std::string>>;

// A page record for `word`'s boxes with the values typed into the entry's
// input boxes, solved by the entry.
inline Figure RunEntry(const std::string& word, const std::string& entry,
                       const std::vector<std::string>& values, velmora::testing::RecordingMessageBox& box) {
  const FigureKind* kind = nullptr;
  const MenuEntry* e = FindEntry(word, entry, &kind);
  if (e == nullptr) {
    ADD_FAILURE() << "no entry " << entry << " for " << word;
    return Figure(BoxRecord(std::initializer_list<std::string_view>{}));
  }
  EXPECT_EQ(e->InputCount(), values.size()) << entry;
  Figure f{BoxRecord(kind->boxes)};
  for (std::size_t i = 0; i < values.size() && i < e->InputCount(); ++i)
    f.boxes.SetText(e->inputs[i], values[i]);
  e->solve(f, box);
  return f;
}

inline void ExpectBoxes(const Figure& f, const Texts& expected, const std::string& why) {
  for (const auto& [name, text] : expected) EXPECT_EQ(f.boxes.Text(name), text) << name << ": " << why;
}

// Exactly one box with this text, the calculator's title, an OK button and
// the given icon.
inline void ExpectOneMessage(const velmora::testing::RecordingMessageBox& box, const std::string& text,
                             platform::MsgIcon icon, const std::string& why) {
  ASSERT_EQ(box.Boxes().size(), 1u) << why;
  EXPECT_EQ(box.Boxes()[0].text, text) << why;
  EXPECT_EQ(box.Boxes()[0].title, "Velmora") << why;
  EXPECT_EQ(box.Boxes()[0].icon, icon) << why;
  EXPECT_EQ(box.Boxes()[0].buttons, platform::MsgButtons::Ok) << why;
}

// A solve case: the entry, its given values, the box texts and (optionally)
// the result lines it must produce, with no message.
struct SolveCase {
  std::string figure;
  std::string entry;
  std::vector<std::string> values;
  Texts boxes;
  std::vector<std::string> result;  // empty: not checked
  std::string why;
};

inline void CheckSolve(const SolveCase& c) {
  velmora::testing::RecordingMessageBox box;
  const Figure f = RunEntry(c.figure, c.entry, c.values, box);
  EXPECT_TRUE(box.Boxes().empty()) << c.why << ": " << (box.Boxes().empty() ? "" : box.Boxes()[0].text);
  ExpectBoxes(f, c.boxes, c.why);
  if (!c.result.empty()) {
    EXPECT_EQ(f.result, c.result) << c.why;
  }
}

// A refusal: the entry shows one message and writes nothing; every box but
// the given ones stays empty and the result line stays empty.
struct RefusalCase {
  std::string figure;
  std::string entry;
  std::vector<std::string> values;
  std::string text;
  platform::MsgIcon icon;
  std::string why;
};

inline void CheckRefusal(const RefusalCase& c) {
  velmora::testing::RecordingMessageBox box;
  const Figure f = RunEntry(c.figure, c.entry, c.values, box);
  ExpectOneMessage(box, c.text, c.icon, c.why);
  const MenuEntry* e = FindEntry(c.figure, c.entry);
  ASSERT_NE(e, nullptr);
  for (std::size_t i = 0; i < f.boxes.Size(); ++i) {
    bool given = false;
    for (std::size_t k = 0; k < e->InputCount(); ++k) {
      if (f.boxes.NameAt(i) == e->inputs[k]) {
        given = true;
        EXPECT_EQ(f.boxes.TextAt(i), c.values[k]) << "given box rewritten: " << c.why;
      }
    }
    if (!given) {
      EXPECT_EQ(f.boxes.TextAt(i), "") << f.boxes.NameAt(i) << " written: " << c.why;
    }
  }
  EXPECT_TRUE(f.result.empty()) << c.why;
}

}  // namespace velmora::geometry::testing
