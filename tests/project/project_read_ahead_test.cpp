#include "project/project_read_ahead.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <fstream>
#include <string>
#include <system_error>
#include <vector>

#include "files/file_error.h"

namespace plexel {
namespace {

constexpr std::size_t Portion = ProjectReadAhead::PortionSize;

Project Made(std::size_t count) {
  Project project{"panel", {}, "text\n"};
  for (std::size_t number = 0; number < count; ++number) {
    ProjectElement element;
    element.place = "F" + std::to_string(number);
    element.bag.Store("ButtonNotes", "note " + std::to_string(number));
    if (number % 3 == 0) {
      SavedCodes codes;
      codes.buffer = static_cast<std::int32_t>(number % 8);
      codes.codes.Value[0] = static_cast<std::uint8_t>(number % 200);
      element.codes.push_back(codes);
    }
    project.elements.push_back(element);
  }
  return project;
}

std::thread NoThread(const std::function<void()>&) {
  throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
}

/// All elements, and the words that ended the reading.
struct Outcome {
  std::vector<ProjectElement> elements;
  std::string failure;
};

Outcome ReadAll(ProjectReadAhead& reader) {
  Outcome outcome;
  try {
    while (const ProjectElement* const element = reader.Next()) outcome.elements.push_back(*element);
  } catch (const FileError& failure) {
    outcome.failure = failure.what();
  }
  return outcome;
}

class ReadAhead : public ::testing::TestWithParam<std::size_t> {
 protected:
  Project project = Made(GetParam());
  std::string text = FormatProject(project);
};

TEST_P(ReadAhead, GivesWhatTheFileHoldsInItsOrder) {
  const TextFile file("a.plexel", text);
  ProjectReadAhead reader(file);
  EXPECT_EQ(reader.Panel(), "panel");
  EXPECT_EQ(reader.PanelText(), "text\n");
  EXPECT_EQ(reader.Count(), GetParam());
  const Outcome outcome = ReadAll(reader);
  EXPECT_EQ(outcome.failure, "");
  EXPECT_EQ(outcome.elements, project.elements);
  EXPECT_EQ(reader.Next(), nullptr);
}

TEST_P(ReadAhead, GivesTheSameWithoutAThread) {
  const TextFile file("a.plexel", text);
  ProjectReadAhead reader(file, NoThread);
  EXPECT_EQ(ReadAll(reader).elements, project.elements);
  EXPECT_EQ(reader.Next(), nullptr);
}

TEST_P(ReadAhead, TellsOfAFaultBehindTheElementsAboveIt) {
  const std::size_t faulty = GetParam() / 2;
  const std::string note = "note " + std::to_string(faulty) + "\n";
  const std::size_t at = text.find(note);
  ASSERT_NE(at, std::string::npos);
  text.insert(at + note.size(), "what is this\n");
  const TextFile file("a.plexel", text);
  std::string failure;
  try {
    ParseProject(file);
  } catch (const FileError& thrown) {
    failure = thrown.what();
  }
  ASSERT_NE(failure, "");
  ProjectReadAhead reader(file);
  const Outcome outcome = ReadAll(reader);
  EXPECT_EQ(outcome.failure, failure);
  EXPECT_EQ(outcome.elements.size(), faulty);
  EXPECT_THROW(reader.Next(), FileError);
}

TEST_P(ReadAhead, CanBeLeftAnywhere) {
  const TextFile file("a.plexel", text);
  for (const std::size_t taken : {std::size_t{0}, std::size_t{1}, Portion, Portion + 1, 5 * Portion}) {
    ProjectReadAhead reader(file);
    for (std::size_t number = 0; number < std::min(taken, GetParam()); ++number) ASSERT_NE(reader.Next(), nullptr);
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, ReadAhead,
                         ::testing::Values(1, Portion - 1, Portion, Portion + 1, 2 * Portion, 4 * Portion + 3,
                                           20 * Portion));

TEST(ReadAheadThread, IsStartedForMoreThanAPortionOnly) {
  for (const std::size_t count : {Portion, Portion + 1}) {
    const TextFile file("a.plexel", FormatProject(Made(count)));
    int started = 0;
    ProjectReadAhead reader(file, [&started](std::function<void()> run) {
      ++started;
      return std::thread(std::move(run));
    });
    EXPECT_EQ(ReadAll(reader).elements.size(), count);
    EXPECT_EQ(started, count > Portion ? 1 : 0);
  }
}

/// A thread that tells when it waits.
class WatchedThread {
 public:
  ProjectReadAhead::Start Start() {
    return [this](std::function<void()> run) {
      return std::thread([this, run = std::move(run)] {
        id_ = ::gettid();
        run();
      });
    };
  }
  void UntilItWaitsOrHasEnded() const {
    while (id_ == 0 || !WaitsOrHasEnded()) std::this_thread::yield();
  }

 private:
  bool WaitsOrHasEnded() const {
    std::ifstream file("/proc/self/task/" + std::to_string(id_) + "/stat");
    std::string number, name, state;
    file >> number >> name >> state;
    return !file || state == "S";
  }
  std::atomic<pid_t> id_ = 0;
};

TEST(ReadAheadThread, ThatWaitsForRoomEndsWithItsReader) {
  const TextFile file("a.plexel", FormatProject(Made(20 * Portion)));
  WatchedThread thread;
  const ProjectReadAhead reader(file, thread.Start());
  thread.UntilItWaitsOrHasEnded();
}

TEST(ReadAheadThread, GoesOnWhenThereIsRoomAgain) {
  const Project project = Made(20 * Portion);
  const TextFile file("a.plexel", FormatProject(project));
  WatchedThread thread;
  ProjectReadAhead reader(file, thread.Start());
  constexpr std::size_t taken = 2 * Portion + 1;
  for (std::size_t number = 0; number < taken; ++number) ASSERT_NE(reader.Next(), nullptr);
  thread.UntilItWaitsOrHasEnded();
  const std::vector<ProjectElement> left = ReadAll(reader).elements;
  EXPECT_EQ(left, std::vector<ProjectElement>(project.elements.begin() + taken, project.elements.end()));
}

TEST(ReadAheadThread, AnEmptyProjectHasNone) {
  const TextFile file("a.plexel", FormatProject(Made(0)));
  ProjectReadAhead reader(file);
  EXPECT_EQ(reader.Next(), nullptr);
}

TEST(ReadAheadThread, AFaultyHeaderIsRefusedAtOnce) {
  const TextFile file("a.plexel", "[PROJECT]\nFormat=99\n");
  EXPECT_THROW(ProjectReadAhead{file}, FileError);
}

}  // namespace
}  // namespace plexel
