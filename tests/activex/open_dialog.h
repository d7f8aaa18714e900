#pragma once

#include <ole2.h>
#include <windows.h>

#include <functional>
#include <string>

namespace plexel::activex {

/// The dialogs of the control, as whoever looks at the screen finds them.

/// Does something from within the message loop of whatever is open, once.
void Soon(std::function<void()> act);

/// The dialog over a window; null for none.
HWND DialogOver(HWND owner);
std::wstring TitleOf(HWND window);
/// A window within a dialog by its kind and its text, at any depth; without a text the first of the kind. Null for
/// none.
HWND PartOf(HWND dialog, const wchar_t* kind, const wchar_t* text = nullptr);
/// The entries of a drop-down list.
int EntriesOf(HWND list);

/// What the user does.
void CloseBox(HWND dialog);
void Press(HWND button);
/// Starts recording into the first cell of the grid, or ends that.
void DoubleClickFirstCell(HWND dialog);

}  // namespace plexel::activex
