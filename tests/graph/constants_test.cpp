#include "graph/constants.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

#include "expr/formulacontrol.h"

namespace velmora::graph {
namespace {

TEST(Constants, TheFirstMenuSkipsItsSeparatorAtIndexTwo) {
  const auto list = ConstantsAToJ();
  ASSERT_EQ(list.size(), 26u);
  EXPECT_EQ(list[0].index, 1);
  EXPECT_EQ(list[1].index, 3);
  EXPECT_EQ(list.back().index, 27);
  EXPECT_EQ(list.back().caption, "Josephson frequency/voltage ratio");
}

TEST(Constants, TheSecondMenuRunsFromOneToTwentySeven) {
  const auto list = ConstantsMToS();
  ASSERT_EQ(list.size(), 27u);
  for (std::size_t i = 0; i < list.size(); ++i) EXPECT_EQ(list[i].index, static_cast<int>(i) + 1);
}

struct Case {
  const char* why;
  bool first;
  int index;
  const char* caption;
  const char* text;
};

class ConstantEntryTest : public ::testing::TestWithParam<Case> {};

TEST_P(ConstantEntryTest, StandsAsWritten) {
  const auto& c = GetParam();
  for (const auto& entry : c.first ? ConstantsAToJ() : ConstantsMToS()) {
    if (entry.index != c.index) continue;
    EXPECT_EQ(entry.caption, c.caption) << c.why;
    EXPECT_EQ(entry.text, c.text) << c.why;
    return;
  }
  ADD_FAILURE() << "no entry " << c.index;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ConstantEntryTest,
    ::testing::Values(Case{"a power of ten stays text", true, 4, "Atomic mas unit", "1.66054*10^(-27)"},
                      Case{"misspelt names stay", true, 5, "Avagadro's constant", "6.022137*10^(23)"},
                      Case{"misspelt names stay", true, 20, "Euler costant", "0.577215664901533"},
                      Case{"the alpha particle's charge gives the proton's rest mass", false, 23,
                           "Specific charge of apha particle", "1.6726485*10^(-27)"},
                      Case{"the proton's rest mass", false, 21, "Rest mass of proton", "1.6726485*10^(-27)"},
                      Case{"a doubled word stays", false, 20, "Rest mass of of neutron",
                           "1.6749543*10^(-27)"}));

TEST(Constants, EveryTextEvaluatesInPlace) {
  auto engine = expr::MakeFormulaControl();
  for (const auto& list : {ConstantsAToJ(), ConstantsMToS()}) {
    for (const auto& entry : list) {
      engine->SetFormula(entry.text);
      const double value = engine->Result();
      engine->SetFormula("PopAll()");
      EXPECT_TRUE(std::isfinite(value) && value > 0) << entry.caption;
    }
  }
  engine->SetFormula("1.66054*10^(-27)");
  EXPECT_NEAR(engine->Result() / 1.66054e-27, 1, 1e-12);
}

TEST(Constants, TheConversionEntries) {
  const auto entries = ConvertEntries();
  ASSERT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries[0], "&Decimal");
  EXPECT_EQ(entries[3], "&Octadecimal");
}

}  // namespace
}  // namespace velmora::graph
