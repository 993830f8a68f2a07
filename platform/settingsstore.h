#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora::platform {

// The per-user tree of settings: sections holding named values, every value
// kept as text (a number is its decimal text). It is the only state that
// survives a restart. There is no cache anywhere: every read goes to the
// store, so a change made by one window shows in every other window at its
// next read.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  // The stored text of a value, or nothing when the value or its section is
  // absent. A store that cannot be read answers nothing.
  virtual std::optional<std::string> Query(std::string_view section, std::string_view name) = 0;
  // Writes a value, creating its section when missing. A failed write is
  // ignored without a word.
  virtual void Store(std::string_view section, std::string_view name, std::string_view text) = 0;
};

// The key path of a section, its parts joined with "\" and empty parts left
// out: KeyPath("Software", "Velmora", "Grid") is "Software\Velmora\Grid".
std::string KeyPath(std::string_view prefix, std::string_view product, std::string_view section);

// The value as stored, or `defaultText` when it is absent. Never fails: a
// store fault reads as the default.
std::string GetRegValue(SettingsStore& store, std::string_view section, std::string_view name,
                        std::string_view defaultText);

// Numbers are not read here: a value is text, and its number is the
// caller's to take with the numeric text rules of expr/ (graph/settingnumber.h).

// Writes text, or a 32-bit number as its decimal text.
void SetRegValue(SettingsStore& store, std::string_view section, std::string_view name,
                 std::string_view text);
void SetRegValue(SettingsStore& store, std::string_view section, std::string_view name, std::int32_t number);

}  // namespace velmora::platform
