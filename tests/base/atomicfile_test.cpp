#include "base/atomicfile.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/filebytes.h"

namespace velmora::base {
namespace {

namespace fs = std::filesystem;

// A fresh folder for one test, removed afterwards.
class AtomicFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ =
        fs::temp_directory_path() /
        ("velmora-atomic-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override {
    fs::permissions(folder_, fs::perms::owner_all, fs::perm_options::add);
    fs::remove_all(folder_);
  }

  static std::string ReadBytes(const fs::path& path) { return velmora::testing::ReadFileBytes(path); }
  static void WriteBytes(const fs::path& path, const std::string& bytes) {
    velmora::testing::WriteFileBytes(path, bytes);
  }
  // The names in the folder: a leftover temporary file shows here.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  fs::path folder_;
};

// Runs `attempt` in a child process, so that what it changes about the
// process (user, limits, signals) cannot leak into the other tests; its
// answer comes back as the exit code.
bool InChild(const std::function<bool()>& attempt) {
  const pid_t pid = ::fork();
  if (pid == 0) ::_exit(attempt() ? 0 : 1);
  int status = 0;
  ::waitpid(pid, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Root may write anywhere; the unwritable-folder case drops to the user
// "nobody" first so that it tests the same thing under any account.
void DropPrivileges() {
  if (::geteuid() != 0) return;
  if (::setgid(65534) != 0 || ::setuid(65534) != 0) ::_exit(2);
}

TEST_F(AtomicFileTest, WritesANewFileWithNothingElseLeft) {
  const fs::path target = folder_ / "new.mcf";
  ASSERT_TRUE(WriteFileAtomically(target, "2 \r\nabc\r\n"));
  EXPECT_EQ(ReadBytes(target), "2 \r\nabc\r\n");
  EXPECT_EQ(Names(), std::vector<std::string>{"new.mcf"});
}

TEST_F(AtomicFileTest, ReplacesAnOldFileWhole) {
  const fs::path target = folder_ / "old.htm";
  WriteBytes(target, std::string(5000, 'x'));  // longer than the new text: nothing of it may stay
  ASSERT_TRUE(WriteFileAtomically(target, "short"));
  EXPECT_EQ(ReadBytes(target), "short");
  EXPECT_EQ(Names(), std::vector<std::string>{"old.htm"});
}

TEST_F(AtomicFileTest, EmptyTextGivesAnEmptyFile) {
  const fs::path target = folder_ / "empty.txt";
  WriteBytes(target, "old");
  ASSERT_TRUE(WriteFileAtomically(target, ""));
  EXPECT_TRUE(fs::exists(target));
  EXPECT_EQ(fs::file_size(target), 0u);
}

TEST_F(AtomicFileTest, AReplacedFileKeepsItsPermissions) {
  const fs::path target = folder_ / "kept.ini";
  WriteBytes(target, "old");
  fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  ASSERT_TRUE(WriteFileAtomically(target, "new"));
  EXPECT_EQ(fs::status(target).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(AtomicFileTest, ANewFileIsNotPrivateToItsOwner) {
  // mkstemp makes 0600 files; the saved file must get the ordinary mode.
  const fs::path target = folder_ / "fresh.mcf";
  const mode_t mask = ::umask(022);
  ASSERT_TRUE(WriteFileAtomically(target, "1"));
  ::umask(mask);
  EXPECT_EQ(fs::status(target).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read | fs::perms::others_read);
}

TEST_F(AtomicFileTest, UnwritableFolderLeavesTheOldFileByteForByte) {
  const fs::path target = folder_ / "matrix.mcf";
  const std::string old = "3 \r\n3 \r\n1\r\n\r\n-0.5\r\n";
  WriteBytes(target, old);
  fs::permissions(folder_, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_read |
                               fs::perms::group_exec | fs::perms::others_read | fs::perms::others_exec);
  const bool written = InChild([&] {
    DropPrivileges();
    return WriteFileAtomically(target, "1 \r\n1 \r\nnew\r\n");
  });
  fs::permissions(folder_, fs::perms::owner_all, fs::perm_options::add);
  EXPECT_FALSE(written);
  EXPECT_EQ(ReadBytes(target), old);
  EXPECT_EQ(Names(), std::vector<std::string>{"matrix.mcf"});
}

TEST_F(AtomicFileTest, AFailedWriteLeavesTheOldFileAndNoTemporaryFile) {
  // A file size limit makes the write itself fail half way, as a full disk does.
  const fs::path target = folder_ / "report.htm";
  const std::string old = "<html>old</html>";
  WriteBytes(target, old);
  const bool written = InChild([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{64, 64};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return true;  // shows as a failure of the test
    return WriteFileAtomically(target, std::string(100000, 'n'));
  });
  EXPECT_FALSE(written);
  EXPECT_EQ(ReadBytes(target), old);
  EXPECT_EQ(Names(), std::vector<std::string>{"report.htm"});
}

TEST_F(AtomicFileTest, MissingFolderFailsAndCreatesNothing) {
  EXPECT_FALSE(WriteFileAtomically(folder_ / "no" / "such" / "file.mcf", "x"));
  EXPECT_TRUE(Names().empty());
}

TEST_F(AtomicFileTest, AFolderInTheWayIsNotReplaced) {
  // rename() will not put a file over a folder: the write fails and the
  // folder stays, with nothing left beside it.
  fs::create_directories(folder_ / "taken");
  EXPECT_FALSE(WriteFileAtomically(folder_ / "taken", "x"));
  EXPECT_TRUE(fs::is_directory(folder_ / "taken"));
  EXPECT_EQ(Names(), std::vector<std::string>{"taken"});
}

TEST(AtomicFile, NoFileNameFails) {
  EXPECT_FALSE(WriteFileAtomically("", "x"));
  EXPECT_FALSE(WriteFileAtomically(fs::temp_directory_path() / "", "x"));
}

}  // namespace
}  // namespace velmora::base
