// The HTML manual of the Help menu: every page the contents list names is
// there, every link and picture of every page leads to a file of the
// manual, and every page names itself in its title.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "tests/support/filebytes.h"

namespace velmora::testing {
namespace {

namespace fs = std::filesystem;

const fs::path kManual = fs::path(VELMORA_SOURCE_DIR) / "docs" / "help";

std::set<std::string> Targets(const std::string& html, const char* attribute) {
  std::set<std::string> targets;
  const std::regex link(std::string(attribute) + "=\"([^\"#]*)(#[^\"]*)?\"");
  for (auto it = std::sregex_iterator(html.begin(), html.end(), link); it != std::sregex_iterator(); ++it) {
    const std::string target = (*it)[1];
    if (!target.empty()) targets.insert(target);
  }
  return targets;
}

TEST(HelpManual, TheContentsPageListsEveryPage) {
  const std::string index = ReadFileBytes(kManual / "index.html");
  ASSERT_FALSE(index.empty()) << "Help > Contents opens index.html";
  const std::set<std::string> listed = Targets(index, "href");
  int pages = 0;
  for (const auto& entry : fs::directory_iterator(kManual)) {
    const std::string name = entry.path().filename().string();
    if (entry.path().extension() != ".html" || name == "index.html") continue;
    ++pages;
    EXPECT_TRUE(listed.count(name) == 1) << name << " is missing from the contents";
  }
  EXPECT_GE(pages, 10) << "a page for each window";
}

TEST(HelpManual, LinksAndPicturesLeadToFilesOfTheManual) {
  for (const auto& entry : fs::directory_iterator(kManual)) {
    if (entry.path().extension() != ".html") continue;
    const std::string html = ReadFileBytes(entry.path());
    for (const char* attribute : {"href", "src"}) {
      for (const std::string& target : Targets(html, attribute)) {
        EXPECT_TRUE(fs::exists(kManual / target)) << entry.path().filename() << " -> " << target;
      }
    }
    EXPECT_NE(html.find("<title>"), std::string::npos) << entry.path().filename();
  }
}

}  // namespace
}  // namespace velmora::testing
