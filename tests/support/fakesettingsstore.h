#pragma once

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/memorysettingsstore.h"
#include "platform/settingskeys.h"

namespace velmora::testing {

// The settings store of the tests: the in-memory tree, counting reads and
// writes, that fails the running test on a section and name that are not in
// the key table (platform/settingskeys.cpp). A misspelt key would otherwise
// read its default in silence and the test would pass for the wrong reason.
class FakeSettingsStore final : public platform::SettingsStore {
 public:
  std::optional<std::string> Query(std::string_view section, std::string_view name) override {
    CheckKnown(section, name);
    return memory_.Query(section, name);
  }
  void Store(std::string_view section, std::string_view name, std::string_view text) override {
    CheckKnown(section, name);
    memory_.Store(section, name, text);
  }
  void Erase(std::string_view section, std::string_view name) {
    CheckKnown(section, name);
    memory_.Erase(section, name);
  }
  // How many reads and writes reached the store: the tests of "no cache".
  int Reads() const { return memory_.Reads(); }
  int Writes() const { return memory_.Writes(); }
  const std::map<std::pair<std::string, std::string>, std::string>& Values() const {
    return memory_.Values();
  }

 private:
  static void CheckKnown(std::string_view section, std::string_view name) {
    if (platform::FindKey(section, name) == nullptr)
      ADD_FAILURE() << "settings key [" << section << "] " << name << " is not in the key table";
  }

  platform::MemorySettingsStore memory_;
};

}  // namespace velmora::testing
