#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/filedialog.h"
#include "platform/messagebox.h"

// Saving the Geometry Calculator's figure as a picture file through the
// picture save the graph windows use, with the texts below: the save
// dialog, the replace question and the message when the file cannot be written.
namespace velmora::geometry {

inline constexpr std::string_view kFigureSaveTitle = "Save Graph As";
inline constexpr std::string_view kFigureSaveFilter = "Bitmap (*.bmp)|*.bmp";
inline constexpr std::string_view kFigureReplaceTitle = "Save As";
inline constexpr std::string_view kFigureReplaceQuestion = " already exists.\r\nDo you want to replace it?";
inline constexpr std::string_view kFigureSaveFailed = "The picture could not be saved.";

// Writes the picture to the path; false when it could not.
using FigureWriter = std::function<bool(const std::string& path)>;

// Asks for a file name (".bmp" is added to a name without an extension),
// asks before replacing an existing file, and writes. True when the picture
// was saved; false when the user cancelled or the write failed (with its
// message).
bool SaveFigurePicture(platform::FileDialog& files, platform::MessageBox& box, const FigureWriter& write);

}  // namespace velmora::geometry
