#include "matrix/htmlreport.h"

#include <array>

#include "base/atomicfile.h"
#include "expr/fault.h"
#include "expr/numtext.h"
#include "matrix/matrixcontext.h"

namespace velmora::matrix {
namespace {

// The fixed lines of the report, as data.
constexpr const char* kDocType = "   <!DOCTYPE HTML PUBLIC '-//W3C//DTD HTML 4.0 Transitional//EN'>";
constexpr const char* kCreatedWith = "   <!-- Created with Velmora -->";
constexpr std::array<const char*, 7> kHead = {
    "<html>",
    "   <head>",
    "     <meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>",
    "     <meta name='GENERATOR' content='Velmora'>",
    "     <TITLE>Matrix Calculator</TITLE>",
    "  </head>",
    "  <body bgcolor=#FFFFFF link='#000000' vlink='#000000' alink='#000000'>",
};
constexpr const char* kTitleOpen = "  <p><font face='Arial' size='2'><b>";
constexpr const char* kTitleClose = "</b></font></p>";
constexpr const char* kRule = "  <hr noshade size='1'>";
constexpr const char* kHalfRule = "<hr noshade size='1' width='50%'>";

constexpr const char* kOperandTable = "  <table border='1' width='80%' cellspacing='1'>";
constexpr const char* kResultTable = "  <table border='1' width='80%' cellspacing='1' bgcolor='#C1E0FF' >";
constexpr const char* kCellOpen = "  <td width='";
constexpr const char* kCellMiddle = "'><p align='center'><font face='Arial' size='2'>";
constexpr const char* kCellClose = "</font></p></td>";

constexpr const char* kHeadingOpen = "  <p align='center'><font face='Arial' size='3'><b>";
constexpr const char* kHeadingClose = "</b> &nbsp;</font></p>";
constexpr const char* kMatrixA = "MATRIX [ A ]";
constexpr const char* kMatrixB = "MATRIX [ B ]";
constexpr const char* kInverseLead = "A<sup>-1</sup> = ";
constexpr const char* kAdjoint = "A<sup>*</sup> = Adjoint [A]";
constexpr const char* kEquationHeading = "Characteristic equation";

constexpr const char* kSystemHeading =
    "  <p align='center'><font face='Arial' size='3'><b>System of equations:</b></font></p>";
constexpr const char* kEquationOpen = "  <p align='center'><font face='Arial' size='2'><b>";
constexpr const char* kEquationClose = "</b></font></p>";

constexpr const char* kEnd1 = "  <p>&nbsp;</p>";
constexpr const char* kLink =
    "  <p align='center'><font face='Arial' size='1'><a href='https://www.velmora.org/' "
    "target='_blank'>Velmora</a></font></p>";
constexpr const char* kBodyEnd = "  </body>";
constexpr const char* kHtmlEnd = "</html>";

enum class Template { TwoOperands, OneOperand, InverseAdjoint, System };

struct OperationReport {
  const char* title;
  const char* label;
  Template kind;
};

constexpr std::array<OperationReport, 7> kOperations = {{
    {"Addition", "[S] = [A] + [B]", Template::TwoOperands},
    {"Subtraction", "[S] = [A] - [B]", Template::TwoOperands},
    {"Multiplication", "[S] = [A] x [B]", Template::TwoOperands},
    {"Scalar Multiplication", "[S] = r x [A]", Template::OneOperand},
    {"Scalar Division", "[S] = 1/r x [A]", Template::OneOperand},
    {"Determinant and Inverse Matrix", "Inverse [A]", Template::InverseAdjoint},
    {"Set of linear equations", "", Template::System},
}};

class Writer {
 public:
  void Line(const std::string& text) {
    out_ += text;
    out_ += "\r\n";
  }
  void Heading(const std::string& text) { Line(kHeadingOpen + text + kHeadingClose); }
  // A heading whose text stands between two blanks.
  void SpacedHeading(const std::string& text) { Heading(" " + text + " "); }

  void Table(const std::string& heading, const char* tag, const Grid& grid) {
    Line(heading);
    Line("  <div align='center'>");
    Line("  <center>");
    Line(tag);
    Line("  <tr>");  // a stray first row tag, part of the template
    for (int r = 0; r < grid.Rows(); ++r) {
      Line("  <tr>");
      for (int c = 0; c < grid.Cols(); ++c) {
        const std::string width = expr::NumberToText(100.0 / grid.Cols()) + "%";
        const std::string& cell = grid.TextMatrix(r, c);
        Line(kCellOpen + width + kCellMiddle + (cell.empty() ? std::string("0") : cell) + kCellClose);
      }
      Line("  </tr>");
    }
    Line("  </table>");
    Line("  </center>");
    Line("  </div>");
  }

  std::string Take() { return std::move(out_); }

 private:
  std::string out_;
};

std::string HeadingLine(const std::string& text) { return kHeadingOpen + text + kHeadingClose; }

bool HoldsUnit(const std::string& cell) { return cell.find_first_of("jJiI") != std::string::npos; }

// One term of a row of the system: the coefficient in column j (0-based)
// before its unknown X with subscript j + 1.
std::string Term(const std::string& cell, int j) {
  const std::string x = "X<sub>" + std::to_string(j + 1) + "</sub>";
  const bool first = j == 0;
  if (HoldsUnit(cell)) return (first ? "(" : " + (") + cell + ")*" + x;
  double value = 0;
  try {
    value = expr::TextToNumber(cell);
  } catch (const expr::Fault&) {
    value = 0;
  }
  if (cell == "1") return (first ? "" : " + ") + x;
  if (cell == "-1") return " - " + x;
  if (cell.empty() || cell == "0" || value == 0) return first ? "0" : " + 0";
  if (value > 0) return (first ? "" : " + ") + cell + "*" + x;
  return " - " + expr::NumberToText(-value) + "*" + x;
}

void Head(Writer& w, const OperationReport& op) {
  w.Line(op.kind == Template::System ? kCreatedWith : kDocType);
  for (const char* line : kHead) w.Line(line);
  w.Line(std::string(kTitleOpen) + op.title + kTitleClose);
  w.Line(kRule);
}

void End(Writer& w, const MatrixReport& report) {
  if (!report.equation.empty()) {
    w.Heading(kEquationHeading);
    w.Heading(report.equation);
  }
  w.Line(kEnd1);
  w.Line(kRule);
  w.Line(kLink);
  w.Line(kBodyEnd);
  w.Line(kHtmlEnd);
}

}  // namespace

std::string HtmlReport(const MatrixReport& report) {
  if (report.operation < 1 || report.operation > static_cast<int>(kOperations.size())) return std::string();
  const OperationReport& op = kOperations[static_cast<std::size_t>(report.operation - 1)];
  std::string scalarLine;
  if (report.operation == 4) scalarLine = "r = " + report.entry2;
  if (report.operation == 5) scalarLine = "1/r = 1/(" + report.entry2 + ")";
  std::string detLine;
  if (report.operation == 6 || report.operation == 7) detLine = "Det |A| = " + report.determinant;

  Writer w;
  Head(w, op);
  switch (op.kind) {
    case Template::TwoOperands:
      w.Table(HeadingLine(kMatrixA), kOperandTable, report.gridA);
      w.Heading(scalarLine);
      w.Table(HeadingLine(kMatrixB), kOperandTable, report.gridB);
      w.Table(HeadingLine(" " + std::string(op.label) + " "), kResultTable, report.solution);
      w.SpacedHeading(detLine);
      break;
    case Template::OneOperand:
      w.Table(HeadingLine(kMatrixA), kOperandTable, report.gridA);
      w.Heading(scalarLine);
      // The inverse's heading serves here too: "A to the power -1 = [S] = ...".
      w.Table(HeadingLine(kInverseLead + std::string(op.label) + " "), kResultTable, report.solution);
      w.SpacedHeading(detLine);
      break;
    case Template::InverseAdjoint:
      w.Table(HeadingLine(kMatrixA), kOperandTable, report.gridA);
      w.Heading(scalarLine);
      w.Table(HeadingLine(kInverseLead + std::string(op.label) + " "), kResultTable, report.inverse);
      w.Table(HeadingLine(kAdjoint), kResultTable, report.swap);
      w.SpacedHeading(detLine);
      break;
    case Template::System:
      w.Line(kSystemHeading);
      for (int i = 0; i < report.gridA.Rows(); ++i) {
        std::string row = kEquationOpen;
        for (int j = 0; j < report.gridA.Cols(); ++j) row += Term(report.gridA.TextMatrix(i, j), j);
        row += " = ";
        if (i < report.gridB.Rows() && report.gridB.Cols() > 0) row += report.gridB.TextMatrix(i, 0);
        row += kEquationClose;
        w.Line(row);
      }
      w.Line(kHalfRule);
      w.Table(HeadingLine(kMatrixA), kOperandTable, report.gridA);
      w.Table(HeadingLine(kMatrixB), kOperandTable, report.gridB);
      w.Table(HeadingLine(" " + std::string(op.label) + " "), kResultTable, report.solution);
      w.SpacedHeading(detLine);
      break;
  }
  End(w, report);
  return w.Take();
}

bool WriteHtmlReport(const std::filesystem::path& path, const MatrixReport& report,
                     platform::MessageBox& messages) {
  if (!base::WriteFileAtomically(path, HtmlReport(report))) {
    messages.Show("Path/File access error", kCalculatorTitle, platform::MsgIcon::Critical);
    return false;
  }
  return true;
}

void PublishHtml(const std::filesystem::path& path, const MatrixReport& report,
                 platform::MessageBox& messages,
                 const std::function<bool(const std::filesystem::path&)>& openInBrowser,
                 const ReportWriter& write) {
  std::error_code ec;
  if (std::filesystem::exists(path, ec)) {
    const auto answer =
        messages.Show("The file " + path.string() + " already exists.\r\nDo you want to replace it?",
                      "Save As", platform::MsgIcon::Question, platform::MsgButtons::YesNo);
    if (answer != platform::MsgResult::Yes) return;
  }
  if (write) {
    if (!write(path, HtmlReport(report))) {
      messages.Show("Path/File access error", kCalculatorTitle, platform::MsgIcon::Critical);
      return;
    }
  } else if (!WriteHtmlReport(path, report, messages)) {
    return;
  }
  const auto preview = messages.Show("Preview in Browser?", "Preview HTML", platform::MsgIcon::Question,
                                     platform::MsgButtons::YesNo);
  if (preview == platform::MsgResult::Yes && !openInBrowser(path)) {
    messages.Show("Error. Specified file path cannot be acceded (file is ReadOnly etc.)", kCalculatorTitle,
                  platform::MsgIcon::Exclamation);
  }
}

}  // namespace velmora::matrix
