#include "host/code_record.h"

#include <gtest/gtest.h>

namespace plexel::host {

TEST(CodeRecord, CodesOfEveryBufferComeBack) {
  std::vector<SavedCodes> codes;
  for (std::int32_t buffer = 0; buffer < 8; ++buffer) {
    SavedCodes saved{buffer, InitialCodes()};
    saved.codes.Value[0] = static_cast<std::uint8_t>(buffer + 1);
    saved.codes.Value[88] = 0xFE;
    saved.codes.NextValue = 80 + buffer;
    codes.push_back(saved);
  }
  CodeRecord record;
  record.Codes(codes);
  EXPECT_EQ(record.Get().strLayer2ReleaseScanCode.Value[0], 4);
  EXPECT_EQ(record.Codes(), codes);
}

TEST(CodeRecord, ABufferThatIsNotSavedHasItsInitialState) {
  CodeRecord record;
  record.Codes({});
  EXPECT_EQ(record.Get().strLayer1PressScanCode.Value[44], 0xFF);
  EXPECT_EQ(record.Get().strLayer1PressScanCode.Value[45], 0);
  EXPECT_TRUE(record.Codes().empty());
}

}  // namespace plexel::host
