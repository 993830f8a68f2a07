#include "geometry/euclid.h"

#include <gtest/gtest.h>

#include "tests/geometry/geotest.h"

namespace velmora::geometry {
namespace {

using platform::MsgIcon;
using testing::CheckRefusal;
using testing::CheckSolve;
using testing::RefusalCase;
using testing::SolveCase;

class EuclidSolveTest : public ::testing::TestWithParam<SolveCase> {};
TEST_P(EuclidSolveTest, WritesTheRecord) { CheckSolve(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Cases, EuclidSolveTest,
    ::testing::Values(
        // m = 1, n = 4: a = 5, h = Sqr(4) = 2, b = Sqr(5), c = Sqr(20), S = 5*2/2, P = 5 + Sqr(5) + Sqr(20).
        SolveCase{"euclid",
                  "mn",
                  {"1", "4"},
                  {{"txtecm", "1"},
                   {"txtecn", "4"},
                   {"txteca", "5"},
                   {"txtecb", "2.23607"},
                   {"txtecc", "4.47214"},
                   {"txtech", "2"},
                   {"txtP1", "5"},
                   {"txtO1", "11.7082"}},
                  {"Euclid's Theorem: m = 1 ; n = 4", "a = 5 ; b = 2.23607 ; c = 4.47214 ; h = 2",
                   "S = 5 ; P = 11.7082"},
                  "segments 1 and 4"},
        // m = 9, n = 16: a = 25, h = 12, b = 15, c = 20 (the 15-20-25 triangle), S = 150, P = 60.
        SolveCase{"euclid",
                  "mn",
                  {"9", "16"},
                  {{"txteca", "25"},
                   {"txtecb", "15"},
                   {"txtecc", "20"},
                   {"txtech", "12"},
                   {"txtP1", "150"},
                   {"txtO1", "60"}},
                  {},
                  "segments 9 and 16"}));

class EuclidRefusalTest : public ::testing::TestWithParam<RefusalCase> {};
TEST_P(EuclidRefusalTest, ShowsItsMessageAndWritesNothing) { CheckRefusal(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Cases, EuclidRefusalTest,
                         ::testing::Values(RefusalCase{"euclid",
                                                       "mn",
                                                       {"0", "4"},
                                                       "Invalid input: m, n > 0  required.",
                                                       MsgIcon::Critical,
                                                       "m = 0"},
                                           RefusalCase{"euclid",
                                                       "mn",
                                                       {"1", "-4"},
                                                       "Invalid input: m, n > 0  required.",
                                                       MsgIcon::Critical,
                                                       "negative n"},
                                           RefusalCase{"euclid",
                                                       "mn",
                                                       {"1e308", "1e308"},
                                                       "Check selected values.",
                                                       MsgIcon::Critical,
                                                       "m + n overflows"}));

TEST(EuclidPage, HelpTexts) {
  const auto help = EuclidHelp();
  EXPECT_EQ(std::vector<std::string_view>(help.begin(), help.end()),
            (std::vector<std::string_view>{
                "Euclid's Theorem: segments  m, n", "p / 2 = a + b + c", " ; h = Sqr ( m * n)",
                "S = 1/2 * (a * h) = Sqr [p * (p-a) * (p-b) * (p-c)]", "h = Sqr ( m * n)", "b = Sqr (a * m)",
                "c = Sqr ( a * n)", "a = m + n"}));
}

}  // namespace
}  // namespace velmora::geometry
