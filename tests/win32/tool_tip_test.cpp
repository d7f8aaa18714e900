#include <gtest/gtest.h>

#include "element/ctlPlexelBaseElement.h"
#include "services/dialogs.h"
#include "win32/desk.h"
#include "win32/grid_view.h"
#include "win32/shown_form.h"
#include "win32/wide_text.h"

namespace plexel {

TEST(ToolTips, TellWhatTheModelHasAndTheWholeOfACellThatIsCut) {
  Desk desk;
  const auto element = desk.Element(RectLed);
  std::string text;
  for (int group = 0; group < 20; ++group) text += "[Ctrl Left+a\u2039\u203A]";
  element->PressKeyDefLayer3(text);
  desk.Until("the dialog opens", [&] { return desk.IsOpen(dialogs::frmConfigurationDialog); });
  desk.Then("a look", [&] {
    const Control& grid = *desk.TopForm().Find("msgScanCodes");
    const auto& view = static_cast<const GridView&>(*desk.Top().ViewOf(&grid));
    const auto over = [&](int row, int col) {
      const RECT cell = view.CellRect(row, col);
      POINT point = {cell.left + 5, cell.top + 5};
      ClientToScreen(view.Outer(), &point);
      SetCursorPos(point.x, point.y);
      return ToolTipOf(desk.Top().Window(), view.Outer());
    };
    EXPECT_FALSE(grid.ToolTipText().empty());
    EXPECT_EQ(over(1, 1), Wide(grid.ToolTipText()));
    EXPECT_EQ(over(3, 1), Wide(text));
  });
  desk.Then("close", [&] { desk.Close(); });
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
}

}  // namespace plexel
