// Window > Tile: every window inside the area, none over another.
#include "app/tilegrid.h"

#include <gtest/gtest.h>

namespace velmora::app {
namespace {

TEST(TileGrid, PlacesAsTheCountAsks) {
  struct Case {
    int count;
    int width;
    int height;
    std::vector<TileCell> expected;
    const char* why;
  };
  const Case cases[] = {
      {1, 800, 600, {{0, 0, 800, 600}}, "one window takes the whole area"},
      {2, 800, 600, {{0, 0, 400, 600}, {400, 0, 400, 600}}, "two side by side"},
      {3,
       800,
       600,
       {{0, 0, 400, 300}, {400, 0, 400, 300}, {0, 300, 800, 300}},
       "the last row's window takes the row's width"},
      {4,
       801,
       601,
       {{0, 0, 400, 300}, {400, 0, 401, 300}, {0, 300, 400, 301}, {400, 300, 401, 301}},
       "odd sizes: edges from the whole area, no gap"},
      {0, 800, 600, {}, "no window, no cell"},
      {3, 0, 600, {}, "an empty area, no cell"},
  };
  for (const auto& c : cases) EXPECT_EQ(TileGrid(c.count, c.width, c.height), c.expected) << c.why;
}

TEST(TileGrid, EveryCountUpToTwentyFitsTheAreaWithoutOverlap) {
  for (const auto& [width, height] : {std::pair{1000, 640}, std::pair{640, 1000}, std::pair{37, 23}}) {
    for (int count = 1; count <= 20; ++count) {
      const std::vector<TileCell> cells = TileGrid(count, width, height);
      ASSERT_EQ(cells.size(), static_cast<std::size_t>(count));
      long long area = 0;
      for (std::size_t i = 0; i < cells.size(); ++i) {
        const TileCell& a = cells[i];
        EXPECT_GE(a.x, 0);
        EXPECT_GE(a.y, 0);
        EXPECT_LE(a.x + a.width, width) << count;
        EXPECT_LE(a.y + a.height, height) << count;
        area += static_cast<long long>(a.width) * a.height;
        for (std::size_t j = i + 1; j < cells.size(); ++j) {
          const TileCell& b = cells[j];
          const bool apart =
              a.x + a.width <= b.x || b.x + b.width <= a.x || a.y + a.height <= b.y || b.y + b.height <= a.y;
          EXPECT_TRUE(apart) << count << " windows: " << i << " and " << j << " overlap";
        }
      }
      EXPECT_EQ(area, static_cast<long long>(width) * height) << count << " windows leave a gap";
    }
  }
  // Twelve windows on a wide area: four columns in three rows.
  const std::vector<TileCell> twelve = TileGrid(12, 1200, 600);
  EXPECT_EQ(twelve[3], (TileCell{900, 0, 300, 200}));
  EXPECT_EQ(twelve[11], (TileCell{900, 400, 300, 200}));
}

}  // namespace
}  // namespace velmora::app
