#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "matrix/grid.h"
#include "platform/messagebox.h"

// "Publish as HTML...": the current operation with its operands and results
// as one HTML file, read from the grids' cell texts so that it shows what
// the user sees. Four templates: two operands (add, subtract, multiply), one
// operand (the scalar operations), inverse with adjoint, and the system of
// equations.
namespace velmora::matrix {

struct MatrixReport {
  int operation = 1;        // 1 to 7, as the calculator numbers them
  const Grid& gridA;        // [A]
  const Grid& gridB;        // [B]
  const Grid& solution;     // [S]
  const Grid& inverse;      // [I]
  const Grid& swap;         // [T], holding the adjoint for the inverse report
  std::string entry2;       // the scalar box
  std::string determinant;  // the determinant box
  std::string equation;     // the characteristic equation box
};

inline constexpr const char* kHtmlFilter = "HTML (*.htm;*.html)|*.htm;*.html";

// The bytes of the report, CR LF at the end of every line. An operation
// outside 1 to 7 gives an empty text.
std::string HtmlReport(const MatrixReport& report);

// Writes the report to `path`, replacing an existing file whole or not at
// all (base::WriteFileAtomically). A failure shows the fault's message and
// returns false; an old file at `path` then stays as it was.
bool WriteHtmlReport(const std::filesystem::path& path, const MatrixReport& report,
                     platform::MessageBox& messages);

// The command after the file dialog: asks before replacing an existing file,
// writes, and offers a preview, which `openInBrowser` performs (false when
// the file could not be opened). `write`, when given, writes the bytes
// instead of base::WriteFileAtomically (the window writes through Qt).
using ReportWriter = std::function<bool(const std::filesystem::path&, const std::string&)>;
void PublishHtml(const std::filesystem::path& path, const MatrixReport& report,
                 platform::MessageBox& messages,
                 const std::function<bool(const std::filesystem::path&)>& openInBrowser,
                 const ReportWriter& write = {});

}  // namespace velmora::matrix
