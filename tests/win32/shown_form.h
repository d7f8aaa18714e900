#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "dialogs/told_form.h"

namespace plexel {

class FormView;

/// In what the windows of a form differ from its model, asked of the windows themselves; nothing when they show what it
/// says.
std::vector<std::string> DifferencesOf(FormView& view);

/// What the windows of a form show, in the words of all renderers.
dialogs::ToldForm ToldOfWindows(FormView& view);
/// Where Tab leads from the window that has the keys, until it comes back.
std::vector<std::string> FollowTab(FormView& view);

/// The place of a tab in its strip.
RECT PlaceOfTab(HWND strip, int page);

/// What the tool tip of a dialog tells of one of its windows, with the mouse where it is.
std::wstring ToolTipOf(HWND dialog, HWND window);

}  // namespace plexel
