#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::cli {

// velmora-cli print-text IN OUT.pdf [--settings FILE] [--html]: a text file
// printed to a PDF file page by page with the margins of the section
// "Print", as the program's print commands print a document.
int RunPrintText(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
                 std::ostream& err);

}  // namespace velmora::cli
