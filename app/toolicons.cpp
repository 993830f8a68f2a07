// Toolbar pictures drawn with QPainter on a 24 x 24 grid: a few strokes each,
// in the colours of the graph window (the plot blue, the grid grey).
#include "app/toolicons.h"

#include <cmath>
#include <functional>
#include <numbers>
#include <string>
#include <utility>

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace velmora::app {
namespace {

constexpr int kSize = 24;
const QColor kInk(0x30, 0x30, 0x30);
const QColor kPlot(0x00, 0x80, 0xC0);  // the default graph colour
const QColor kGrid(0xA0, 0xA0, 0xA0);
const QColor kRed(0xC0, 0x30, 0x30);

using Painter = std::function<void(QPainter&)>;

QPainterPath Sine(double x0, double x1, double mid, double amplitude, double cycles) {
  QPainterPath path;
  for (int i = 0; i <= 40; ++i) {
    const double t = i / 40.0;
    const double x = x0 + (x1 - x0) * t;
    const double y = mid - amplitude * std::sin(t * cycles * 2 * std::numbers::pi);
    if (i == 0) {
      path.moveTo(x, y);
    } else {
      path.lineTo(x, y);
    }
  }
  return path;
}

void Axes(QPainter& p) {
  p.setPen(QPen(kGrid, 1));
  p.drawLine(QPointF(2, 12), QPointF(22, 12));
  p.drawLine(QPointF(12, 2), QPointF(12, 22));
}

void Curve(QPainter& p) {
  p.setPen(QPen(kPlot, 2));
  p.drawPath(Sine(2, 22, 12, 7, 1));
}

void Text(QPainter& p, const QString& text, QColor colour = kInk, int pixels = 13, bool italic = true) {
  QFont font(QStringLiteral("Serif"));
  font.setPixelSize(pixels);
  font.setItalic(italic);
  font.setBold(true);
  p.setFont(font);
  p.setPen(colour);
  p.drawText(QRectF(0, 0, kSize, kSize), Qt::AlignCenter, text);
}

void Page(QPainter& p, QRectF r) {
  p.setPen(QPen(kInk, 1));
  p.setBrush(Qt::white);
  p.drawRect(r);
  p.setBrush(Qt::NoBrush);
}

void Cross(QPainter& p) {
  p.setPen(QPen(kRed, 2));
  p.drawLine(QPointF(14, 14), QPointF(21, 21));
  p.drawLine(QPointF(21, 14), QPointF(14, 21));
}

void Arrow(QPainter& p, QPointF from, QPointF to) {
  p.drawLine(from, to);
  const QPointF d = (to - from) / std::hypot(to.x() - from.x(), to.y() - from.y());
  const QPointF n(-d.y(), d.x());
  p.drawLine(to, to - d * 3 + n * 3);
  p.drawLine(to, to - d * 3 - n * 3);
}

const std::pair<std::string_view, Painter> kIcons[] = {
    {"Draw Graph",
     [](QPainter& p) {
       Axes(p);
       Curve(p);
     }},
    {"Draw Tangent",
     [](QPainter& p) {
       Axes(p);
       Curve(p);
       p.setPen(QPen(kRed, 1.5));
       p.drawLine(QPointF(2, 9), QPointF(14, 1));
     }},
    {"Tangent/Normal",
     [](QPainter& p) {
       Axes(p);
       Curve(p);
       p.setPen(QPen(kRed, 1.5));
       p.drawLine(QPointF(2, 10), QPointF(14, 2));
       p.drawLine(QPointF(5, 2), QPointF(11, 11));
     }},
    {"Draw Integral", [](QPainter& p) { Text(p, QStringLiteral("\u222B"), kPlot, 20, false); }},
    {"Integral/Average",
     [](QPainter& p) {
       QPainterPath area = Sine(3, 21, 13, 5, 0.5);
       area.lineTo(21, 20);
       area.lineTo(3, 20);
       area.closeSubpath();
       p.fillPath(area, QColor(0x90, 0xC8, 0xE8));
       p.setPen(QPen(kPlot, 1.5));
       p.drawPath(Sine(3, 21, 13, 5, 0.5));
       p.setPen(QPen(kRed, 1.5, Qt::DashLine));
       p.drawLine(QPointF(3, 11), QPointF(21, 11));
     }},
    {"Izvod", [](QPainter& p) { Text(p, QStringLiteral("f\u2032"), kPlot, 16); }},
    {"Zoom",
     [](QPainter& p) {
       p.setPen(QPen(kInk, 2));
       p.drawEllipse(QPointF(10, 10), 6, 6);
       p.setPen(QPen(kInk, 3));
       p.drawLine(QPointF(14.5, 14.5), QPointF(21, 21));
     }},
    {"Color",
     [](QPainter& p) {
       p.setPen(Qt::NoPen);
       p.setBrush(QColor(0xD0, 0x30, 0x30));
       p.drawEllipse(QPointF(8, 9), 5, 5);
       p.setBrush(QColor(0x30, 0xA0, 0x30));
       p.drawEllipse(QPointF(16, 9), 5, 5);
       p.setBrush(QColor(0x30, 0x60, 0xD0));
       p.drawEllipse(QPointF(12, 16), 5, 5);
     }},
    {"Move",
     [](QPainter& p) {
       p.setPen(QPen(kInk, 1.5));
       Arrow(p, QPointF(12, 12), QPointF(12, 2));
       Arrow(p, QPointF(12, 12), QPointF(12, 22));
       Arrow(p, QPointF(12, 12), QPointF(2, 12));
       Arrow(p, QPointF(12, 12), QPointF(22, 12));
     }},
    {"ClearG",
     [](QPainter& p) {
       p.setPen(QPen(kGrid, 1));
       for (int i = 3; i <= 21; i += 6) {
         p.drawLine(QPointF(i, 3), QPointF(i, 21));
         p.drawLine(QPointF(3, i), QPointF(21, i));
       }
       Cross(p);
     }},
    {"ClearF",
     [](QPainter& p) {
       p.setPen(QPen(kPlot, 2));
       p.drawPath(Sine(2, 18, 10, 5, 1));
       Cross(p);
     }},
    {"New",
     [](QPainter& p) {
       Page(p, QRectF(5, 2, 14, 20));
       p.setPen(QPen(kPlot, 1.5));
       p.drawPath(Sine(7, 17, 12, 4, 1));
     }},
    {"Copy",
     [](QPainter& p) {
       Page(p, QRectF(3, 2, 12, 15));
       Page(p, QRectF(9, 7, 12, 15));
     }},
    {"Save",
     [](QPainter& p) {
       p.setPen(QPen(kInk, 1));
       p.setBrush(QColor(0x50, 0x70, 0xA0));
       p.drawRect(QRectF(3, 3, 18, 18));
       p.setBrush(Qt::white);
       p.drawRect(QRectF(7, 3, 10, 7));
       p.drawRect(QRectF(6, 14, 12, 7));
     }},
    {"Print",
     [](QPainter& p) {
       Page(p, QRectF(7, 2, 10, 8));
       p.setBrush(QColor(0x80, 0x80, 0x80));
       p.drawRect(QRectF(2, 9, 20, 9));
       Page(p, QRectF(7, 15, 10, 7));
     }},
    {"Scientific", [](QPainter& p) { Text(p, QStringLiteral("sin"), kInk, 10, false); }},
    {"Complex", [](QPainter& p) { Text(p, QStringLiteral("z"), kPlot, 17); }},
    {"Geometry",
     [](QPainter& p) {
       p.setPen(QPen(kInk, 1.5));
       p.setBrush(QColor(0xF0, 0xE0, 0x90));
       const QPointF tri[] = {{3, 20}, {21, 20}, {8, 4}};
       p.drawPolygon(tri, 3);
     }},
    {"Matrix", [](QPainter& p) { Text(p, QStringLiteral("[ ]"), kInk, 15, false); }},
    {"Newton",
     [](QPainter& p) {
       Axes(p);
       Curve(p);
       p.setPen(Qt::NoPen);
       p.setBrush(kRed);
       p.drawEllipse(QPointF(12, 12), 2.5, 2.5);
     }},
    {"Analiza",
     [](QPainter& p) {
       Axes(p);
       Curve(p);
       p.setPen(Qt::NoPen);
       p.setBrush(kRed);
       p.drawEllipse(QPointF(7, 5), 2.5, 2.5);
       p.drawEllipse(QPointF(17, 19), 2.5, 2.5);
     }},
    {"Integral", [](QPainter& p) { Text(p, QStringLiteral("\u222Bdx"), kInk, 11); }},
    {"Tabela",
     [](QPainter& p) {
       Page(p, QRectF(3, 3, 18, 18));
       p.setPen(QPen(kGrid, 1));
       for (double y : {8.0, 12.5, 17.0}) p.drawLine(QPointF(3, y), QPointF(21, y));
       p.drawLine(QPointF(12, 3), QPointF(12, 21));
     }},
    {"Label", [](QPainter& p) { Text(p, QStringLiteral("A"), kRed, 17, false); }},
    {"MathPad",
     [](QPainter& p) {
       Page(p, QRectF(4, 2, 16, 20));
       p.setPen(QPen(kGrid, 1));
       for (double y : {7.0, 11.0, 15.0, 19.0}) p.drawLine(QPointF(7, y), QPointF(17, y));
     }},
    {"Options",
     [](QPainter& p) {
       p.setPen(QPen(kInk, 3));
       for (int i = 0; i < 8; ++i) {
         const double a = i * std::numbers::pi / 4;
         p.drawLine(QPointF(12 + 6 * std::cos(a), 12 + 6 * std::sin(a)),
                    QPointF(12 + 9 * std::cos(a), 12 + 9 * std::sin(a)));
       }
       p.setPen(QPen(kInk, 2));
       p.setBrush(Qt::white);
       p.drawEllipse(QPointF(12, 12), 5.5, 5.5);
     }},
    {"Evaluator", [](QPainter& p) { Text(p, QStringLiteral("x="), kInk, 13); }},
    {"Calc",
     [](QPainter& p) {
       p.setPen(QPen(kInk, 1));
       p.setBrush(QColor(0xE0, 0xE0, 0xE0));
       p.drawRect(QRectF(5, 2, 14, 20));
       p.setBrush(QColor(0xB0, 0xD8, 0xB0));
       p.drawRect(QRectF(7, 4, 10, 4));
       p.setBrush(kInk);
       for (int r = 0; r < 3; ++r) {
         for (int c = 0; c < 3; ++c) p.drawRect(QRectF(7.5 + c * 3.5, 10.5 + r * 3.5, 2, 2));
       }
     }},
};

QIcon Draw(const Painter& paint) {
  QPixmap pixmap(kSize * 2, kSize * 2);
  pixmap.setDevicePixelRatio(2);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  paint(p);
  p.end();
  return QIcon(pixmap);
}

}  // namespace

QIcon ToolIcon(std::string_view key) {
  for (const auto& [name, paint] : kIcons) {
    if (name == key) return Draw(paint);
  }
  const QString letter = key.empty() ? QStringLiteral("?") : QString(QChar(key.front()));
  return Draw([&](QPainter& p) { Text(p, letter); });
}

QIcon ProgramIcon() {
  return Draw([](QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xF5, 0xF5, 0xF5));
    p.drawRoundedRect(QRectF(1, 1, 22, 22), 4, 4);
    Axes(p);
    Curve(p);
  });
}

}  // namespace velmora::app
