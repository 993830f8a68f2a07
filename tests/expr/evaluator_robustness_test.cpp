// Long lines, deep nesting and stray bytes: the evaluator answers each, and
// nesting past its limit is the platform's "Out of stack space" fault,
// trapped as error 16.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "expr/evaluator.h"
#include "expr/fault.h"
#include "expr/normalise.h"
#include "tests/expr/fakegraphwindow.h"
#include "tests/expr/longinput.h"
#include "tests/support/evaluatorstate.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::expr {
namespace {

using testing::FakeGraphWindow;
using testing::LongCases;
using testing::RandomBytes;

// How fast each answer comes: bench/longinput_bench.cpp.
TEST(LongInputTest, AnswersEachLongLine) {
  for (const auto& c : LongCases()) {
    FakeGraphWindow window;
    Evaluator ev(nullptr, &window);
    const double value = ev.Evaluate(c.text, true);
    EXPECT_EQ(ev.Error(), c.error) << c.why;
    EXPECT_NEAR(value, c.value, 1e-9) << c.why;
  }
}

TEST(LongInputTest, RandomBytesNeverCrash) {
  // Every byte value, the evaluator's operators among them, in long and
  // short lines, silent and loud, with and without a window.
  testing::RecordingMessageBox box;
  FakeGraphWindow window;
  for (unsigned seed = 1; seed <= 200; ++seed) {
    const std::string text = RandomBytes(seed == 1 ? 1000000 : seed * 7, seed);
    for (ActiveWindow* w : {static_cast<ActiveWindow*>(&window), static_cast<ActiveWindow*>(nullptr)}) {
      Evaluator ev(&box, w);
      try {
        ev.Evaluate(text, seed % 2 == 0);
        const int e = ev.Error();
        EXPECT_TRUE(e == 0 || e == 1 || e == 2 || e == 4 || e == 8 || e == 16) << e;
      } catch (const Fault&) {
        // Only the outermost addition may fault out; that is allowed.
      }
    }
    box.Clear();
  }
}

TEST(LongInputTest, OperatorSoup) {
  // Short texts over the grammar's own alphabet, where the cutting rules
  // meet each other most often.
  const std::string alphabet = "0123456789,.+-*/^()ESINPQX ";
  std::mt19937 gen(42);
  std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
  std::uniform_int_distribution<int> length(0, 24);
  FakeGraphWindow window;
  window.Rational("3", "1", "1");
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (int n = length(gen); n > 0; --n) text += alphabet[pick(gen)];
    Evaluator ev(nullptr, &window);
    try {
      const double v = ev.Evaluate(text, true);
      EXPECT_TRUE(std::isfinite(v)) << text;
    } catch (const Fault& f) {
      EXPECT_EQ(f.Number(), Fault::kOverflow) << text;
    }
  }
}

// That they stay linear in the length: bench/longinput_bench.cpp.
TEST(LongInputTest, ChainsTakeAMillionCharacters) {
  const std::string text = testing::LongTypedText();
  for (auto chain :
       {CleanUp, EvaluationForm, ProveriSyn, Zagrade, NormalizeShortForms, ZameniSve, ToolTextForm}) {
    EXPECT_FALSE(chain(text).empty());
  }
  EXPECT_FALSE(SubstituteValue(EvaluationForm(text), -1.5).empty());
}

TEST(FaultTest, NewDescriptions) {
  struct Row {
    int number;
    const char* description;
  };
  const Row rows[] = {
      {Fault::kOutOfStackSpace, "Out of stack space"},
      {Fault::kObjectNotSet, "Object variable or With block variable not set"},
      {28, "Out of stack space"},
  };
  for (const auto& r : rows) {
    EXPECT_EQ(FaultDescription(r.number), r.description);
    EXPECT_STREQ(Fault(r.number).what(), r.description);
  }
}

}  // namespace
}  // namespace velmora::expr
