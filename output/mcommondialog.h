#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/messagebox.h"
#include "platform/filedialog.h"

namespace velmora::output {

// `mCommonDialog`: the save and open dialogs for code that has no dialog of
// its own, over the platform's file dialog. Filters are given in the
// program's form, parts split by "|" (or ":"), which the platform layer turns
// into its own.
struct FileRequest {
  std::string fileName;    // proposed name (in)
  std::string defaultExt;  // added, after a ".", to a chosen name without an extension
  std::string filter;      // "Description|patterns|..."
  std::string initialDir;
  std::string title;
  bool askReplace = true;  // a chosen file that exists is confirmed first
};

// What a dialog chose: the full name and the title (the name without its folder).
struct ChosenFile {
  std::string fileName;
  std::string fileTitle;
};

class mCommonDialog {
 public:
  static constexpr std::string_view kReplaceTitle = "Save As";
  static constexpr std::string_view kReplaceQuestion = " already exists.\r\nDo you want to replace it?";

  // The save dialog; nothing when the user cancels or will not replace an
  // existing file.
  static std::optional<ChosenFile> VBGetSaveFileName(platform::FileDialog& files, base::MessageBox& messages,
                                                     const FileRequest& request);
  // The open dialog in the same way (no question about replacing).
  static std::optional<ChosenFile> VBGetOpenFileName(platform::FileDialog& files, const FileRequest& request);

  // The filter with ":" separators turned into "|", the form the platform
  // layer reads. A ":" that belongs to a drive or a scheme does not occur in
  // the program's filters.
  static std::string NormaliseFilter(std::string_view filter);
  // The question asked before an existing file is replaced.
  static std::string ReplaceQuestion(std::string_view fileName);
};

}  // namespace velmora::output
