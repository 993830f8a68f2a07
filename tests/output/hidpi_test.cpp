// The graph picture on a screen above 100%: more pixels, the same geometry.
#include <gtest/gtest.h>

#include <QPdfWriter>
#include <QTemporaryDir>

#include "graph/qt/qimagesurface.h"
#include "output/qt/printout.h"
#include "tests/output/outputtools.h"

namespace velmora::output_qt {
namespace {

TEST(HighDpiPicture, TwiceThePixelsForTheSameCoordinates) {
  graph_qt::QImageSurface surface(200, 100);
  surface.SetDevicePixelRatio(2);
  EXPECT_EQ(surface.ScaleWidth(), 200) << "the surface's own size stays";
  EXPECT_EQ(surface.ScaleHeight(), 100);
  const QImage& picture = surface.Image();
  EXPECT_EQ(picture.width(), 400);
  EXPECT_EQ(picture.height(), 200);
  EXPECT_EQ(picture.devicePixelRatio(), 2);
  surface.Line(10, 20, 60, 20, 0x0000FF);  // red, one surface pixel wide
  const QImage& drawn = surface.Image();
  EXPECT_EQ(QColor(drawn.pixel(70, 40)), QColor(Qt::red)) << "(35, 20) lands at (70, 40)";
  EXPECT_NE(QColor(drawn.pixel(70, 60)), QColor(Qt::red)) << "nothing drawn lower down";
}

TEST(HighDpiPicture, TextKeepsItsWidthInSurfacePixels) {
  graph_qt::QImageSurface plain(200, 100);
  graph_qt::QImageSurface sharp(200, 100);
  sharp.SetDevicePixelRatio(2);
  EXPECT_DOUBLE_EQ(plain.TextWidth("-12.5"), sharp.TextWidth("-12.5"));
  EXPECT_DOUBLE_EQ(plain.TextHeight("x"), sharp.TextHeight("x"));
}

TEST(HighDpiPicture, ASharpPicturePrintsAtItsScreenSize) {
  QTemporaryDir dir;
  graph_qt::QImageSurface sharp(192, 96);  // two inches by one on screen
  sharp.SetDevicePixelRatio(2);
  const QString file = dir.filePath(QStringLiteral("sharp.pdf"));
  {
    QPdfWriter writer(file);
    writer.setResolution(300);
    ASSERT_TRUE(PrintPicture(writer, sharp.Image(), {1, 1, 1, 1}, false));
  }
  // 384 pixels over two inches: 192 pixels an inch on paper.
  const testing::PdfImage image = testing::FirstPdfImage(file.toStdString());
  EXPECT_EQ(image.width, 384);
  EXPECT_EQ(image.height, 192);
  EXPECT_NEAR(image.xPpi, 192, 1);
}

}  // namespace
}  // namespace velmora::output_qt
