#pragma once

#include <filesystem>
#include <string_view>

namespace velmora::base {

// Replaces the file at `path` with `bytes` so that a reader, and the disk
// after a crash, sees either the whole old file or the whole new one. The
// bytes go to a temporary file in the same folder, which is flushed and
// synced to disk and then renamed over the target; every step is checked.
// On any failure the temporary file is removed, the old file (if any) is
// left exactly as it was, and false comes back. A new file gets the usual
// permissions (0666 less the umask); a replaced file keeps its own. Never
// throws.
//
// Qt code does the same with QSaveFile (platform/qt/qtsavefile.h).
bool WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes);

}  // namespace velmora::base
