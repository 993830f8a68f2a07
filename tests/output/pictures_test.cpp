#include <gtest/gtest.h>

#include <filesystem>

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include "output/qt/picturefiles.h"
#include "tests/output/outputtools.h"

namespace velmora::output_qt {
namespace {

QImage Picture(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(QColor(255, 255, 255));
  QPainter painter(&image);
  painter.setPen(QPen(QColor(200, 0, 0), 3));
  painter.drawLine(0, 0, width - 1, height - 1);
  painter.setPen(QPen(QColor(0, 0, 180), 2));
  painter.drawEllipse(QPoint(width / 2, height / 2), width / 4, height / 4);
  return image;
}

TEST(PictureFiles, ConversionKeepsEveryPixel) {
  const QImage image = Picture(37, 21);  // an odd width: padded rows
  const output::cDIBSection dib = ToDib(image);
  ASSERT_EQ(dib.Width(), 37);
  ASSERT_EQ(dib.Height(), 21);
  EXPECT_EQ(dib.BytesPerScanLine(), 112);
  const QRgb sample = image.pixel(10, 10);
  // The picture's colour form: red in the low byte.
  EXPECT_EQ(dib.Pixel(10, 10),
            static_cast<std::uint32_t>(qRed(sample) | (qGreen(sample) << 8) | (qBlue(sample) << 16)));
  const QImage back = ToQImage(dib);
  for (int y = 0; y < 21; ++y)
    for (int x = 0; x < 37; ++x) ASSERT_EQ(back.pixel(x, y), image.pixel(x, y)) << x << "," << y;
}

TEST(PictureFiles, TransparencyLiesOnWhite) {
  QImage image(2, 1, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  image.setPixel(1, 0, qRgba(0, 0, 0, 255));
  const output::cDIBSection dib = ToDib(image);
  EXPECT_EQ(dib.Pixel(0, 0), 0xFFFFFFu);
  EXPECT_EQ(dib.Pixel(1, 0), 0u);
  EXPECT_EQ(ToDib(QImage()).DIBSectionBitsPtr(), nullptr);
}

TEST(PictureFiles, ABitmapReadsBackPixelForPixel) {
  QTemporaryDir dir;
  const QString file = dir.filePath(QStringLiteral("graph.bmp"));
  const QImage image = Picture(123, 45);
  ASSERT_TRUE(SaveBmp(image, file));
  QImage back(file);
  ASSERT_FALSE(back.isNull());
  EXPECT_EQ(back.size(), image.size());
  EXPECT_EQ(back.convertToFormat(QImage::Format_RGB32), image);
  EXPECT_FALSE(SaveBmp(image, dir.filePath(QStringLiteral("no/such/folder.bmp"))));
}

TEST(PictureFiles, AJpegDecodesElsewhereAtItsSize) {
  QTemporaryDir dir;
  const QString file = dir.filePath(QStringLiteral("graph.jpg"));
  std::string error;
  ASSERT_TRUE(SaveJpeg(Picture(321, 123), file, 85, &error)) << error;
  const testing::DecodedSize size = testing::DjpegSize(file.toStdString());
  EXPECT_EQ(size.width, 321);
  EXPECT_EQ(size.height, 123);
  EXPECT_FALSE(SaveJpeg(Picture(4, 4), dir.filePath(QStringLiteral("none/x.jpg")), 85, &error));
  EXPECT_FALSE(error.empty());
}

TEST(PictureFiles, ThePreviewShowsTheLossOfTheQuality) {
  const QImage image = Picture(200, 100);
  const QImage fine = JpegPreview(image, 100);
  const QImage coarse = JpegPreview(image, 2);
  ASSERT_EQ(fine.size(), image.size());
  ASSERT_EQ(coarse.size(), image.size());
  // The sum of the colour errors grows as the quality falls.
  const auto error = [&image](const QImage& other) {
    long long sum = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        const QRgb a = image.pixel(x, y);
        const QRgb b = other.pixel(x, y);
        sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
      }
    return sum;
  };
  EXPECT_LT(error(fine) * 3, error(coarse));
}

}  // namespace
}  // namespace velmora::output_qt
