#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <random>

#include "files/file_error.h"
#include "files/system_files.h"
#include "files/temporary_directory.h"
#include "project/open_document.h"
#include "project/recovery.h"

namespace plexel {
namespace {

/// Programs that are killed in the middle of writing.
class Killed : public OpenDocument {
 protected:
  using Writing = std::function<void(const std::filesystem::path& file, std::string_view text)>;

  /// The project with notes of its own in every element.
  std::string ProjectText(const std::string& notes) {
    Project project = document->Content();
    for (ProjectElement& element : project.elements) element.bag.Store("ButtonNotes", notes);
    return FormatProject(project);
  }

  /// Lets a process write two texts in turn into a file, kills it after a while that is different each time, and tells
  /// how many of the files that it left were neither the one nor the other. Stops at `enough` of them.
  int TornFiles(int kills, int enough, const Writing& write) {
    const std::string head = FormatRecoveryHead({"/a.plexel", 1});
    const std::array<std::string, 2> texts = {head + ProjectText("old"), head + ProjectText(std::string(2000, 'n'))};
    const std::filesystem::path file = directory.Path() / "1-1.recovery";
    WriteWholeFile(file, texts[0]);
    std::mt19937 random(20'250);
    int torn = 0;
    for (int kill = 0; kill < kills && torn < enough; ++kill) {
      const pid_t process = ::fork();
      if (process == 0) {
        for (std::size_t turn = 0;; ++turn) write(file, texts[turn % 2]);
      }
      ::usleep(static_cast<useconds_t>(random() % 3000));
      ::kill(process, SIGKILL);
      ::waitpid(process, nullptr, 0);
      const std::string left = ReadWholeFile(file, ProjectLimit);
      if (left != texts[0] && left != texts[1]) ++torn;
    }
    return torn;
  }

  TemporaryDirectory directory;
};

TEST_F(Killed, AFileThatIsWrittenAsAWholeIsTheOldOrTheNewOneTwoThousandTimes) {
  EXPECT_EQ(TornFiles(2000, 1, [](const auto& file, std::string_view text) { WriteWholeFile(file, text); }), 0);
}

TEST_F(Killed, AFileThatIsWrittenInPlaceIsTorn) {
  EXPECT_GT(TornFiles(2000, 1,
                      [](const auto& file, std::string_view text) { std::ofstream(file, std::ios::binary) << text; }),
            0);
}

}  // namespace
}  // namespace plexel
