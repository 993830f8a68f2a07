#include "output/qt/printout.h"

#include <gtest/gtest.h>

#include <regex>

#include <QPageSize>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>

#include "tests/output/outputtools.h"

namespace velmora::output_qt {
namespace {

std::string PdfText(const QString& file) {
  return testing::RunTool("pdftotext -layout " + testing::Quoted(file.toStdString()) + " -");
}

// Where pdftotext finds the first word on the first page, in points from
// the page's top left corner.
struct WordBox {
  double xMin = -1;
  double yMin = -1;
  double xMax = -1;
  std::string word;
};
WordBox FirstWord(const QString& file) {
  const std::string html =
      testing::RunTool("pdftotext -f 1 -l 1 -bbox " + testing::Quoted(file.toStdString()) + " -");
  std::smatch match;
  WordBox box;
  if (std::regex_search(
          html, match,
          std::regex(R"re(<word xMin="([0-9.]+)" yMin="([0-9.]+)" xMax="([0-9.]+)"[^>]*>([^<]*)<)re"))) {
    box.xMin = std::stod(match[1]);
    box.yMin = std::stod(match[2]);
    box.xMax = std::stod(match[3]);
    box.word = match[4];
  }
  return box;
}

// A line of `pdfimages -list`: page, number, "image", width, height,
// colour, components, bits, encoding, interpolation, object, ID, x-ppi, y-ppi.
const char* const kImageLine =
    R"(image\s+(\d+)\s+(\d+)\s+\S+\s+\d+\s+\d+\s+\S+\s+\S+\s+\d+\s+\d+\s+(\d+)\s+(\d+))";

std::unique_ptr<QPdfWriter> Writer(const QString& file) {
  auto writer = std::make_unique<QPdfWriter>(file);
  writer->setPageSize(QPageSize(QPageSize::Letter));
  writer->setResolution(300);
  return writer;
}

TEST(PrintDocument, PagesFollowTheText) {
  QTemporaryDir dir;
  QTextDocument document;
  QString text;
  for (int i = 1; i <= 300; ++i) text += QStringLiteral("Line %1 of the velmora document\n").arg(i);
  document.setPlainText(text);
  const QString file = dir.filePath(QStringLiteral("doc.pdf"));
  int pages = 0;
  {
    auto writer = Writer(file);
    pages = PrintDocument(*writer, document, {1, 1, 1, 1});
  }
  EXPECT_GT(pages, 3) << "300 lines do not fit on a few pages";
  EXPECT_EQ(testing::PdfPages(file.toStdString()), pages);
  const std::string words = PdfText(file);
  EXPECT_NE(words.find("Line 1 of the velmora document"), std::string::npos);
  EXPECT_NE(words.find("Line 300 of the velmora document"), std::string::npos);
  // No line is lost or printed twice at a page's end.
  for (const int line : {1, 57, 150, 299}) {
    const std::string needle = "Line " + std::to_string(line) + " of";
    const auto first = words.find(needle + " ");
    ASSERT_NE(first, std::string::npos) << line;
    EXPECT_EQ(words.find(needle + " ", first + 1), std::string::npos) << line;
  }
}

TEST(PrintDocument, TheMarginsPlaceTheText) {
  struct Row {
    output::PageMargins margins;
    const char* why;
  };
  const Row rows[] = {
      {{1, 1, 1, 1}, "the default inch all round"},
      {{2, 1, 1.5, 1}, "a wider left and top margin"},
      {{0.5, 0.5, 0.25, 0.5}, "narrow margins"},
  };
  for (const Row& row : rows) {
    QTemporaryDir dir;
    QTextDocument document;
    document.setPlainText(QStringLiteral("Margins\nsecond line"));
    const QString file = dir.filePath(QStringLiteral("m.pdf"));
    {
      auto writer = Writer(file);
      ASSERT_EQ(PrintDocument(*writer, document, row.margins), 1) << row.why;
    }
    const WordBox box = FirstWord(file);
    EXPECT_EQ(box.word, "Margins") << row.why;
    // 72 points an inch; the glyph's own side bearing and the line's
    // leading add a little.
    EXPECT_NEAR(box.xMin, row.margins.left * 72, 3) << row.why;
    EXPECT_NEAR(box.yMin, row.margins.top * 72, 6) << row.why;
  }
}

TEST(PrintDocument, AnEmptyDocumentPrintsNothing) {
  QTemporaryDir dir;
  QTextDocument document;
  auto writer = Writer(dir.filePath(QStringLiteral("e.pdf")));
  EXPECT_EQ(PrintDocument(*writer, document, {}), 0);
}

TEST(PrintDocument, RichTextKeepsItsWords) {
  QTemporaryDir dir;
  QTextDocument document;
  document.setHtml(QStringLiteral("<h1>Title</h1><p><b>bold</b> and <i>italic</i> x<sup>2</sup></p>"));
  const QString file = dir.filePath(QStringLiteral("rich.pdf"));
  {
    auto writer = Writer(file);
    ASSERT_EQ(PrintDocument(*writer, document, {1, 1, 1, 1}), 1);
  }
  const std::string words = PdfText(file);
  for (const char* word : {"Title", "bold", "italic"}) EXPECT_NE(words.find(word), std::string::npos) << word;
}

TEST(PrintPicture, OnePageAtScreenSizeInsideTheMargins) {
  QTemporaryDir dir;
  QImage picture(480, 240, QImage::Format_RGB32);
  picture.fill(Qt::red);
  const QString file = dir.filePath(QStringLiteral("pic.pdf"));
  {
    auto writer = Writer(file);
    ASSERT_TRUE(PrintPicture(*writer, picture, {1.5, 1, 2, 1}, true));
  }
  EXPECT_EQ(testing::PdfPages(file.toStdString()), 1);
  // pdfimages lists the picture with its pixel size and its resolution:
  // 480 pixels over 5 inches is 96 pixels an inch.
  const std::string list = testing::RunTool("pdfimages -list " + testing::Quoted(file.toStdString()));
  std::smatch match;
  ASSERT_TRUE(std::regex_search(list, match, std::regex(kImageLine))) << list;
  EXPECT_EQ(std::stoi(match[1]), 480);
  EXPECT_EQ(std::stoi(match[2]), 240);
  EXPECT_NEAR(std::stoi(match[3]), 96, 1);
}

TEST(PrintPicture, ALargePictureIsMadeToFit) {
  QTemporaryDir dir;
  QImage picture(2400, 600, QImage::Format_RGB32);  // 25 inches at screen size
  picture.fill(Qt::blue);
  const QString file = dir.filePath(QStringLiteral("big.pdf"));
  {
    auto writer = Writer(file);
    ASSERT_TRUE(PrintPicture(*writer, picture, {1, 1, 1, 1}, false));
  }
  const std::string list = testing::RunTool("pdfimages -list " + testing::Quoted(file.toStdString()));
  std::smatch match;
  ASSERT_TRUE(std::regex_search(list, match, std::regex(kImageLine))) << list;
  // 6.5 inches of width (8.5 less two margins) for 2400 pixels.
  EXPECT_NEAR(std::stoi(match[3]), 2400 / 6.5, 2);
}

TEST(PrintPicture, NoPictureNoPage) {
  QTemporaryDir dir;
  auto writer = Writer(dir.filePath(QStringLiteral("none.pdf")));
  EXPECT_FALSE(PrintPicture(*writer, QImage(), {}, false));
}

}  // namespace
}  // namespace velmora::output_qt
