#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <fstream>
#include <memory>
#include <random>
#include <stdexcept>

#include "files/file_error.h"
#include "files/in_place.h"
#include "files/system_files.h"
#include "project/open_document.h"
#include "project/recovery.h"
#include "project/versions.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

/// Programs that are killed in the middle of writing. Each writes one project in two states by turns.
class Killed : public OpenDocument {
 protected:
  Killed() {
    for (std::size_t turn : {0U, 1U}) {
      PutState(turn);
      projects[turn] = document->Content();
      texts[turn] = FormatProject(projects[turn]);
    }
  }
  /// Gives the project one of its two states, which differ much in length.
  void PutState(std::size_t turn) {
    std::vector<std::size_t> places(document->Places().size());
    for (std::size_t place = 0; place < places.size(); ++place) places[place] = place;
    document->Change(StepKind::Notes, places, [&] {
      for (const PanelDocument::Place& place : document->Places()) {
        place.element->ButtonNotes(turn % 2 == 0 ? "old" : std::string(2000, 'n'));
      }
    });
  }
  bool IsState(const std::string& text) const { return text == texts[0] || text == texts[1]; }
  static void WriteInPlace(const std::filesystem::path& file, std::string_view text) {
    std::ofstream(file, std::ios::binary) << text;
  }

  /// What a program does by turns: it gets a state ready, and writes it.
  struct Writer {
    std::function<void(std::size_t turn)> prepare = [](std::size_t) {};
    std::function<void(std::size_t turn)> write;
  };
  /// Lets a process write by turns, kills it a while after it has begun, which is different each time, and tells
  /// whether what it left was ever not whole. The writer is made in the process.
  static bool IsEverTorn(const std::function<Writer()>& make, const std::function<bool()>& isWhole) {
    constexpr int kills = 2000;
    std::mt19937 random(20'250);
    for (int kill = 0; kill < kills; ++kill) {
      std::array<int, 2> begun{};
      if (::pipe(begun.data()) != 0) throw std::runtime_error("no pipe");
      const pid_t process = ::fork();
      if (process == 0) {
        const Writer writer = make();
        for (std::size_t turn = 0;; ++turn) {
          writer.prepare(turn);
          if (turn == 0 && ::write(begun[1], "", 1) != 1) ::_exit(1);
          writer.write(turn);
        }
      }
      ::close(begun[1]);
      char byte = 0;
      const bool hasBegun = ::read(begun[0], &byte, 1) == 1;
      ::close(begun[0]);
      ::usleep(static_cast<useconds_t>(random() % 3000));
      ::kill(process, SIGKILL);
      ::waitpid(process, nullptr, 0);
      if (!hasBegun) throw std::runtime_error("the process has not begun");
      if (!isWhole()) return true;
    }
    return false;
  }
  static bool IsEverTorn(const Writer& writer, const std::function<bool()>& isWhole) {
    return IsEverTorn([&writer] { return writer; }, isWhole);
  }

  bool ProjectIsWhole() const { return IsState(ReadWholeFile(file, ProjectLimit)); }
  /// Whether all lost work can be read and is one of the states. It goes, so that the next is looked at by itself.
  bool LostWorkIsWhole() {
    std::vector<std::string> damaged;
    bool whole = true;
    for (LostWork& work : FindLostWork(store, damaged)) {
      whole = whole && (work.content.project == projects[0] || work.content.project == projects[1]);
      foundLost = true;
      Forget(work);
    }
    return whole && damaged.empty();
  }
  /// Those behind the first were looked at before.
  bool VersionsAreWhole() const {
    std::vector<VersionStore::Version> latest = versions.List(file);
    latest.resize(std::min<std::size_t>(latest.size(), 3));
    return std::all_of(latest.begin(), latest.end(), [this](const VersionStore::Version& version) {
      return IsState(ReadWholeFile(version.file, ProjectLimit));
    });
  }

  TemporaryDirectory directory;
  const std::filesystem::path file = directory / "a.plexel", store = directory / "recovery";
  const VersionStore versions{directory / "versions"};
  std::array<Project, 2> projects;
  std::array<std::string, 2> texts;
  bool foundLost = false;
};

TEST_F(Killed, InSavingTheOldOrTheNewFileIsWholeTwoThousandTimes) {
  document->Save(file);
  const Writer writer{[&](std::size_t turn) { PutState(turn); }, [&](std::size_t) { document->Save(file); }};
  std::size_t most = 0;
  EXPECT_FALSE(IsEverTorn(writer, [&] {
    most = std::max(most, directory.CountFiles());
    return ProjectIsWhole();
  }));
  EXPECT_EQ(most, 2U) << "each process clears away what the one before has left";
  document->Save(file);
  EXPECT_EQ(directory.CountFiles(), 1U);
}

TEST_F(Killed, InSavingAFileOfTwoNamesTheOldOrTheNewContentIsWholeTwoThousandTimes) {
  const auto other = directory / "b.plexel";
  document->Save(file);
  std::filesystem::create_hard_link(file, other);
  bool isOneFile = true, foundHalf = false;
  const Writer writer{[&](std::size_t turn) { PutState(turn); }, [&](std::size_t) { document->Save(file); }};
  EXPECT_FALSE(IsEverTorn(writer, [&] {
    foundHalf = foundHalf || MayBeHalfWritten(Content(file));
    const bool whole = ProjectIsWhole();
    isOneFile = isOneFile && Content(other) == Content(file) && std::filesystem::hard_link_count(file) == 2;
    return whole && !MayBeHalfWritten(Content(file));
  }));
  EXPECT_TRUE(isOneFile);
  EXPECT_TRUE(foundHalf) << "none was killed in the middle";
  document->Save(file);
  EXPECT_EQ(directory.CountFiles(), 2U) << "what the killed ones have left beside it is gone";
}

TEST_F(Killed, AFileThatIsWrittenInPlaceIsTorn) {
  document->Save(file);
  Writer writer;
  writer.write = [&](std::size_t turn) { WriteInPlace(file, texts[turn % 2]); };
  EXPECT_TRUE(IsEverTorn(writer, [&] { return ProjectIsWhole(); }));
}

TEST_F(Killed, InKeepingUnsavedWorkTheRecoveryFileIsWholeTwoThousandTimes) {
  const auto make = [&] {
    const auto keeper = std::make_shared<RecoveryKeeper>(store, [] { return std::int64_t{1}; });
    document->Listen([keeper](std::span<const std::size_t> places) { keeper->Changed(places); });
    keeper->Watch(document.get());
    return Writer{[&](std::size_t turn) { PutState(turn); }, [keeper](std::size_t) { keeper->Flush(); }};
  };
  EXPECT_FALSE(IsEverTorn(make, [&] { return LostWorkIsWhole(); }));
  EXPECT_TRUE(foundLost);
  std::vector<std::string> damaged;
  EXPECT_TRUE(FindLostWork(store, damaged).empty());
  EXPECT_TRUE(std::filesystem::is_empty(store)) << "nothing is left beside the work";
}

TEST_F(Killed, ARecoveryFileThatIsWrittenInPlaceIsTorn) {
  std::filesystem::create_directory(store);
  Writer writer;
  writer.write = [&](std::size_t turn) {
    WriteInPlace(store / "1-1.recovery", FormatRecoveryHead({"/a.plexel", 1}) + texts[turn % 2]);
  };
  EXPECT_TRUE(IsEverTorn(writer, [&] { return LostWorkIsWhole(); }));
}

TEST_F(Killed, InKeepingAVersionEachVersionIsWholeTwoThousandTimes) {
  Writer writer;
  writer.write = [&](std::size_t turn) { versions.Keep(file, texts[turn % 2], 1); };
  EXPECT_FALSE(IsEverTorn(writer, [&] { return VersionsAreWhole(); }));
  EXPECT_FALSE(versions.List(file).empty());
}

TEST_F(Killed, AVersionThatIsWrittenInPlaceIsTorn) {
  versions.Keep(file, texts[0], 1);
  const std::filesystem::path version = versions.List(file).front().file;
  Writer writer;
  writer.write = [&](std::size_t turn) { WriteInPlace(version, texts[turn % 2]); };
  EXPECT_TRUE(IsEverTorn(writer, [&] { return VersionsAreWhole(); }));
}

}  // namespace
}  // namespace plexel
