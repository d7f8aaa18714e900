#pragma once

#include <PlexelBaseElement.h>

#include <vector>

#include "files/project_file.h"

namespace plexel::host {

/// The record of a control, whose texts are freed at the end.
class CodeRecord {
 public:
  CodeRecord() = default;
  ~CodeRecord();
  CodeRecord(const CodeRecord&) = delete;
  CodeRecord& operator=(const CodeRecord&) = delete;

  ::udtTactisBaseElement_ScanCodeInfo& Get() { return record_; }
  const ::udtTactisBaseElement_ScanCodeInfo& Get() const { return record_; }

  /// Its code buffers that are not in their initial state, as a project keeps them.
  std::vector<SavedCodes> Codes() const;
  /// Gives it the codes that a project keeps; the other buffers get their initial state.
  void Codes(const std::vector<SavedCodes>& codes);

 private:
  ::udtTactisBaseElement_ScanCodeInfo record_{};
};

}  // namespace plexel::host
