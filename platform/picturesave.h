#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/filedialog.h"
#include "platform/messagebox.h"

// Saving a picture to a file the user names: the save dialog, ".bmp" added
// to a name without an extension, the question before an existing file is
// replaced, and the message when the file cannot be written. The graph
// windows and the Geometry Calculator's figure share it; each passes its
// own texts.
namespace velmora::platform {

struct PictureSaveTexts {
  std::string_view title;            // the save dialog's and the failure box's title
  std::string_view filter;           // the save dialog's filter
  std::string_view replaceTitle;     // the replace question's title
  std::string_view replaceQuestion;  // follows the file name in the replace question
  std::string_view failed;           // follows the file name and a line break on failure
};

// Writes the picture to the path; false when it could not.
using PictureWriter = std::function<bool(const std::string& path)>;

// True when the picture was saved; false when the user cancelled (the dialog
// or the replace question) or the write failed (after its message).
bool SavePictureFile(FileDialog& files, MessageBox& box, const PictureSaveTexts& texts,
                     const PictureWriter& write);

}  // namespace velmora::platform
