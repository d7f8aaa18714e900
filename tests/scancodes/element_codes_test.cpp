#include "scancodes/element_codes.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/failure.h"
#include "scancodes/code_type.h"
#include "scancodes/scancode_session.h"

namespace plexel {
namespace {

using Info = udtTactisBaseElement_ScanCodeInfo;

/// Stores the key A.
std::int32_t StoreA(std::int32_t codeType, std::int32_t target) {
  return StoreScanCodes({Sequence({0x1C}), Sequence({0xF0, 0x1C})}, codeType, 0, target);
}

std::int32_t StoreMany(std::int32_t makeLength, std::int32_t codeType) {
  return StoreScanCodes({Filled(0x32, makeLength), {}}, codeType, 0, 0);
}

TEST(StoringCodes, TheCurrentCellOfTheGridSelectsTheBuffer) {
  for (int row = 1; row <= 4; ++row) {
    for (int col = 1; col <= 2; ++col) {
      ScanCodeSession session;
      session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
        dialog.msgScanCodes.Current(row, col);
        EXPECT_EQ(StoreA(MakeAndBreak, 0), 0);
        dialog.msgScanCodes.Current(1, 1);
      });
      Info expected = session.Record();
      Info empty = session.component.Create("Key2", session.host)->TactisBaseElementScanCodeBuffer();
      EXPECT_EQ(Used(*CellBuffer(expected, row, col)), "FF 1C F0 1C FF");
      *CellBuffer(expected, row, col) = *CellBuffer(empty, row, col);
      for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
        EXPECT_EQ(*PressBuffer(expected, layer), *PressBuffer(empty, layer));
        EXPECT_EQ(*ReleaseBuffer(expected, layer), *ReleaseBuffer(empty, layer));
      }
    }
  }
}

TEST(StoringCodes, CodeTypeThreeFollowsTheOptionOfTheDialog) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    dialog.optCodeType[2].Value(true);
    StoreA(FromDialog, 0);
  });
  EXPECT_EQ(Used(session.Record().strLayer1PressScanCode), "FF F0 1C FF");
}

TEST(StoringCodes, AnyOtherColumnStoresNothingAndReportsSuccess) {
  ScanCodeSession session;
  const Info before = session.Record();
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    dialog.msgScanCodes.Current(2, 0);
    EXPECT_EQ(StoreA(MakeAndBreak, 0), 0);
  });
  EXPECT_EQ(session.Record(), before);
}

TEST(StoringCodes, TheHeadingRowHasNoRoom) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    dialog.msgScanCodes.Current(0, 1);
    EXPECT_EQ(StoreA(MakeAndBreak, 0), 1);
  });
}

TEST(StoringCodes, AGroupThatReachesTheLimitIsRefusedAndChangesNothing) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    const Info before = session.Record();
    EXPECT_EQ(StoreMany(45, MakeOnly), 1);
    EXPECT_EQ(session.Record(), before);
    EXPECT_EQ(StoreMany(44, MakeOnly), 0);
    EXPECT_EQ(session.Record().strLayer1PressScanCode.NextValue, 45);
  });
}

TEST(StoringCodes, BothLengthsCountAgainstTheLimitWhateverTheCodeType) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    EXPECT_EQ(StoreScanCodes({Filled(0x32, 20), Filled(0x32, 25)}, MakeOnly, 0, 0), 1);
    EXPECT_EQ(StoreScanCodes({Filled(0x32, 20), Filled(0x32, 24)}, MakeOnly, 0, 0), 0);
  });
}

TEST(StoringCodes, LengthsWithoutASumFail) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    try {
      StoreScanCodes({Filled(0, most), Filled(0, most)}, MakeOnly, 0, 0);
      ADD_FAILURE() << "nothing failed";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
      EXPECT_STREQ(failure.what(), "the lengths have no sum");
    }
  });
}

TEST(StoringCodes, TheRecordIsAssignedBackAlsoAfterARefusal) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    session.host.Forget();
    StoreMany(45, MakeOnly);
    const std::size_t notices = session.host.Notices().size();
    EXPECT_GT(notices, 0U);
    session.host.Forget();
    StoreA(MakeOnly, 7);
    EXPECT_EQ(session.host.Notices().size(), notices);
  });
}

TEST(StoringCodes, AnotherTargetChangesNothing) {
  ScanCodeSession session;
  const Info before = session.Record();
  EXPECT_EQ(StoreA(MakeAndBreak, 1), 0);
  EXPECT_EQ(StoreA(MakeAndBreak, -1), 0);
  EXPECT_EQ(session.Record(), before);
}

TEST(StoringCodes, WithoutAnElementOrADialogItFails) {
  ScanCodeSession session;
  EXPECT_THROW(StoreA(MakeAndBreak, 0), Failure);
  EXPECT_THROW(StoreA(MakeAndBreak, 2), Failure);
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    Module().ctlCurrentElement = nullptr;
    EXPECT_THROW(StoreA(MakeAndBreak, 0), Failure);
  });
}

/// The press and release buffer of layers 1 and 4 after the wizard has stored the key A.
std::vector<std::string> StoredByWizard(int keyType) {
  ScanCodeSession session;
  session.InWizard([&](StandInWizardPage& page) {
    if (keyType >= 0) page.optKeyType[static_cast<std::size_t>(keyType)].Value(true);
    StoreA(MakeAndBreak, 2);
    EXPECT_EQ(StoreA(FromDialog, 2), 0);
  });
  const Info info = session.Record();
  return {Used(info.strLayer1PressScanCode), Used(info.strLayer1ReleaseScanCode), Used(info.strLayer4PressScanCode),
          Used(info.strLayer4ReleaseScanCode)};
}

TEST(StoringCodes, TheWizardStoresByKeyTypeInAllLayersAndKeepsOneGroup) {
  const std::vector<std::string> all = {"00 1C F0 1C FF", "00", "00 1C F0 1C FF", "00"};
  const std::vector<std::string> halves = {"00 1C FF", "00 F0 1C FF", "00 1C FF", "00 F0 1C FF"};
  EXPECT_EQ(StoredByWizard(0), all);
  EXPECT_EQ(StoredByWizard(1), halves);
  EXPECT_EQ(StoredByWizard(2), all);
  EXPECT_EQ(StoredByWizard(3), halves);
  EXPECT_EQ(StoredByWizard(-1), (std::vector<std::string>{"00", "00", "00", "00"}));
}

TEST(StoringCodes, TheWizardKeepsTextsAndKnowsNoLimit) {
  ScanCodeSession session;
  session.element->PressKeyDefLayer3("kept");
  session.InWizard([&](StandInWizardPage& page) {
    page.optKeyType[0].Value(true);
    EXPECT_EQ(StoreScanCodes({Filled(0x32, 44), Filled(0x32, 43)}, 0, 0, 2), 0);
  });
  EXPECT_EQ(session.Record().strLayer1PressScanCode.NextValue, 88);
  EXPECT_EQ(session.element->PressKeyDefLayer3(), "kept");
}

TEST(StoringCodes, ABufferThatOverflowsLeavesTheElementAsItWas) {
  ScanCodeSession session;
  const Info before = session.Record();
  session.InWizard([&](StandInWizardPage& page) {
    page.optKeyType[0].Value(true);
    EXPECT_THROW(StoreScanCodes({Filled(0x32, 44), Filled(0x32, 44)}, 0, 0, 2), Failure);
  });
  EXPECT_EQ(session.Record(), before);
}

TEST(DeletingCodes, FirstAndLastGroupOfTheCurrentCellAreTakenOut) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    dialog.msgScanCodes.Current(3, 2);
    StoreA(MakeOnly, 0);
    StoreMany(2, MakeOnly);
    StoreA(BreakOnly, 0);
    DeleteFirstCodeGroup();
    EXPECT_EQ(Used(session.Record().strLayer3ReleaseScanCode), "FF 32 32 FF F0 1C FF");
    DeleteLastCodeGroup();
    EXPECT_EQ(Used(session.Record().strLayer3ReleaseScanCode), "FF 32 32 FF");
    EXPECT_EQ(session.Record().strLayer3PressScanCode, InitialBuffer());
  });
}

TEST(DeletingCodes, OutsideTheDataCellsNothingIsAssigned) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    for (const int row : {0, 1}) {
      dialog.msgScanCodes.Current(row, row == 0 ? 1 : 0);
      session.host.Forget();
      DeleteFirstCodeGroup();
      DeleteLastCodeGroup();
      EXPECT_TRUE(session.host.Notices().empty());
    }
  });
}

TEST(DeletingCodes, AnEmptyCellIsAssignedBackUnchanged) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog&) {
    const Info before = session.Record();
    session.host.Forget();
    DeleteFirstCodeGroup();
    EXPECT_FALSE(session.host.Notices().empty());
    EXPECT_EQ(session.Record(), before);
  });
}

TEST(DeletingCodes, WithoutADialogItFails) {
  ScanCodeSession session;
  EXPECT_THROW(DeleteFirstCodeGroup(), Failure);
  EXPECT_THROW(DeleteLastCodeGroup(), Failure);
}

}  // namespace
}  // namespace plexel
