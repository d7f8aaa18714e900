#include <gmock/gmock.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "file_error_of.h"
#include "files/file_capabilities.h"
#include "files/file_registry.h"
#include "files/file_settings.h"
#include "files/help_topics.h"
#include "files/language_file.h"
#include "files/panel_file.h"
#include "files/project_file.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

/// A file of so many bytes, which takes no room on the disk.
std::filesystem::path Large(const TemporaryDirectory& directory, std::uintmax_t size) {
  const auto file = directory.Put("large", "");
  std::filesystem::resize_file(file, size);
  return file;
}

TEST(Limits, AreThoseThatAreToldOfEachKindOfSmallFile) {
  struct Kind {
    std::uintmax_t limit;
    std::function<void(const std::filesystem::path&)> read;
  };
  const Kind kinds[] = {
      {4'194'304, [](const auto& file) { ReadLanguageFile(file); }},
      {8'388'608, [](const auto& file) { ReadPanel(file); }},
      {8'388'608, [](const auto& file) { ReadPanelText(file); }},
      {4'194'304, [](const auto& file) { FileCapabilities::OfTable(file); }},
      {1'048'576, [](const auto& file) { throw FileRegistry(file, "key").Problem().value(); }},
      {1'048'576,
       [](const auto& file) {
         FileRegistry registry(file.parent_path() / "no registry", "key");
         throw FileSettings(file, file.parent_path(), registry).Problems().at(0);
       }},
  };
  for (const Kind& kind : kinds) {
    const TemporaryDirectory directory;
    const auto file = Large(directory, kind.limit + 1);
    const auto error = FileErrorOf([&] { kind.read(file); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Reason(), "cannot be read: it is larger than " + std::to_string(kind.limit) + " bytes");
  }
}

TEST(Limits, AProjectHas512Mebibytes) { EXPECT_EQ(ProjectLimit, std::size_t{536'870'912}); }

TEST(Limits, ATopicOfTheHelpHasAMebibyte) {
  const TemporaryDirectory directory;
  const auto topic = directory.Put("7.html", "<title>T</title>");
  std::filesystem::resize_file(topic, 1'048'576 + 1);
  EXPECT_FALSE(ReadHelpTopic(directory.Path().string(), 7));
  std::string text = "<title>T</title>";
  for (std::string line(1023, ' '); text.size() < 1'048'576;) text += line + '\n';
  text.resize(1'048'576);
  directory.Put("7.html", text);
  EXPECT_TRUE(ReadHelpTopic(directory.Path().string(), 7));
}

}  // namespace
}  // namespace plexel
