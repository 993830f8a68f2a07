#include "app/toolbarlayout.h"

#include <cmath>
#include <optional>
#include <string>

#include "expr/fault.h"
#include "expr/numtext.h"
#include "platform/settingskeys.h"

namespace velmora::app {
namespace {

constexpr int kTwipsPerPixel = 15;

std::string Lower(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

// A stored truth value: "True" and "False" in any case, or a number (0 is
// false). Anything else is no truth value.
std::optional<bool> ReadBool(const std::string& text) {
  const std::string lower = Lower(text);
  if (lower == "true") return true;
  if (lower == "false") return false;
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return std::nullopt;
  const char c = text[first];
  if (!(c == '-' || c == '+' || c == '.' || (c >= '0' && c <= '9'))) return std::nullopt;
  try {
    return expr::TextToNumber(text) != 0;
  } catch (const expr::Fault&) {
    return std::nullopt;
  }
}

std::optional<int> ReadInt(const std::string& text) {
  try {
    const double value = expr::TextToNumber(text);
    if (!std::isfinite(value) || value < 0 || value > 1e6) return std::nullopt;
    return static_cast<int>(std::lround(value));
  } catch (const expr::Fault&) {
    return std::nullopt;
  }
}

std::string BandKey(std::size_t band) {
  return std::string(platform::keys::BandName(static_cast<int>(band) + 1));
}

}  // namespace

ToolbarLayout LoadToolbars(platform::SettingsStore& store) {
  ToolbarLayout layout;
  if (const auto rows = ReadInt(platform::ReadSetting(store, platform::keys::kTB, platform::keys::tb::kRows)))
    layout.rows = *rows;
  for (std::size_t band = 0; band < 4; ++band) {
    const std::string key = BandKey(band);
    if (const auto shown = ReadBool(platform::ReadSetting(store, platform::keys::kTB, key)))
      layout.visible[band] = *shown;
    if (const auto width = ReadInt(platform::ReadSetting(store, platform::keys::kTBW, key)))
      layout.widthTwips[band] = *width;
  }
  return layout;
}

void SaveToolbars(platform::SettingsStore& store, const ToolbarLayout& layout) {
  platform::SetRegValue(store, platform::keys::kTB, platform::keys::tb::kRows, layout.rows);
  for (std::size_t band = 0; band < 4; ++band) {
    const std::string key = BandKey(band);
    platform::SetRegValue(store, platform::keys::kTB, key, layout.visible[band] ? "True" : "False");
    platform::SetRegValue(store, platform::keys::kTBW, key, layout.widthTwips[band]);
  }
}

int TwipsToPixels(int twips) { return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel; }
int PixelsToTwips(int pixels) { return pixels * kTwipsPerPixel; }

}  // namespace velmora::app
