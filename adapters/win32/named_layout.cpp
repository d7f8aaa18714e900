#include "keyboard/named_layout.h"

#include <optional>
#include <utility>

#include "files/data_directory.h"
#include "files/file_error.h"
#include "files/system_files.h"
#include "keyboard/layout_tables.h"
#include "platform/failure.h"

namespace plexel {

namespace {

constexpr std::size_t Limit = std::size_t{16} << 20U;

LayoutTable ReadLayout(const std::string& name) {
  std::string tables;
  try {
    tables = ReadWholeFile(DataDirectory() / "keyboard.layouts", Limit);
  } catch (const FileError& error) {
    throw Failure(FailureKind::Platform, std::string("no keyboard layout can be read: ") + error.what());
  }
  std::optional<LayoutTable> table = FindLayout(tables, name);
  if (!table) throw Failure(FailureKind::Platform, "unknown keyboard layout \"" + name + "\"");
  return *std::move(table);
}

}  // namespace

std::unique_ptr<TableLayout> NamedLayout(std::string name) {
  auto source = [name] { return ReadLayout(name); };
  return std::make_unique<TableLayout>(std::move(name), std::move(source));
}

}  // namespace plexel
