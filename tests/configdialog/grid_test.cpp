#include "configdialog/dialog_fixture.h"

namespace plexel {

namespace {

using ScanCodeGrid = ConfigurationDialog;

constexpr std::int32_t GridCheck = 1;
constexpr std::int32_t Red = 255;

// Shape and filling.

TEST_F(ScanCodeGrid, HeadersStandCentredInRowZero) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.msgScanCodes.Rows(), 5);
    EXPECT_EQ(dialog.msgScanCodes.Cols(), 3);
    for (int col = 0; col < 3; ++col) {
      EXPECT_EQ(dialog.msgScanCodes.CellAt(0, col).text, Text(2002 + col));
      EXPECT_TRUE(dialog.msgScanCodes.CellAt(0, col).centred);
    }
  });
}

TEST_F(ScanCodeGrid, LayersAreNumberedInColumnZero) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    for (int row = 1; row <= 4; ++row) EXPECT_EQ(dialog.msgScanCodes.CellAt(row, 0).text, std::to_string(row));
  });
}

TEST_F(ScanCodeGrid, ColumnWidthsAreThePositions2To4) {
  for (std::int32_t col = 0; col < 3; ++col) surroundings.Settings().Position(2 + col, std::to_string(700 + col));
  Open([](frmConfigurationDialog& dialog, Hand&) {
    for (int col = 0; col < 3; ++col) EXPECT_EQ(dialog.msgScanCodes.ColWidth(col), 700 + col);
  });
}

TEST_F(ScanCodeGrid, AWidthThatIsNoNumberEndsTheShapingAndLoadingGoesOn) {
  surroundings.Settings().Position(2, "700");
  surroundings.Settings().Position(3, "wide");
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.msgScanCodes.ColWidth(0), 700);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(0, 0).text, "");
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 1).text, "[a" + Both + "]");
    EXPECT_EQ(dialog.Caption(), Text(2005));
  });
}

TEST_F(ScanCodeGrid, EachCellShowsTheDefinitionOfItsLayerAndDirection) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    element->PressKeyDefLayer(layer, "press " + std::to_string(layer));
    element->ReleaseKeyDefLayer(layer, "release " + std::to_string(layer));
  }
  Open([](frmConfigurationDialog& dialog, Hand&) {
    for (int row = 1; row <= 4; ++row) {
      EXPECT_EQ(dialog.msgScanCodes.CellAt(row, 1).text, "press " + std::to_string(row));
      EXPECT_EQ(dialog.msgScanCodes.CellAt(row, 2).text, "release " + std::to_string(row));
    }
  });
}

TEST_F(ScanCodeGrid, UnbalancedRowIsMarkedAfterLoading) {
  surroundings.Settings().Option(GridCheck, True);
  element->PressKeyDefLayer2("[a" + Make + "]");
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.msgScanCodes.CellAt(1, 0).text, "1");
    EXPECT_EQ(dialog.msgScanCodes.CellAt(2, 0).text, "X");
    EXPECT_EQ(dialog.msgScanCodes.CellAt(2, 0).foreColor, Red);
  });
}

TEST_F(ScanCodeGrid, WithoutTheCheckColumnZeroKeepsTheNumbersWhateverTheCellsHold) {
  surroundings.Settings().Option(GridCheck, False);
  element->PressKeyDefLayer2("[a" + Make + "]");
  Open([](frmConfigurationDialog& dialog, Hand&) { EXPECT_EQ(dialog.msgScanCodes.CellAt(2, 0).text, "2"); });
}

TEST_F(ScanCodeGrid, AMakeMarkInThePressCellAndABreakMarkInTheReleaseCellBalanceTheRow) {
  surroundings.Settings().Option(GridCheck, True);
  element->PressKeyDefLayer3("[a" + Make + "]");
  element->ReleaseKeyDefLayer3("[a" + Break + "]");
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_EQ(dialog.msgScanCodes.CellAt(3, 0).text, "3");
    EXPECT_EQ(dialog.msgScanCodes.CellAt(3, 0).foreColor, 0);
  });
}

// Events.

TEST_F(ScanCodeGrid, ClickOutsideCaptureColoursNothing) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.Click(dialog.msgScanCodes, 2, 2);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(2, 2).backColor, White);
  });
}

TEST_F(ScanCodeGrid, ClickDuringCaptureMovesTheCaptureColour) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    hand.Click(dialog.msgScanCodes, 3, 2);
    EXPECT_TRUE(Capturing());
    for (int row = 1; row <= 4; ++row) {
      for (int col = 1; col <= 2; ++col) {
        EXPECT_EQ(dialog.msgScanCodes.CellAt(row, col).backColor, row == 3 && col == 2 ? CaptureColour : White);
      }
    }
  });
}

TEST_F(ScanCodeGrid, CaptureColourIsReadAtEachUse) {
  Open([this](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    surroundings.Settings().Parameter(3, "16711680");
    hand.Click(dialog.msgScanCodes, 2, 1);
    EXPECT_EQ(dialog.msgScanCodes.CellAt(2, 1).backColor, 16711680);
  });
}

TEST_F(ScanCodeGrid, RightButtonEndsCaptureAndOpensTheMenuAtTheMouse) {
  bool placedMenu = true;
  MenuItem* opened = nullptr;
  platform.Modal().onPopup = [&](Form&, MenuItem& menu, bool placed, float, float) {
    EXPECT_FALSE(Capturing());
    opened = &menu;
    placedMenu = placed;
  };
  Open([&](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 2, 1);
    hand.MouseDown(dialog.msgScanCodes, 2, 0, 10, 10);
    EXPECT_EQ(opened, &dialog.MNU_POPUP);
    EXPECT_EQ(dialog.OpenPopup(), &dialog.MNU_POPUP);
    EXPECT_EQ(dialog.msgScanCodes.Row(), 2);
    EXPECT_FALSE(Hooked());
    EXPECT_EQ(dialog.msgScanCodes.CellAt(2, 1).backColor, White);
  });
  EXPECT_FALSE(placedMenu);
}

TEST_F(ScanCodeGrid, OtherButtonsOpenNoMenuAndKeepCapture) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.DblClick(dialog.msgScanCodes, 1, 1);
    hand.MouseDown(dialog.msgScanCodes, 1, 0, 10, 10);
    hand.MouseDown(dialog.msgScanCodes, 4, 0, 10, 10);
    EXPECT_EQ(dialog.OpenPopup(), nullptr);
    EXPECT_TRUE(Capturing());
  });
}

TEST_F(ScanCodeGrid, RightButtonWithAHeaderCellCurrentOpensNoMenu) {
  Open([](frmConfigurationDialog& dialog, Hand&) {
    for (const auto& [row, col] : {std::pair{0, 1}, std::pair{1, 0}}) {
      dialog.msgScanCodes.Current(row, col);
      dialog.msgScanCodes_MouseDown(2, 0, 10, 10);
      EXPECT_EQ(dialog.OpenPopup(), nullptr);
    }
  });
}

TEST_F(ScanCodeGrid, ArrowKeysMoveTheCurrentCellWhileCaptureIsOff) {
  Open([](frmConfigurationDialog& dialog, Hand& hand) {
    hand.KeyDown(key::Down, 0);
    hand.KeyDown(key::Right, 0);
    EXPECT_EQ(dialog.msgScanCodes.Row(), 2);
    EXPECT_EQ(dialog.msgScanCodes.Col(), 2);
  });
}

// AnyScanCodeDefined.

TEST_F(ScanCodeGrid, NoScanCodeIsDefinedInAnEmptyGrid) {
  Open([](frmConfigurationDialog& dialog, Hand&) { EXPECT_FALSE(dialog.AnyScanCodeDefined()); });
}

TEST_F(ScanCodeGrid, NoScanCodeIsDefinedWhenLookingForOneFails) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([](frmConfigurationDialog& dialog, Hand&) {
    dialog.msgScanCodes.OnEnterCell = [] { throw Failure(FailureKind::Platform, "no cell"); };
    EXPECT_FALSE(dialog.AnyScanCodeDefined());
    dialog.msgScanCodes.OnEnterCell = nullptr;
  });
}

TEST_F(ScanCodeGrid, OneTextAnywhereIsADefinedScanCodeAndTheLastCellIsLeftCurrent) {
  element->PressKeyDefLayer1("[a" + Both + "]");
  Open([](frmConfigurationDialog& dialog, Hand&) {
    EXPECT_TRUE(dialog.AnyScanCodeDefined());
    EXPECT_EQ(dialog.msgScanCodes.Row(), 4);
    EXPECT_EQ(dialog.msgScanCodes.Col(), 2);
  });
}

}  // namespace

}  // namespace plexel
