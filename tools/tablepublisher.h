#pragma once

#include <string>
#include <string_view>

#include "graph/valuetable.h"
#include "platform/filedialog.h"
#include "platform/messagebox.h"
#include "platform/shellopen.h"

namespace velmora::tools {

// What a value table is published with: the boxes as typed, not as
// evaluated.
struct TableHead {
  bool polar = false;
  std::string yLabel;    // `labY`, "Y (X) =" ...
  std::string function;  // `txtY`
  std::string xmin;      // `txtdole`
  std::string xmax;      // `txtgore`
  std::string step;      // `Combo1`
};

// The text form and the HTML page of a value table, and the publishing
// command that writes the page and offers its preview.
class TablePublisher {
 public:
  // The product and home page named in the page's generator tag and footer.
  static constexpr std::string_view kProduct = "Velmora";
  static constexpr std::string_view kHomePage = "https://www.velmora.org/";

  // The text form (`Text2`), lines joined by CR LF: a head of the function
  // and range, then each grid row in brackets, its cells followed by ";" and
  // one tab when longer than 4 characters (2 in a polar table), two when not.
  static std::string BuildTableText(const graph::ValueTable& table, const TableHead& head);
  // The HTML page as written to the file: CR LF line ends, Windows-1252.
  static std::string HtmlPage(const graph::ValueTable& table, const TableHead& head);

  TablePublisher(platform::FileDialog& files, platform::MessageBox& messages, platform::ShellLauncher* shell)
      : files_(files), messages_(messages), shell_(shell) {}

  // "Publish Table as HTML": the save dialog, the replace question, the
  // file, the preview question and the browser. Returns the path written,
  // or "" when nothing was.
  std::string Publish(const graph::ValueTable& table, const TableHead& head);
  // The path and function of the last page written.
  const std::string& PublishedPath() const { return path_; }
  const std::string& PublishedFunction() const { return function_; }

 private:
  platform::FileDialog& files_;
  platform::MessageBox& messages_;
  platform::ShellLauncher* shell_;
  std::string path_;
  std::string function_;
};

// The number of characters of a UTF-8 text.
std::size_t CharacterCount(std::string_view text);
// UTF-8 to Windows-1252 for the characters that page holds (ASCII and the
// Latin-1 letters); any other character becomes "?", the C1 controls too,
// as the page's reader takes bytes 0x80 to 0x9F for Windows-1252 characters.
std::string ToWindows1252(std::string_view utf8);

}  // namespace velmora::tools
