#include "files/process_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "file_error_of.h"
#include "world/file_faults.h"
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

TEST(ProcessLock, AFileThatItsLastHolderRemovesInTheMeantimeIsMadeAnew) {
  const TemporaryDirectory directory;
  const auto file = directory.Path() / "lock";
  for (const bool another : {false, true}) {
    int tries = 0;
    std::optional<ProcessLock> lock;
    {
      const Meanwhile holder(directory.Path(), "flock", [&] {
        if (++tries > 1) return;
        std::filesystem::remove(file);
        if (another) directory.Put("lock", "");
      });
      lock = ProcessLock::Try(file);
    }
    EXPECT_EQ(tries, 2);
    ASSERT_TRUE(lock);
    EXPECT_FALSE(ProcessLock::Try(file)) << "it is the file of that name that is held";
  }
}

TEST(ProcessLock, AFileThatHasBecomeALinkToAnotherDeviceIsNotHeld) {
  const TemporaryDirectory directory;
  const auto file = directory.Path() / "lock";
  const Meanwhile another(directory.Path(), "flock", [&] {
    std::filesystem::remove(file);
    std::filesystem::create_symlink("/proc/self/status", file);
  });
  EXPECT_TRUE(FileErrorOf([&] { static_cast<void>(ProcessLock::Try(file)); })) << "links are not followed";
}

TEST(ProcessLock, RemovedTwiceItRemovesNothingOfTheNextHolder) {
  const TemporaryDirectory directory;
  const auto file = directory.Path() / "lock";
  auto first = ProcessLock::Try(file);
  ASSERT_TRUE(first);
  first->Remove();
  const auto next = ProcessLock::Try(file);
  ASSERT_TRUE(next);
  first->Remove();
  EXPECT_TRUE(std::filesystem::exists(file));
  EXPECT_FALSE(ProcessLock::Try(file));
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
