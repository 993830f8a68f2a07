#include "graph/historylog.h"

#include <filesystem>
#include <fstream>

#include "base/singlebyte.h"
#include "platform/userfolders.h"

namespace velmora::graph {

std::string HistoryLog::DefaultPath() { return platform::UserDataFolder() + "/Velmora/GraphLog.txt"; }

std::string ToLatin1(std::string_view utf8) { return base::Utf8ToSingleByte(utf8, 0x80); }

std::string FromLatin1(std::string_view latin1) {
  std::string out;
  out.reserve(latin1.size());
  for (const char ch : latin1) {
    const auto c = static_cast<unsigned char>(ch);
    if (c < 0x80) {
      out += ch;
    } else {
      out += static_cast<char>(0xC0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return out;
}

bool HistoryLog::Append(const std::vector<std::string>& lines) const {
  std::error_code ec;
  const std::filesystem::path path(path_);
  if (path.has_parent_path()) std::filesystem::create_directories(path.parent_path(), ec);
  std::ofstream out(path_, std::ios::binary | std::ios::app);
  if (!out) return false;
  for (const auto& line : lines) out << ToLatin1(line) << "\r\n";
  out.close();
  return static_cast<bool>(out);
}

std::string HistoryLog::ReadAll() const {
  std::ifstream in(path_, std::ios::binary);
  if (!in) return {};
  std::string raw;
  char chunk[4096];
  while (in.read(chunk, sizeof chunk) || in.gcount() > 0)
    raw.append(chunk, static_cast<std::size_t>(in.gcount()));
  const std::string text = FromLatin1(raw);
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    out += text[i];
  }
  return out;
}

void HistoryLog::Clear() const { std::ofstream out(path_, std::ios::binary | std::ios::trunc); }

}  // namespace velmora::graph
