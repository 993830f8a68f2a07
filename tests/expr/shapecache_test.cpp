#include "expr/shapecache.h"

#include <gtest/gtest.h>

#include <string>

#include "expr/formulacompiler.h"

namespace velmora::expr {
namespace {

TEST(ShapeCacheTest, FindsWhatWasInserted) {
  ShapeCache cache(8);
  const std::string shape = "SIN((#))";
  EXPECT_EQ(cache.Find(shape), nullptr);
  const auto* stored = cache.Insert(shape, CompileFormula("SIN((1))"));
  ASSERT_NE(stored, nullptr);
  ASSERT_TRUE(stored->has_value());
  EXPECT_EQ(cache.Find(shape), stored);
  EXPECT_EQ(cache.Size(), 1u);
}

TEST(ShapeCacheTest, RemembersFormulasThatDoNotCompile) {
  ShapeCache cache(8);
  const std::string shape = "SIN(";
  const auto* stored = cache.Insert(shape, CompileFormula("SIN("));
  ASSERT_NE(stored, nullptr);
  EXPECT_FALSE(stored->has_value());
  const auto* found = cache.Find(shape);
  ASSERT_NE(found, nullptr);
  EXPECT_FALSE(found->has_value());
}

TEST(ShapeCacheTest, LastShapeAndOthersBothFound) {
  ShapeCache cache(8);
  const auto* a = cache.Insert("A(#)", CompileFormula("ABS(1)"));
  const auto* b = cache.Insert("B(#)", CompileFormula("BIN(1)"));
  // Alternating lookups go through the last-shape check and the table.
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(cache.Find("A(#)"), a);
    EXPECT_EQ(cache.Find("B(#)"), b);
  }
}

TEST(ShapeCacheTest, NeverHoldsMoreThanItsCapacity) {
  struct Row {
    std::size_t capacity;
    int inserts;
  };
  const Row rows[] = {{1, 10}, {8, 100}, {512, 5000}};
  for (const Row& r : rows) {
    ShapeCache cache(r.capacity);
    for (int i = 0; i < r.inserts; ++i) {
      const std::string shape = "#+" + std::to_string(i);
      const auto* stored = cache.Insert(shape, CompileFormula("1"));
      ASSERT_NE(stored, nullptr);
      EXPECT_EQ(cache.Find(shape), stored);  // the newest is always there
      EXPECT_LE(cache.Size(), r.capacity);
    }
    EXPECT_EQ(cache.Size(), r.capacity);
  }
}

TEST(ShapeCacheTest, ZeroCapacityMeansOne) {
  ShapeCache cache(0);
  EXPECT_EQ(cache.Capacity(), 1u);
  ASSERT_NE(cache.Insert("#", CompileFormula("1")), nullptr);
  EXPECT_EQ(cache.Size(), 1u);
}

TEST(ShapeCacheTest, LongShapesAreNotKept) {
  ShapeCache cache(8, 16);
  const std::string longShape(17, 'x');
  EXPECT_FALSE(cache.Fits(longShape));
  EXPECT_EQ(cache.Insert(longShape, CompileFormula("1")), nullptr);
  EXPECT_EQ(cache.Size(), 0u);
  EXPECT_TRUE(cache.Fits(std::string(16, 'x')));
}

TEST(ShapeCacheTest, InsertingAgainReplaces) {
  ShapeCache cache(8);
  cache.Insert("#", std::nullopt);
  const auto* stored = cache.Insert("#", CompileFormula("1"));
  ASSERT_NE(stored, nullptr);
  EXPECT_TRUE(stored->has_value());
  EXPECT_EQ(cache.Size(), 1u);
}

TEST(ShapeCacheTest, ClearEmptiesAndForgetsTheLastShape) {
  ShapeCache cache(8);
  cache.Insert("#", CompileFormula("1"));
  ASSERT_NE(cache.Find("#"), nullptr);
  cache.Clear();
  EXPECT_EQ(cache.Size(), 0u);
  EXPECT_EQ(cache.Find("#"), nullptr);
}

}  // namespace
}  // namespace velmora::expr
