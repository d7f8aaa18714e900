#include "host/event_list.h"

#include <stdexcept>

#include "win32/wide_text.h"

namespace plexel::host {

namespace {

constexpr LRESULT MostLines = 1000;

int WidthOfLine(HWND list, const std::wstring& line) {
  const HDC device = GetDC(list);
  const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(list, WM_GETFONT, 0, 0));
  const HGDIOBJ before = SelectObject(device, font == nullptr ? GetStockObject(SYSTEM_FONT) : font);
  SIZE size{};
  GetTextExtentPoint32W(device, line.c_str(), static_cast<int>(line.size()), &size);
  SelectObject(device, before);
  ReleaseDC(list, device);
  return size.cx;
}

}  // namespace

EventList::EventList(HWND parent)
    : list_(CreateWindowExW(
          WS_EX_CLIENTEDGE, L"LISTBOX", L"",
          WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS, 0, 0, 0,
          0, parent, nullptr, GetModuleHandleW(nullptr), nullptr)) {
  if (list_ == nullptr) throw std::runtime_error("the system has no list");
}

void EventList::Add(const std::string& line) {
  constexpr int Margin = 12;
  const std::wstring wide = WithVisibleControls(Wide(line));
  while (SendMessageW(list_, LB_GETCOUNT, 0, 0) >= MostLines) SendMessageW(list_, LB_DELETESTRING, 0, 0);
  const LRESULT place = SendMessageW(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide.c_str()));
  SendMessageW(list_, LB_SETTOPINDEX, static_cast<WPARAM>(place), 0);
  const int width = WidthOfLine(list_, wide) + Margin;
  if (width <= widest_) return;
  widest_ = width;
  SendMessageW(list_, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest_), 0);
}

}  // namespace plexel::host
