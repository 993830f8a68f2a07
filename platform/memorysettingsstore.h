#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/settingsstore.h"

namespace velmora::platform {

// A settings tree held in memory: the paper pictures of Plotting Options,
// benchmarks, and runs that must not touch the user's file. Names compare
// exactly, as in the settings file. Tests use the checking fake built on it
// (tests/support/fakesettingsstore.h).
class MemorySettingsStore final : public SettingsStore {
 public:
  std::optional<std::string> Query(std::string_view section, std::string_view name) override {
    ++reads_;
    const auto it = values_.find({std::string(section), std::string(name)});
    if (it == values_.end()) return std::nullopt;
    return it->second;
  }
  void Store(std::string_view section, std::string_view name, std::string_view text) override {
    ++writes_;
    values_[{std::string(section), std::string(name)}] = std::string(text);
  }
  void Erase(std::string_view section, std::string_view name) {
    values_.erase({std::string(section), std::string(name)});
  }
  // How many reads and writes reached the store: the tests of "no cache".
  int Reads() const { return reads_; }
  int Writes() const { return writes_; }
  const std::map<std::pair<std::string, std::string>, std::string>& Values() const { return values_; }

 private:
  std::map<std::pair<std::string, std::string>, std::string> values_;
  int reads_ = 0;
  int writes_ = 0;
};

}  // namespace velmora::platform
