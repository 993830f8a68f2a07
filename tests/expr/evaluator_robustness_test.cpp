// Long lines, deep nesting and stray bytes: the evaluator answers each in
// time proportional to its length, and nesting past its limit is the
// platform's "Out of stack space" fault, trapped as error 16.
#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>

#include "expr/evaluator.h"
#include "expr/fault.h"
#include "expr/normalise.h"
#include "tests/expr/fakegraphwindow.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::expr {
namespace {

using testing::FakeGraphWindow;

#if defined(__SANITIZE_ADDRESS__)
constexpr double kSlowdown = 8.0;  // the sanitizers slow everything down
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr double kSlowdown = 8.0;
#else
constexpr double kSlowdown = 1.0;
#endif
#else
constexpr double kSlowdown = 1.0;
#endif

std::string Repeat(std::string_view piece, std::size_t times) {
  std::string out;
  out.reserve(piece.size() * times);
  for (std::size_t i = 0; i < times; ++i) out += piece;
  return out;
}

std::string Nested(std::string_view open, std::string_view core, std::string_view close, std::size_t depth) {
  return Repeat(open, depth) + std::string(core) + Repeat(close, depth);
}

std::string RandomBytes(std::size_t n, unsigned seed) {
  std::mt19937 gen(seed);
  std::uniform_int_distribution<int> byte(0, 255);
  std::string out(n, '\0');
  for (auto& c : out) c = static_cast<char>(byte(gen));
  return out;
}

struct LongCase {
  std::string text;
  int error;
  double value;
  const char* why;
};

std::vector<LongCase> LongCases() {
  const std::string big = "1" + std::string(308, '0');
  return {
      {Repeat("1+", 500000) + "1", 0, 500001, "a million characters of sum"},
      {Repeat("1*", 500000) + "1", 0, 1, "a million characters of product"},
      {std::string(1000000, '('), 8, 0, "a million open brackets"},
      {std::string(1000000, ')'), 8, 0, "a million closing brackets"},
      {Nested("(", "1", ")", 500000), 16, 0, "half a million levels: out of stack space"},
      {Nested("(", "1", ")", 10000), 16, 0, "ten thousand levels"},
      {Nested("SIN(", "0", ")", 10000), 16, 0, "ten thousand nested calls"},
      {Nested("(-", "1", ")", 10000), 16, 0, "nested signs"},
      {Nested("(", "1", ")", 999), 0, 1, "999 brackets: 1000 sums, the limit"},
      {Nested("(", "1", ")", 1000), 16, 0, "one level more"},
      {Nested("ABS(", "-2", ")", 999), 0, 2, "999 calls"},
      {std::string(1000000, '1'), 16, 0, "a million digits overflow"},
      {"0," + std::string(1000000, '1'), 0, 0.111111111111111, "a million decimals"},
      {std::string(1000000, '-'), 2, 0, "a million signs"},
      {Repeat("(1)", 300000), 2, 0, "implied products"},
      {Repeat("2^", 300000) + "2", 2, 0, "a long power chain"},
      {Repeat("A", 1000000) + "(1)", 2, 0, "a very long unknown name"},
      {big + "0", 16, 0, "a 310-digit number overflows in its term"},
  };
}

TEST(LongInputTest, AnswersInTime) {
  for (const auto& c : LongCases()) {
    FakeGraphWindow window;
    Evaluator ev(nullptr, &window);
    const auto start = std::chrono::steady_clock::now();
    const double value = ev.Evaluate(c.text, true);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_EQ(ev.Error(), c.error) << c.why;
    EXPECT_NEAR(value, c.value, 1e-9) << c.why;
    EXPECT_LT(seconds, 0.5 * kSlowdown) << c.why;
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

TEST(LongInputTest, ChainsStayLinear) {
  const std::string text = Repeat("SinX+Exp(K)*{k^2}-", 60000);  // over a million characters
  const auto start = std::chrono::steady_clock::now();
  for (auto chain :
       {CleanUp, EvaluationForm, ProveriSyn, Zagrade, NormalizeShortForms, ZameniSve, ToolTextForm}) {
    EXPECT_FALSE(chain(text).empty());
  }
  EXPECT_FALSE(SubstituteValue(EvaluationForm(text), -1.5).empty());
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  EXPECT_LT(seconds, 2.0 * kSlowdown);
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
