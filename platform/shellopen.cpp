#include "platform/shellopen.h"

#include "base/asciicase.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace velmora::platform {
namespace {

// The failure numbers of the shell call and their texts.
constexpr std::array<std::pair<int, std::string_view>, 13> kErrorTexts{{
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
}};

constexpr std::string_view kOtherError =
    "An error occurred occurred whilst trying to open or print the selected file.";

}  // namespace

bool IsProgramTarget(std::string_view file) {
  return base::UpperCase(file).find(".EXE") != std::string::npos;
}

std::string ShellErrorText(int number) {
  if (number > 32) return {};
  for (const auto& [code, text] : kErrorTexts) {
    if (code == number) return std::string(text);
  }
  return std::string(kOtherError);
}

ShellResult ShellOpen(ShellLauncher& launcher, const std::string& file, const std::string& parameters,
                      const std::string& directory, const std::string& verb, std::string_view appName) {
  // With neither parameters nor a folder the short form of the call runs,
  // which passes both as empty texts: the same call here.
  const int number = launcher.Execute(file, parameters, directory, verb, IsProgramTarget(file));
  ShellResult result;
  result.number = number;
  if (number > 32) return result;
  result.ok = false;
  result.description = ShellErrorText(number);
  result.source = std::string(appName) + ".GShell";
  return result;
}

}  // namespace velmora::platform
