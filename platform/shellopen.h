#pragma once

#include <string>
#include <string_view>

namespace velmora::platform {

// The desktop's way of opening a target. Execute answers with the result
// number of the classic shell call: above 32 is success, the numbers below
// name the failure (2 file not found, 3 path not found, 31 no association...).
class ShellLauncher {
 public:
  virtual ~ShellLauncher() = default;
  // `runAsProgram` is true when the target is taken for a program, which then
  // runs with `parameters` in `directory`; otherwise the target is opened with
  // the application associated with it.
  virtual int Execute(const std::string& file, const std::string& parameters, const std::string& directory,
                      const std::string& verb, bool runAsProgram) = 0;
};

// What a shell-out ended with. A failure carries the error text and the
// source name "<program>.GShell" that the caller reports.
struct ShellResult {
  bool ok = true;
  int number = 33;
  std::string description;
  std::string source;
};

// A target holding ".EXE" in any letter case counts as a program, wherever
// the substring stands ("MANUAL.exe.txt" is one).
bool IsProgramTarget(std::string_view file);

// The text of a failed result number; "" for a success (above 32).
std::string ShellErrorText(int number);

// Hands a target to the launcher and maps its result number to a text.
// `appName` names the source of a failure.
ShellResult ShellOpen(ShellLauncher& launcher, const std::string& file, const std::string& parameters = {},
                      const std::string& directory = {}, const std::string& verb = "open",
                      std::string_view appName = "Velmora");

}  // namespace velmora::platform
