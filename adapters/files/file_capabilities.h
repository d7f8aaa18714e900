#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "services/surroundings.h"

namespace plexel {

/// The capability tables of a directory: every file "*.cap" holds sections "[TARGET SYSTEM]" with lines "QUERY=ANSWER".
/// A query that a target does not name answers 0, and so does every query of an unknown or empty target.
class FileCapabilities : public CapabilityService {
 public:
  /// Knows no target.
  FileCapabilities() = default;
  /// FileError for a table that cannot be read or is damaged. A missing directory has no tables.
  explicit FileCapabilities(const std::filesystem::path& directory);

  /// Knows the targets of one table. FileError when it cannot be read or is damaged.
  static FileCapabilities OfTable(const std::filesystem::path& file);

  std::int32_t Ask(Capability query, std::string_view targetSystem) override;
  /// The names of the target systems, sorted.
  std::vector<std::string> Targets() const;

 private:
  using Answers = std::array<std::int32_t, CapabilityCount>;
  void ReadTable(const std::filesystem::path& file);

  std::map<std::string, Answers, std::less<>> targets_;
};

}  // namespace plexel
