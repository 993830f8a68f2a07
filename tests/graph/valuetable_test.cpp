#include "graph/valuetable.h"

#include <gtest/gtest.h>

#include "expr/fault.h"
#include "graph/tablerows.h"

namespace velmora::graph {
namespace {

TEST(ValueTable, SizeKeepsCellsThatFit) {
  ValueTable t(2, 2);
  t.SetTextMatrix(1, 1, "a");
  t.SetRows(5);
  t.SetCols(3);
  EXPECT_EQ(t.TextMatrix(1, 1), "a");
  EXPECT_EQ(t.TextMatrix(4, 2), "");
  t.SetRows(1);
  EXPECT_EQ(t.Rows(), 1);
  EXPECT_THROW(t.TextMatrix(1, 1), expr::Fault);
}

TEST(ValueTable, OutsideTheGridFaults) {
  ValueTable t(2, 3);
  EXPECT_THROW(t.SetTextMatrix(2, 0, "x"), expr::Fault);
  EXPECT_THROW(t.SetTextMatrix(0, -1, "x"), expr::Fault);
  EXPECT_THROW(t.SetRows(-1), expr::Fault);
}

TEST(ValueTable, TabLinesAndClear) {
  ValueTable t;
  ResetTable(t, TableLayout::Cartesian);
  t.SetTextMatrix(1, 0, "1");
  EXPECT_EQ(t.TabLines(), (std::vector<std::string>{"X\tY\tY'", "1\t\t"}));
  t.Clear();
  EXPECT_EQ(t.TabLines(), (std::vector<std::string>{"\t\t", "\t\t"}));
}

}  // namespace
}  // namespace velmora::graph
