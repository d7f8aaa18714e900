#include "files/process_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "file_error_of.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

TEST(ProcessLock, IsHeldByOneAtATime) {
  const TemporaryDirectory directory;
  const auto file = directory.Path() / "lock";
  {
    const auto first = ProcessLock::Try(file);
    EXPECT_TRUE(first);
    EXPECT_FALSE(ProcessLock::Try(file));
  }
  EXPECT_TRUE(ProcessLock::Try(file));
}

TEST(ProcessLock, GoesWithAProcessThatIsKilled) {
  const TemporaryDirectory directory;
  const auto file = directory.Path() / "lock";
  const pid_t process = ::fork();
  if (process == 0) {
    const auto lock = ProcessLock::Try(file);
    ::_exit(lock ? 0 : 1);
  }
  int status = 0;
  ::waitpid(process, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(ProcessLock::Try(file));
}

TEST(ProcessLock, MovesWithItsOwner) {
  const TemporaryDirectory directory;
  const auto file = directory.Path() / "lock";
  auto first = ProcessLock::Try(file);
  ASSERT_TRUE(first);
  ProcessLock second = std::move(*first);
  first.reset();
  EXPECT_FALSE(ProcessLock::Try(file));
  second.Remove();
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST(ProcessLock, AFileThatCannotBeMadeIsAnError) {
  const TemporaryDirectory directory;
  EXPECT_TRUE(FileErrorOf([&] { static_cast<void>(ProcessLock::Try(directory.Path() / "missing" / "lock")); }));
}

TEST(ProcessLock, ALinkIsNotFollowed) {
  const TemporaryDirectory directory;
  std::filesystem::create_symlink(directory.Path() / "elsewhere", directory.Path() / "lock");
  EXPECT_TRUE(FileErrorOf([&] { static_cast<void>(ProcessLock::Try(directory.Path() / "lock")); }));
  EXPECT_FALSE(std::filesystem::exists(directory.Path() / "elsewhere"));
}

}  // namespace
}  // namespace plexel
