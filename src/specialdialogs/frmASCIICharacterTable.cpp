#include "specialdialogs/frmASCIICharacterTable.h"

#include <array>
#include <cstdio>
#include <string>

#include "services/code_page.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// Red up to code 33, black up to 128, blue above; 0x00BBGGRR.
constexpr std::int32_t ColourOfCode(std::uint8_t code) {
  constexpr std::int32_t red = 255, black = 0, blue = 16711680;
  if (code <= 33) return red;
  return code <= 128 ? black : blue;
}

std::string StatusOfCode(int code) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "Code:0x%X (%dd)", static_cast<unsigned>(code), code);
  return text.data();
}

}  // namespace

void frmASCIICharacterTable::OnLoad() {
  EndQuietly([this] {
    FillGrid();
    FillCaptions();
  });
}

void frmASCIICharacterTable::FillCaptions() {
  Caption(GetText(2800));
  labASCIITableTitle.Caption(GetText(2801));
  cmdOK.Caption(GetText(100));
  cmdCancel.Caption(GetText(101));
  cmdHelp.Caption(GetText(103));
}

void frmASCIICharacterTable::FillGrid() {
  std::uint8_t code = 0;
  for (int row = 0; row < msgASCIICodes.Rows(); ++row) {
    for (int col = 0; col < msgASCIICodes.Cols(); ++col) {
      ++code;
      msgASCIICodes.Current(row, col);
      msgASCIICodes.CellForeColor(ColourOfCode(code));
      msgASCIICodes.ColWidth(col, ColumnWidth);
      msgASCIICodes.CellCentred(true);
      msgASCIICodes.Text(CharacterOf(code));
    }
  }
}

void frmASCIICharacterTable::ShowBigCharacter() {
  EndQuietly([this] {
    const Grid& grid = msgASCIICodes;
    TextBox& box = txtBigCharacter;
    box.Width(grid.CellWidth() * 2);
    box.Height(grid.CellHeight() * 2);
    box.Left(grid.Left() + grid.CellLeft() - box.Width() / 4);
    box.Top(grid.Top() + grid.CellTop() - box.Height() / 4);
    box.Text(grid.Text());
    box.ForeColor(grid.CellForeColor());
    box.Visible(true);
    const int code = grid.Row() * grid.Cols() + grid.Col() + 1;
    Module().intAsciiResult = static_cast<std::uint16_t>(code);
    stbStatus.SimpleText(StatusOfCode(code));
    msgASCIICodes.SetFocus();
  });
}

void frmASCIICharacterTable::HideBigCharacter() { txtBigCharacter.Visible(false); }

void frmASCIICharacterTable::cmdOK_Click() {
  EndQuietly([this] { Unload(); });
}

void frmASCIICharacterTable::cmdCancel_Click() {
  EndQuietly([this] {
    Module().intAsciiResult = NoChoice;
    Unload();
  });
}

void frmASCIICharacterTable::cmdHelp_Click() {
  EndQuietly([this] { ShowHelpTopic(reinterpret_cast<std::intptr_t>(static_cast<Window*>(this)), HelpTopic); });
}

void frmASCIICharacterTable::OnQueryUnload(UnloadMode mode) {
  if (mode == UnloadMode::CloseBox) Module().intAsciiResult = NoChoice;
}

}  // namespace plexel
