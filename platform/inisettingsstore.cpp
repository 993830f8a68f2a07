#include "platform/inisettingsstore.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace velmora::platform {
namespace {

// The group that holds top-level keys in the Qt layout; a real section of
// that name is written "%General".
constexpr std::string_view kGeneral = "General";

std::string_view Trim(std::string_view s) {
  while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
  while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) s.remove_suffix(1);
  return s;
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

void AppendUtf8(std::string& out, unsigned code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

// One parsed line of the file.
struct IniLine {
  enum Kind { kOther, kSection, kValue } kind = kOther;
  std::string name;  // the section or value name, unescaped
  std::string raw;   // the value text as written
};

IniLine ParseLine(std::string_view line) {
  IniLine parsed;
  const std::string_view t = Trim(line);
  if (t.empty() || t.front() == ';' || t.front() == '#') return parsed;
  if (t.front() == '[') {
    const auto close = t.find(']');
    if (close == std::string_view::npos) return parsed;
    parsed.kind = IniLine::kSection;
    const std::string_view raw = Trim(t.substr(1, close - 1));
    if (raw == kGeneral) {
      parsed.name.clear();  // top-level keys
    } else if (raw == "%General") {
      parsed.name = std::string(kGeneral);
    } else {
      parsed.name = IniSettingsStore::UnescapeName(raw);
    }
    return parsed;
  }
  const auto eq = t.find('=');
  if (eq == std::string_view::npos) return parsed;
  parsed.kind = IniLine::kValue;
  parsed.name = IniSettingsStore::UnescapeName(Trim(t.substr(0, eq)));
  parsed.raw = std::string(t.substr(eq + 1));
  return parsed;
}

std::vector<std::string> ReadLines(const std::string& path, bool& exists) {
  std::vector<std::string> lines;
  std::ifstream in(path, std::ios::binary);
  exists = static_cast<bool>(in);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(std::move(line));
  }
  return lines;
}

std::string HomeFolder() {
  const char* home = std::getenv("HOME");
  return home != nullptr ? std::string(home) : std::string(".");
}

std::string XdgFolder(const char* variable, const char* fallback) {
  const char* value = std::getenv(variable);
  if (value != nullptr && value[0] == '/') return value;
  return HomeFolder() + fallback;
}

}  // namespace

std::string IniSettingsStore::EscapeName(std::string_view name) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  for (const char c : name) {
    const auto u = static_cast<unsigned char>(c);
    if (c == '/') {
      out += '\\';
    } else if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
               c == '-' || c == '.') {
      out += c;
    } else {
      out += '%';
      out += kHex[u >> 4];
      out += kHex[u & 0xF];
    }
  }
  return out;
}

std::string IniSettingsStore::UnescapeName(std::string_view escaped) {
  std::string out;
  for (std::size_t i = 0; i < escaped.size(); ++i) {
    const char c = escaped[i];
    if (c == '\\') {
      out += '/';
    } else if (c == '%' && i + 2 < escaped.size() && HexValue(escaped[i + 1]) >= 0 &&
               HexValue(escaped[i + 2]) >= 0) {
      out += static_cast<char>(HexValue(escaped[i + 1]) * 16 + HexValue(escaped[i + 2]));
      i += 2;
    } else if (c == '%' && i + 5 < escaped.size() && escaped[i + 1] == 'U') {
      unsigned code = 0;
      bool ok = true;
      for (std::size_t k = 2; k < 6; ++k) {
        const int h = HexValue(escaped[i + k]);
        if (h < 0) ok = false;
        code = code * 16 + static_cast<unsigned>(h < 0 ? 0 : h);
      }
      if (ok) {
        AppendUtf8(out, code);
        i += 5;
      } else {
        out += c;
      }
    } else {
      out += c;
    }
  }
  return out;
}

std::string IniSettingsStore::EscapeValue(std::string_view value) {
  std::string out;
  if (!value.empty() && value.front() == '@') out += '@';  // "@at" is written "@@at"
  bool quote = false;
  for (const char c : value) {
    const auto u = static_cast<unsigned char>(c);
    if (c == ';' || c == ',' || c == '=') quote = true;
    switch (c) {
      case '\a': out += "\\a"; break;
      case '\b': out += "\\b"; break;
      case '\f': out += "\\f"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      case '\v': out += "\\v"; break;
      case '"':
      case '\\':
        out += '\\';
        out += c;
        break;
      default:
        if (u < 0x20) {
          static constexpr char kHex[] = "0123456789abcdef";
          out += "\\x";
          out += kHex[u >> 4];
          out += kHex[u & 0xF];
        } else {
          out += c;
        }
    }
  }
  if (!out.empty() && (out.front() == ' ' || out.back() == ' ')) quote = true;
  if (quote) out = '"' + out + '"';
  return out;
}

std::string IniSettingsStore::UnescapeValue(std::string_view raw) {
  std::vector<std::string> items(1);
  bool quoted = false;
  bool anyQuoted = false;
  bool afterQuote = false;
  std::size_t keep = 0;  // length of the current item up to its last quoted or non-blank character
  for (std::size_t i = 0; i < raw.size(); ++i) {
    const char c = raw[i];
    std::string& item = items.back();
    if (c == '"') {
      quoted = !quoted;
      afterQuote = !quoted;
      anyQuoted = true;
      keep = item.size();
      continue;
    }
    if (!quoted && c == ';') break;
    if (!quoted && c == ',') {
      item.resize(keep);
      items.emplace_back();
      keep = 0;
      continue;
    }
    // Blanks at the start of an item, or right after a quoted part, are dropped.
    if (!quoted && (c == ' ' || c == '\t') && (item.empty() || afterQuote)) continue;
    afterQuote = false;
    if (c == '\\' && i + 1 < raw.size()) {
      const char e = raw[++i];
      switch (e) {
        case 'a': item += '\a'; break;
        case 'b': item += '\b'; break;
        case 'f': item += '\f'; break;
        case 'n': item += '\n'; break;
        case 'r': item += '\r'; break;
        case 't': item += '\t'; break;
        case 'v': item += '\v'; break;
        case '"':
        case '\'':
        case '?':
        case '\\': item += e; break;
        case 'x': {
          unsigned code = 0;
          while (i + 1 < raw.size() && HexValue(raw[i + 1]) >= 0) code = code * 16 + HexValue(raw[++i]);
          AppendUtf8(item, code);
          break;
        }
        default: break;  // an unknown escape is dropped with its character
      }
      keep = item.size();
      continue;
    }
    item += c;
    if (quoted || (c != ' ' && c != '\t')) keep = item.size();
  }
  items.back().resize(keep);
  if (items.size() > 1) return {};  // a list reads as an empty text
  const std::string& text = items.front();
  if (!anyQuoted && !text.empty() && text[0] == '@') {
    if (text.rfind("@@", 0) == 0) return text.substr(1);
    if (text.rfind("@ByteArray(", 0) == 0 && text[text.size() - 1] == ')')
      return text.substr(11, text.size() - 12);
    return {};  // a typed value (@Variant, @Point ...) has no text form here
  }
  return text;
}

std::optional<std::string> IniSettingsStore::Query(std::string_view section, std::string_view name) {
  bool exists = false;
  const auto lines = ReadLines(path_, exists);
  std::string current;
  std::optional<std::string> found;
  for (const auto& line : lines) {
    IniLine parsed = ParseLine(line);
    if (parsed.kind == IniLine::kSection) {
      current = std::move(parsed.name);
    } else if (parsed.kind == IniLine::kValue && current == section && parsed.name == name) {
      found = UnescapeValue(parsed.raw);  // the last of repeated names wins, as in the Qt reader
    }
  }
  return found;
}

void IniSettingsStore::Store(std::string_view section, std::string_view name, std::string_view text) {
  bool exists = false;
  auto lines = ReadLines(path_, exists);
  const std::string newLine = EscapeName(name) + '=' + EscapeValue(text);
  std::string current;
  bool sectionSeen = false;
  std::size_t insertAt = lines.size();
  bool replaced = false;
  for (std::size_t i = 0; i < lines.size() && !replaced; ++i) {
    IniLine parsed = ParseLine(lines[i]);
    if (parsed.kind == IniLine::kSection) {
      current = std::move(parsed.name);
      if (current == section) {
        sectionSeen = true;
        insertAt = i + 1;
      }
    } else if (parsed.kind == IniLine::kValue && current == section) {
      insertAt = i + 1;
      if (parsed.name == name) {
        lines[i] = newLine;
        replaced = true;
      }
    }
  }
  if (!replaced) {
    if (sectionSeen || section.empty()) {
      lines.insert(
          lines.begin() + static_cast<std::ptrdiff_t>(section.empty() && !sectionSeen ? 0 : insertAt),
          newLine);
    } else {
      if (!lines.empty() && !lines.back().empty()) lines.emplace_back();
      lines.push_back('[' + (section == kGeneral ? std::string("%General") : EscapeName(section)) + ']');
      lines.push_back(newLine);
    }
  }
  std::error_code ec;
  const std::filesystem::path path(path_);
  if (path.has_parent_path()) std::filesystem::create_directories(path.parent_path(), ec);
  const std::string temporary = path_ + ".tmp";
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (!out) return;
    for (const auto& line : lines) out << line << '\n';
    if (!out) return;
  }
  std::filesystem::rename(temporary, path, ec);
  if (ec) std::filesystem::remove(temporary, ec);
}

std::string UserConfigFolder() { return XdgFolder("XDG_CONFIG_HOME", "/.config"); }
std::string UserDataFolder() { return XdgFolder("XDG_DATA_HOME", "/.local/share"); }
std::string UserSettingsPath() { return UserConfigFolder() + "/Velmora/Velmora.ini"; }

}  // namespace velmora::platform
