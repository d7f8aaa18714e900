#include "host/code_record.h"

#include <algorithm>
#include <array>

namespace plexel::host {

namespace {

using Record = ::udtTactisBaseElement_ScanCodeInfo;
using Kept = plexel::udtTactisBaseElement_ScanCodeInfo;

/// The same buffer in the control's record and in a project's.
struct Buffer {
  ::udtTactisBaseElement_TACTIS_SCANCODE Record::* record;
  plexel::udtTactisBaseElement_TACTIS_SCANCODE Kept::* kept;
};
constexpr std::array buffers = {Buffer{&Record::strLayer1PressScanCode, &Kept::strLayer1PressScanCode},
                                Buffer{&Record::strLayer1ReleaseScanCode, &Kept::strLayer1ReleaseScanCode},
                                Buffer{&Record::strLayer2PressScanCode, &Kept::strLayer2PressScanCode},
                                Buffer{&Record::strLayer2ReleaseScanCode, &Kept::strLayer2ReleaseScanCode},
                                Buffer{&Record::strLayer3PressScanCode, &Kept::strLayer3PressScanCode},
                                Buffer{&Record::strLayer3ReleaseScanCode, &Kept::strLayer3ReleaseScanCode},
                                Buffer{&Record::strLayer4PressScanCode, &Kept::strLayer4PressScanCode},
                                Buffer{&Record::strLayer4ReleaseScanCode, &Kept::strLayer4ReleaseScanCode}};

constexpr std::array texts = {
    &Record::strLayer1PressString,   &Record::strLayer2PressString,   &Record::strLayer3PressString,
    &Record::strLayer4PressString,   &Record::strLayer1ReleaseString, &Record::strLayer2ReleaseString,
    &Record::strLayer3ReleaseString, &Record::strLayer4ReleaseString, &Record::strBaseElementNotes};

}  // namespace

CodeRecord::~CodeRecord() {
  for (const auto text : texts) SysFreeString(record_.*text);
}

std::vector<SavedCodes> CodeRecord::Codes() const {
  Kept kept;
  for (const Buffer& buffer : buffers) {
    const auto& from = record_.*buffer.record;
    auto& onto = kept.*buffer.kept;
    std::copy(std::begin(from.Value), std::end(from.Value), onto.Value.begin());
    onto.NextValue = from.NextValue;
  }
  return CodesOf(kept);
}

void CodeRecord::Codes(const std::vector<SavedCodes>& codes) {
  Kept kept;
  PutCodes(codes, kept);
  for (const Buffer& buffer : buffers) {
    const auto& from = kept.*buffer.kept;
    auto& onto = record_.*buffer.record;
    std::copy(from.Value.begin(), from.Value.end(), std::begin(onto.Value));
    onto.NextValue = from.NextValue;
  }
}

}  // namespace plexel::host
