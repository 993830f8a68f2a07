// The figures drawn from a page's record: to scale, labelled, fitted into
// the picture box, schematic until solved.
#include "geometry/figuresketch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "geometry/boxcaptions.h"
#include "geometry/catalogue.h"
#include "tests/geometry/geotest.h"

namespace velmora::geometry {
namespace {

using velmora::testing::RecordingMessageBox;

std::vector<std::string> LabelTexts(const Sketch& s) {
  std::vector<std::string> texts;
  for (const auto& l : s.labels) texts.push_back(l.text);
  return texts;
}

bool HasLabel(const Sketch& s, const std::string& text) {
  const auto texts = LabelTexts(s);
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

std::vector<double> EdgeLengths(const Sketch& s) {
  std::vector<double> lengths;
  for (const auto& seg : s.segments) {
    if (seg.stroke == Stroke::Edge) lengths.push_back(std::hypot(seg.b.x - seg.a.x, seg.b.y - seg.a.y));
  }
  std::sort(lengths.begin(), lengths.end());
  return lengths;
}

Figure Solved(const std::string& word, const std::string& entry, const std::vector<std::string>& values) {
  RecordingMessageBox box;
  Figure f = testing::RunEntry(word, entry, values, box);
  EXPECT_TRUE(box.Boxes().empty()) << entry;
  return f;
}

TEST(SketchTest, FittingKeepsTheShapeAndCentresItWithinTheMargin) {
  Sketch s;
  s.segments.push_back({{0, 0}, {2, 0}});
  s.segments.push_back({{2, 0}, {2, 1}});
  s.labels.push_back({{2, 1}, "X", {1, 1}});
  const Sketch fitted = s.FittedTo(220, 200, 10);
  // 2 x 1 in a 200 x 180 room: the width rules, 100 pixels a unit.
  const auto box = fitted.Bounds();
  EXPECT_DOUBLE_EQ(box.left, 10);
  EXPECT_DOUBLE_EQ(box.right, 210);
  EXPECT_DOUBLE_EQ(box.top - box.bottom, 100);        // the same scale on both axes
  EXPECT_DOUBLE_EQ((box.top + box.bottom) / 2, 100);  // centred in height
  // y turns down: the figure's top corner is the picture's upper one.
  EXPECT_DOUBLE_EQ(fitted.segments[1].b.y, 50);
  EXPECT_DOUBLE_EQ(fitted.labels[0].away.y, -1);  // "up" in the picture
}

TEST(SketchTest, AFigureWithoutExtentFitsToNothingButKeepsItsNote) {
  Sketch s;
  s.note = "For N > 16 preview not available.";
  const Sketch fitted = s.FittedTo(300, 200, 20);
  EXPECT_TRUE(fitted.Empty());
  EXPECT_EQ(fitted.note, s.note);
}

TEST(SketchTest, ArcsCountWithTheirSweepOnly) {
  Sketch s;
  s.arcs.push_back({{0, 0}, 1, 1, 0, std::acos(-1.0) / 2, Stroke::Edge});  // the first quarter
  const auto box = s.Bounds();
  EXPECT_NEAR(box.left, 0, 1e-9);
  EXPECT_NEAR(box.bottom, 0, 1e-9);
  EXPECT_NEAR(box.right, 1, 1e-9);
  EXPECT_NEAR(box.top, 1, 1e-9);
}

TEST(FigureSketchTest, TheThreeFourFiveTriangleIsDrawnToScaleWithItsMeasures) {
  const Figure f = Solved("triangle", "mnuabc", {"3", "4", "5"});
  const Sketch s = FigureSketch("triangle", f);
  const auto edges = EdgeLengths(s);
  ASSERT_EQ(edges.size(), 3u);
  EXPECT_NEAR(edges[1] / edges[0], 4.0 / 3.0, 1e-9);
  EXPECT_NEAR(edges[2] / edges[0], 5.0 / 3.0, 1e-9);
  for (const char* text : {"A", "B", "C", "a = 3", "b = 4", "c = 5"}) EXPECT_TRUE(HasLabel(s, text)) << text;
  // The right angle (at C) is marked with a square, the two others with arcs;
  // the height on a is the side b itself, so it has no mark of its own.
  EXPECT_EQ(s.arcs.size(), 2u);
}

TEST(FigureSketchTest, AnObtuseTriangleDrawsItsBaseOutToTheFootOfTheHeight) {
  const Figure f = Solved("triangle", "mnuabc", {"3", "2", "4.5"});
  const Sketch s = FigureSketch("triangle", f);
  const auto dashed = std::count_if(s.segments.begin(), s.segments.end(),
                                    [](const Segment& seg) { return seg.stroke == Stroke::Dashed; });
  EXPECT_EQ(dashed, 2);  // the height and the base drawn out
  EXPECT_TRUE(HasLabel(s, "ha"));
}

TEST(FigureSketchTest, UntilSolvedAPageShowsASchematicFigureWithLettersOnly) {
  const std::vector<std::string> words = {"triangle",  "polygon", "euclid",    "circle",
                                          "arc",       "ring",    "sphere",    "sfrustrum",
                                          "cfrustrum", "ellipse", "ellipsoid", "cone"};
  for (const auto& word : words) {
    const FigureKind* kind = nullptr;
    for (const auto& k : FigureKinds()) {
      if (k.word == word) kind = &k;
    }
    ASSERT_NE(kind, nullptr) << word;
    const Figure empty{BoxRecord(kind->boxes)};
    const Sketch s = FigureSketch(word, empty);
    EXPECT_FALSE(s.Empty()) << word;
    EXPECT_FALSE(s.FittedTo(300, 240, 30).Empty()) << word;
    for (const auto& text : LabelTexts(s))
      EXPECT_EQ(text.find('='), std::string::npos) << word << ": " << text;
  }
  EXPECT_TRUE(FigureSketch("no such figure", Figure{BoxRecord({"x"})}).Empty());
}

TEST(FigureSketchTest, TheFigureChangesWithTheRecord) {
  const Sketch first = FigureSketch("triangle", Solved("triangle", "mnuabc", {"3", "4", "5"}));
  const Sketch second = FigureSketch("triangle", Solved("triangle", "mnuabc", {"5", "5", "5"}));
  EXPECT_NE(EdgeLengths(first.FittedTo(300, 300, 30)), EdgeLengths(second.FittedTo(300, 300, 30)));
  EXPECT_NE(LabelTexts(first), LabelTexts(second));
}

struct PolygonRow {
  std::string n;
  std::size_t edges;
  std::string caption;
  std::string why;
};

TEST(FigureSketchTest, ARegularPolygonHasNEqualSidesAndItsName) {
  const std::vector<PolygonRow> rows = {
      {"3", 3, "TRIANGLE", "the smallest"},
      {"4", 4, "SQUARE", "the edge case of the page"},
      {"16", 16, "HEXAKADECAGON", "the largest drawn"},
  };
  for (const auto& row : rows) {
    const Sketch s = FigureSketch("polygon", Solved("polygon", "a", {row.n, "1"}));
    const auto edges = EdgeLengths(s);
    ASSERT_EQ(edges.size(), row.edges) << row.why;
    EXPECT_NEAR(edges.front(), 1.0, 1e-4) << row.why;  // to the side's 5 places
    EXPECT_NEAR(edges.back(), edges.front(), 1e-9) << row.why;
    EXPECT_EQ(s.caption, row.caption) << row.why;
  }
}

TEST(FigureSketchTest, PastSixteenSidesThePolygonGivesItsNoteInsteadOfAFigure) {
  const Sketch s = FigureSketch("polygon", Solved("polygon", "a", {"17", "1"}));
  EXPECT_TRUE(s.Empty());
  EXPECT_EQ(s.note, "For N > 16 preview not available.");
}

TEST(FigureSketchTest, AFractionalPolygonIsSolvedButNotDrawn) {
  const Figure f = Solved("polygon", "a", {"3.5", "1"});
  EXPECT_FALSE(f.boxes.Text("txtPR").empty());  // the formulas ran on the fraction
  const Sketch s = FigureSketch("polygon", f);
  EXPECT_TRUE(s.Empty());
  EXPECT_EQ(s.caption, "");
}

TEST(FigureSketchTest, ShadeSphereLightsTheDiscInsteadOfTintingIt) {
  const Figure f = Solved("sphere", "mnulopta1", {"3"});
  const Sketch plain = FigureSketch("sphere", f);
  const Sketch lit = FigureSketch("sphere", f, {.shade = true});
  EXPECT_FALSE(plain.shade.has_value());
  ASSERT_TRUE(lit.shade.has_value());
  EXPECT_DOUBLE_EQ(lit.shade->radius, 3);
  EXPECT_TRUE(lit.regions.empty());
  EXPECT_TRUE(HasLabel(lit, "R = 3"));
}

TEST(FigureSketchTest, EqualEllipseRadiiAreNamedOverTheFigure) {
  EXPECT_EQ(FigureSketch("ellipse", Solved("ellipse", "mnuelipsaf1", {"1", "1"})).caption, "R1 = R2");
  EXPECT_EQ(FigureSketch("ellipse", Solved("ellipse", "mnuelipsaf1", {"2", "1"})).caption, "");
}

TEST(FigureSketchTest, TheConeIsDrawnFromItsRadiusAndHeight) {
  const Sketch s = FigureSketch("cone", Solved("cone", "mnuK1", {"3", "4"}));
  for (const char* text : {"R = 3", "H = 4", "a = 5", "ø"}) EXPECT_TRUE(HasLabel(s, text)) << text;
  const auto box = s.Bounds();
  EXPECT_NEAR(box.right - box.left, 6, 1e-9);  // the base's diameter
  EXPECT_NEAR(box.top, 4, 1e-9);               // the apex
}

TEST(BoxCaptionsTest, EveryBoxOfEveryFigureHasALabel) {
  for (const auto& kind : FigureKinds()) {
    for (const auto box : kind.boxes) EXPECT_FALSE(BoxCaption(box).empty()) << kind.word << ' ' << box;
  }
  EXPECT_TRUE(BoxCaption("txtNoSuchBox").empty());
}

}  // namespace
}  // namespace velmora::geometry
