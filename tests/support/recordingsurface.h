#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "graph/basicsurface.h"

namespace velmora::testing {

// A graph surface that records every drawing call with the pen, colours and
// font in force at that moment, so tests read which lines were drawn, in
// which colour and style, and which texts were printed where.
class RecordingSurface final : public graph::BasicSurface {
 public:
  enum class Kind { Clear, Line, Circle, Text };
  struct Op {
    Kind kind = Kind::Clear;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // a line's ends; a circle's centre and radius in x2
    graph::Colour colour = 0;               // the line's colour, or the fore colour of a text
    int style = 0;
    int width = 1;
    std::string text;
    std::string font;
    double size = 0;
    bool bold = false;
    bool transparent = false;
  };

  RecordingSurface(int width, int height, std::vector<std::string> fonts = {})
      : BasicSurface(width, height, std::move(fonts)) {}

  // Pixels per character of every font when set above 0 (a wide font).
  double charWidth = 0;
  double TextWidth(std::string_view text) const override {
    if (charWidth > 0) return charWidth * static_cast<double>(text.size());
    return BasicSurface::TextWidth(text);
  }

  const std::vector<Op>& Ops() const { return ops_; }
  void ClearOps() { ops_.clear(); }
  std::vector<Op> Of(Kind kind) const {
    std::vector<Op> out;
    for (const auto& op : ops_) {
      if (op.kind == kind) out.push_back(op);
    }
    return out;
  }
  std::vector<Op> Lines() const { return Of(Kind::Line); }
  std::vector<Op> Texts() const { return Of(Kind::Text); }
  std::vector<Op> Circles() const { return Of(Kind::Circle); }
  // Lines in one colour.
  std::vector<Op> LinesIn(graph::Colour colour) const {
    std::vector<Op> out;
    for (const auto& op : ops_) {
      if (op.kind == Kind::Line && op.colour == colour) out.push_back(op);
    }
    return out;
  }
  // The first text op with this text, or null.
  const Op* FindText(std::string_view text) const {
    for (const auto& op : ops_) {
      if (op.kind == Kind::Text && op.text == text) return &op;
    }
    return nullptr;
  }

 protected:
  void PaintClear() override { ops_.push_back(Make(Kind::Clear)); }
  void PaintLine(double x1, double y1, double x2, double y2, graph::Colour colour) override {
    Op op = Make(Kind::Line);
    op.x1 = x1, op.y1 = y1, op.x2 = x2, op.y2 = y2, op.colour = colour;
    ops_.push_back(op);
  }
  void PaintCircle(double x, double y, double radius, graph::Colour colour) override {
    Op op = Make(Kind::Circle);
    op.x1 = x, op.y1 = y, op.x2 = radius, op.colour = colour;
    ops_.push_back(op);
  }
  void PaintText(double x, double y, std::string_view text) override {
    Op op = Make(Kind::Text);
    op.x1 = x, op.y1 = y, op.text = std::string(text), op.colour = ForeColor();
    ops_.push_back(op);
  }

 private:
  Op Make(Kind kind) const {
    Op op;
    op.kind = kind;
    op.style = DrawStyle();
    op.width = DrawWidth();
    op.font = FontName();
    op.size = FontSize();
    op.bold = FontBold();
    op.transparent = FontTransparent();
    return op;
  }

  std::vector<Op> ops_;
};

}  // namespace velmora::testing
