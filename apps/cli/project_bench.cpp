#include "cli/project_bench.h"

#include "cli/named_files.h"
#include "files/data_directory.h"
#include "files/path_text.h"

namespace plexel {

namespace {

/// A directory that no installation has: whatever is read from it is at its default.
std::filesystem::path NoConfiguration() { return DataDirectory() / "unset"; }

}  // namespace

ProjectBench::ProjectBench() : surroundings_(DataDirectory(), NoConfiguration()) {}

std::unique_ptr<PanelDocument> ProjectBench::Open(const std::string& file, std::istream& standardInput) {
  if (file != StandardStream) return PanelDocument::Open(PathOf(file), Site());
  return PanelDocument::Of(ReadInputProject(file, standardInput), InputName(file), Site());
}

PanelDocument::Site ProjectBench::Site() { return {component_, host_, window_, DataDirectory() / "panels", true}; }

}  // namespace plexel
