#include "platform/recentlist.h"

namespace velmora::platform {

void RecentList::LoadRecent() {
  for (int i = 1; i <= kEntries; ++i) {
    std::string value = GetRegValue(store_, section_, Key(i), "");
    if (!value.empty()) captions_[static_cast<std::size_t>(i - 1)] = std::move(value);
  }
}

void RecentList::ShowRecent() {
  separatorVisible_ = !captions_[0].empty();
  visibleEntries_ = 0;
  for (const auto& caption : captions_) {
    if (caption.empty()) break;
    ++visibleEntries_;
  }
}

void RecentList::AddRecent(std::string_view text) {
  int found = 0;
  for (int i = 1; i <= kEntries; ++i) {
    if (captions_[static_cast<std::size_t>(i - 1)] == text) {
      found = i;
      break;
    }
  }
  if (found == 1) {
    ShowRecent();
    return;
  }
  if (found > 1) {
    // Entries above it move one step down; the list below it stays.
    for (int j = found - 1; j >= 1; --j)
      captions_[static_cast<std::size_t>(j)] = captions_[static_cast<std::size_t>(j - 1)];
    captions_[0] = std::string(text);
    for (int i = 1; i <= kEntries; ++i)
      SetRegValue(store_, section_, Key(i), captions_[static_cast<std::size_t>(i - 1)]);
    ShowRecent();
    return;
  }
  // A new text: the stored values shift one step down and Recent8 falls off.
  for (int i = kEntries; i >= 2; --i)
    SetRegValue(store_, section_, Key(i), GetRegValue(store_, section_, Key(i - 1), ""));
  SetRegValue(store_, section_, Key(1), text);
  for (int i = 1; i <= kEntries; ++i)
    captions_[static_cast<std::size_t>(i - 1)] = GetRegValue(store_, section_, Key(i), "");
  ShowRecent();
}

}  // namespace velmora::platform
