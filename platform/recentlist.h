#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/settingskeys.h"
#include "platform/settingsstore.h"

namespace velmora::platform {

// A most-recent-first list of eight texts kept in one section of the
// settings as Recent1 (newest) to Recent8. The captions are the working copy
// that a menu shows; an empty caption is no entry. The recent functions of
// the frame use the section "Recent Functions", MathPad's recent files the
// section "MathPad".
class RecentList {
 public:
  static constexpr int kEntries = 8;
  static constexpr std::string_view kFunctions = keys::kRecentFunctions;
  static constexpr std::string_view kMathPad = keys::kMathPad;

  RecentList(SettingsStore& store, std::string_view section) : store_(store), section_(section) {}

  // Reads Recent1 to Recent8; a non-empty value becomes the caption of its entry.
  void LoadRecent();
  // Works out which entries a menu shows: the separator when the first
  // caption is not empty, and the entries up to the first empty caption.
  void ShowRecent();
  // Puts a text at the top of the list (exact, case-sensitive comparison).
  void AddRecent(std::string_view text);

  // Caption of entry i, 1 to 8.
  const std::string& Caption(int i) const { return captions_.at(static_cast<std::size_t>(i - 1)); }
  bool SeparatorVisible() const { return separatorVisible_; }
  // How many entries from the first are shown.
  int VisibleEntries() const { return visibleEntries_; }

 private:
  static std::string_view Key(int i) { return keys::RecentName(i); }

  SettingsStore& store_;
  std::string section_;
  std::array<std::string, kEntries> captions_{};
  bool separatorVisible_ = false;
  int visibleEntries_ = 0;
};

}  // namespace velmora::platform
