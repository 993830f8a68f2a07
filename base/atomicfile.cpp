#include "base/atomicfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <vector>

namespace velmora::base {
namespace {

// The whole buffer, through short writes and interrupted calls.
bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

// The mode the new file should have: the replaced file's, or what open()
// would give a new file. The umask can only be read by setting it; the
// program has one thread, so putting it back at once is safe.
mode_t ModeFor(const std::filesystem::path& path) {
  struct stat old {};
  if (::stat(path.c_str(), &old) == 0 && S_ISREG(old.st_mode)) return old.st_mode & 07777;
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

// Syncs the folder so that the rename itself survives a crash. Best effort:
// the new file is in place whatever this answers.
void SyncFolder(const std::filesystem::path& folder) {
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

}  // namespace

bool WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes) {
  if (path.empty() || !path.has_filename()) return false;
  const std::filesystem::path folder =
      path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
  // A hidden name beside the target: same folder, so the rename cannot cross
  // file systems, and mkstemp makes it unique.
  std::string pattern = (folder / ("." + path.filename().string() + ".XXXXXX")).string();
  std::vector<char> name(pattern.begin(), pattern.end());
  name.push_back('\0');
  const int fd = ::mkostemp(name.data(), O_CLOEXEC);
  if (fd < 0) return false;
  const char* temporary = name.data();

  bool ok = ::fchmod(fd, ModeFor(path)) == 0;
  ok = ok && WriteAll(fd, bytes);
  ok = ok && ::fsync(fd) == 0;
  // close() reports late write errors of some file systems; it is called
  // once whatever happened before.
  ok = (::close(fd) == 0) && ok;
  ok = ok && ::rename(temporary, path.c_str()) == 0;
  if (!ok) {
    ::unlink(temporary);
    return false;
  }
  SyncFolder(folder);
  return true;
}

}  // namespace velmora::base
