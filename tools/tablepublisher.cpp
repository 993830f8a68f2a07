#include "tools/tablepublisher.h"

#include <filesystem>
#include <fstream>

#include "base/singlebyte.h"

namespace velmora::tools {
namespace {

constexpr std::string_view kCrLf = "\r\n";

std::string Piece(const std::string& text, std::size_t limit) {
  return text + (CharacterCount(text) > limit ? ";\t" : ";\t\t");
}

const char* const kHead[] = {
    "   <!DOCTYPE HTML PUBLIC '-//W3C//DTD HTML 4.0 Transitional//EN'>",
    "<html>",
    "   <head>",
    "     <meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>",
};

}  // namespace

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (const char c : text) {
    if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++count;
  }
  return count;
}

std::string ToWindows1252(std::string_view utf8) { return base::Utf8ToSingleByte(utf8, 0xA0); }

std::string TablePublisher::BuildTableText(const graph::ValueTable& table, const TableHead& head) {
  std::string text;
  std::size_t limit = 4;
  int cells = 3;
  if (head.polar) {
    text = "Function: R (K) = " + head.function + std::string(kCrLf) + "Range:    Xmin = 0" + "  Xmax = 2Pi" +
           std::string(kCrLf);
    limit = 2;
    cells = 4;
  } else {
    text = "Function: Y = " + head.function + std::string(kCrLf) + "Range:    Xmin = " + head.xmin +
           "  Xmax = " + head.xmax + std::string(kCrLf);
  }
  static const std::string kEmpty;
  for (int row = 0; row < table.Rows(); ++row) {
    text += kCrLf;
    text += "[";
    for (int col = 0; col < cells; ++col) {
      text += Piece(col < table.Cols() ? table.TextMatrix(row, col) : kEmpty, limit);
    }
    text += "]";
  }
  return text;
}

std::string TablePublisher::HtmlPage(const graph::ValueTable& table, const TableHead& head) {
  std::string page;
  page.reserve(256 + static_cast<std::size_t>(table.Rows()) * 220);
  const auto line = [&page](std::string_view text) {
    page += text;
    page += kCrLf;
  };
  for (const char* text : kHead) line(text);
  line("     <meta name='GENERATOR' content='" + std::string(kProduct) + " " + std::string(kHomePage) + "'>");
  line("     <TITLE>Value Tables for " + head.function + "</TITLE>");
  line("  </head>");
  line("  <body bgcolor=#FFFFFF link='#000000' vlink='#000000' alink='#000000'>");
  line("  <hr noshade size='1'>");
  line("  <p><font face='Arial' size='2'><b>Value Tables for Function:&nbsp;</b></font></p>");
  line("  <p align='center'><font face='Arial' size='3'><b>" + head.yLabel + head.function +
       "</b> &nbsp;</font></p>");
  line("  <p align='center'><font face='Arial' size='3'><b>Range: (" + head.xmin + " ; " + head.xmax +
       ")</b> &nbsp;</font></p>");
  line("  <p align='center'><font face='Arial' size='3'><b>Step: " + head.step + "</b> &nbsp;</font></p>");
  line("  <div align='center'>");
  line("  <center>");
  line("  <table border='1' cellspacing='1' width='80%'>");
  // The first of the two writes of the buffer ends here, with a CR LF of its own.
  page += kCrLf;
  const bool four = table.Cols() == 4;
  const std::string width = four ? "25" : "33";
  for (int row = 0; row < table.Rows(); ++row) {
    line("  <tr>");
    for (int col = 0; col < table.Cols() && col < 4; ++col) {
      const std::string& text = table.TextMatrix(row, col);
      if (col == 3 && text.empty()) continue;
      if (row == 0) {
        line("  <td width='" + width + "%' align='center'" + (col == 0 ? " " : "  ") +
             "bgcolor='#D6D6D6' style='border-style: outset; border-width: 3'><font face='Arial' "
             "size='2'><b>" +
             text + "</b></font></td>");
      } else {
        line("  <td width='" + width + "%'><font face='Arial' size='2'>" + text + "</font></td>");
      }
    }
    line("  </tr>");
  }
  line("  </table>");
  line("  </center>");
  line("  </div>");
  line("  <p>&nbsp;</p>");
  line("  <hr noshade size='1'>");
  line("    <p><font face='Arial' size='1'><a href='" + std::string(kHomePage) + "' target='_blank'>" +
       std::string(kProduct) + "</a></font></p>");
  line("  </body>");
  line("</html>");
  page += kCrLf;
  return ToWindows1252(page);
}

std::string TablePublisher::Publish(const graph::ValueTable& table, const TableHead& head) {
  const std::optional<std::string> chosen =
      files_.Save("Publish Table", "HTML (*.htm;*.html)|*.htm;*.html", std::string(), std::string());
  if (!chosen || chosen->empty()) return {};
  const std::string& path = *chosen;
  std::error_code error;
  if (std::filesystem::exists(path, error) && !error) {
    if (messages_.Show(path + " already exists.\r\nDo you want to replace it?", "Save As",
                       platform::MsgIcon::None, platform::MsgButtons::YesNo) != platform::MsgResult::Yes) {
      return {};
    }
  }
  path_ = path;
  function_ = head.function;
  {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    const std::string page = HtmlPage(table, head);
    if (out) out.write(page.data(), static_cast<std::streamsize>(page.size()));
    if (!out) {
      messages_.Show("Error. Specified file path cannot be acceded (file is ReadOnly etc.)", "Velmora",
                     platform::MsgIcon::Exclamation);
      return {};
    }
  }
  if (messages_.Show("Preview in Browser?", "Table Preview", platform::MsgIcon::Question,
                     platform::MsgButtons::YesNo) == platform::MsgResult::Yes &&
      shell_ != nullptr) {
    platform::ShellOpen(*shell_, path);
  }
  return path;
}

}  // namespace velmora::tools
