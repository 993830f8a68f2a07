// The shell-out's result texts and the file dialogs' filter form.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/filefilter.h"
#include "platform/shellopen.h"

namespace velmora::platform {
namespace {

// A launcher that answers a fixed result number and records the call.
class FixedLauncher final : public ShellLauncher {
 public:
  explicit FixedLauncher(int answer) : answer_(answer) {}
  int Execute(const std::string& file, const std::string& parameters, const std::string& directory,
              const std::string& verb, bool runAsProgram) override {
    calls.push_back({file, parameters, directory, verb, runAsProgram});
    return answer_;
  }
  struct Call {
    std::string file, parameters, directory, verb;
    bool runAsProgram;
  };
  std::vector<Call> calls;

 private:
  int answer_;
};

TEST(ShellOpen, ResultNumbersAndTheirTexts) {
  struct Row {
    int number;
    std::string_view text;
  };
  const Row rows[] = {
      {0, "Out of memory"},
      {8, "Out of memory"},
      {2, "File not found"},
      {3, "Path not found"},
      {5, "Path/file access error"},
      {11, "The executable file is invalid or corrupt"},
      {26, "A sharing violation occurred."},
      {27, "This file type does not have a valid file association."},
      {28, "The file could not be opened due to time out.  Please try again in a moment."},
      {29, "The file could not be opened because the DDE transaction failed.  Please try again in a moment."},
      {30,
       "The file could not be opened because the target application is busy.  Please try again in a moment."},
      {31, "No application is associated with this file type."},
      {32, "The specified dynamic-link library was not found."},
      {1, "An error occurred occurred whilst trying to open or print the selected file."},   // any other
      {12, "An error occurred occurred whilst trying to open or print the selected file."},  // any other
  };
  for (const auto& r : rows) {
    FixedLauncher launcher(r.number);
    const ShellResult result = ShellOpen(launcher, "notes.txt");
    EXPECT_FALSE(result.ok) << r.number;
    EXPECT_EQ(result.number, r.number);
    EXPECT_EQ(result.description, r.text) << r.number;
    EXPECT_EQ(result.source, "Velmora.GShell");
  }
}

TEST(ShellOpen, ThirtyThreeIsSuccess) {
  FixedLauncher launcher(33);
  const ShellResult result = ShellOpen(launcher, "notes.txt");
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.description, "");
}

TEST(ShellOpen, AnyTargetHoldingExeRunsAsAProgram) {
  struct Row {
    std::string_view file;
    bool program;
  };
  const Row rows[] = {
      {"tool.exe", true},        // plain
      {"TOOL.EXE", true},        // upper case
      {"MANUAL.exe.txt", true},  // the substring anywhere
      {"manual.txt", false},    {"https://example.org/", false},
  };
  for (const auto& r : rows) {
    FixedLauncher launcher(42);
    ShellOpen(launcher, std::string(r.file), "-x", "/tmp");
    ASSERT_EQ(launcher.calls.size(), 1u);
    EXPECT_EQ(launcher.calls[0].runAsProgram, r.program) << r.file;
    EXPECT_EQ(launcher.calls[0].parameters, "-x");
    EXPECT_EQ(launcher.calls[0].directory, "/tmp");
    EXPECT_EQ(launcher.calls[0].verb, "open");
  }
}

TEST(FileFilter, ProgramFormToQtForm) {
  struct Row {
    std::string_view in;
    std::string_view out;
  };
  const Row rows[] = {
      {"", ""},
      {"Bitmap (*.bmp)|*.bmp", "Bitmap (*.bmp)"},                        // description names its pattern
      {"Bitmap|*.bmp", "Bitmap (*.bmp)"},                                // pattern added
      {"Pictures|*.bmp;*.dib", "Pictures (*.bmp *.dib)"},                // several patterns
      {"Pictures (*.bmp;*.dib)|*.bmp;*.dib", "Pictures (*.bmp;*.dib)"},  // named with ";"
      {"Matrix (*.mcf)|*.mcf|All files (*.*)|*.*", "Matrix (*.mcf);;All files (*.*)"},  // two pairs
      {"Text files", "Text files (*)"},  // no pattern: every file
  };
  for (const auto& r : rows) EXPECT_EQ(FilterToQt(r.in), r.out) << r.in;
}

}  // namespace
}  // namespace velmora::platform
