#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <QFont>
#include <QImage>
#include <QPainter>

#include "graph/basicsurface.h"

namespace velmora::graph_qt {

// The graph surface as a retained picture: a QImage that QPainter draws on
// and that keeps its pixels between commands, so a view only copies it to
// the screen and a copy or a saved file is the picture itself. Lines are
// drawn without anti-aliasing, as the picture box draws them; fonts are
// sized in points at 96 dots per inch. "MS Sans Serif" and "Arial" resolve
// to whatever the platform puts in their place; any other name must exist,
// or reads back as the family that stands in for it.
//
// The two symbol fonts of the axis arrows, "Marlett" and "Webdings", are
// the surface's own: their names read back as set, and their digits "3" to
// "6" are drawn as filled arrow heads (left, right, up, down) of the font
// size, as those fonts draw them; other characters advance and draw nothing.
//
// Text needs a QGuiApplication (see HeadlessGui for programs without one).
class QImageSurface final : public graph::BasicSurface {
 public:
  QImageSurface(int width, int height);
  ~QImageSurface() override;

  // The picture as it stands now.
  const QImage& Image();
  bool SavePng(const QString& file);
  // Keeps what fits, fills the rest with the back colour.
  void Resize(int width, int height) override;
  // The same with the old picture moved by (dx, dy) pixels.
  void Resize(int width, int height, int dx, int dy);
  // The picture's pixels per surface pixel: 2 on a screen at 200%, where
  // the picture holds twice the pixels each way and every drawing call
  // still takes the surface's own coordinates, so lines and text are drawn
  // at the screen's density and the geometry does not change. The picture
  // held is kept, scaled; set it before drawing. Image() then has this
  // devicePixelRatio.
  void SetDevicePixelRatio(double ratio);
  double DevicePixelRatio() const { return ratio_; }

  // Whether a font name is one of the symbol fonts the surface draws itself.
  static bool IsSymbolFont(std::string_view name);
  // The advance of one symbol glyph, in em (the font size in pixels).
  static constexpr double kSymbolAdvance = 0.68;

  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  void BurnLabel(const graph::LabelStyle& label, double left, double top, graph::Colour back) override;

 protected:
  void PaintClear() override;
  void PaintLine(double x1, double y1, double x2, double y2, graph::Colour colour) override;
  void PaintCircle(double x, double y, double radius, graph::Colour colour) override;
  void PaintText(double x, double y, std::string_view text) override;
  void FontChanged() override;
  std::string ResolveFontName(std::string_view requested) const override;

 private:
  QPainter& Painter();
  void EndPainting();
  QPen Pen(graph::Colour colour) const;
  double EmPixels() const;
  void PaintSymbols(double x, double y, std::string_view text);

  // The pen the painter holds, so that lines in one pen do not set it again.
  struct PenKey {
    graph::Colour colour = 0xFFFFFFFF;  // no colour: nothing set yet
    int width = 0;
    int style = -1;
    bool operator==(const PenKey&) const = default;
  };

  // A blank picture of a surface size at the ratio.
  QImage MakeImage(int width, int height) const;

  QImage image_;
  double ratio_ = 1.0;
  PenKey penKey_;
  std::unique_ptr<QPainter> painter_;
  QFont font_;
  bool symbolFont_ = false;
};

// QColor of a program colour (blue in the high byte).
QColor ToQColor(graph::Colour colour);
// A program colour of a QColor.
graph::Colour FromQColor(const QColor& colour);

}  // namespace velmora::graph_qt
