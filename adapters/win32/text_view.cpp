#include "win32/text_view.h"

#include <commctrl.h>

#include "win32/wide_text.h"

namespace plexel {

namespace {

constexpr std::int32_t White = 0xFFFFFF;

DWORD StyleOf(const TextBox& box) {
  DWORD style = box.MultiLine() ? ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL : ES_AUTOHSCROLL;
  if (box.Alignment() == TextAlignment::Centre) style |= ES_CENTER;
  if (box.Alignment() == TextAlignment::Right) style |= ES_RIGHT;
  return style;
}

/// Every line ends as the window has it.
std::wstring WithLineEnds(const std::wstring& text) {
  std::wstring lines;
  for (std::size_t place = 0; place < text.size(); ++place) {
    if (text[place] == L'\n' && (place == 0 || text[place - 1] != L'\r')) lines += L'\r';
    lines += text[place];
  }
  return lines;
}

bool HasBareLineEnds(const std::string& text) {
  return text.find('\n') != std::string::npos && text.find("\r\n") == std::string::npos;
}

std::string WithBareLineEnds(std::string text) {
  std::erase(text, '\r');
  return text;
}

}  // namespace

std::wstring TextOfWindow(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

TextView::TextView(TextBox& model, HWND parent, ViewFrame& frame)
    : ControlView(model, frame), model_(model), paper_(model.BackColor()), ink_(model.ForeColor()) {
  Make(parent, WC_EDITW, StyleOf(model), WS_EX_CLIENTEDGE);
  UseFont(Outer());
  SendMessageW(Outer(), EM_SETLIMITTEXT, 0, 0);
}

FontLook TextView::Look() const { return {.points = static_cast<const TextBox&>(Model()).FontSize()}; }

std::wstring TextView::Shown() const {
  const std::wstring text = Wide(model_.Text());
  if (model_.MultiLine()) return WithLineEnds(text);
  return model_.Locked() ? WithVisibleControls(text) : text;
}

int TextView::Caret() const {
  DWORD start = 0, end = 0;
  SendMessageW(Outer(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return static_cast<int>(end);
}

void TextView::HandOver() {
  if (Host().Syncing() || model_.Locked()) return;
  const std::wstring shown = TextOfWindow(Outer());
  const int caret = Caret();
  const bool bare = HasBareLineEnds(model_.Text());
  std::string text = Narrow(shown);
  std::string ahead = Narrow(std::wstring_view(shown).substr(0, static_cast<std::size_t>(caret)));
  if (bare) {
    text = WithBareLineEnds(std::move(text));
    ahead = WithBareLineEnds(std::move(ahead));
  }
  const std::wstring aheadUnits = Wide(ahead);
  const int place = CharactersAhead(aheadUnits, static_cast<int>(aheadUnits.size()));
  if (shown == Shown() && place == model_.SelStart()) return;
  Host().Carry(model_, [&](Hand& hand) { hand.Edit(model_, text, place); });
}

void TextView::Notified(UINT code) {
  if (code == EN_CHANGE) HandOver();
}

void TextView::Behind(UINT message) {
  if (message == WM_KEYDOWN || message == WM_LBUTTONUP || message == WM_CHAR) HandOver();
}

std::optional<LRESULT> TextView::Ahead(HWND, UINT message, WPARAM wParam, LPARAM) {
  // Of these the window makes nothing but a sound.
  const bool idle =
      message == WM_CHAR && (wParam == VK_ESCAPE || wParam == VK_TAB || (wParam == VK_RETURN && !model_.MultiLine()) ||
                             (model_.Locked() && wParam != 3));
  return idle ? std::optional<LRESULT>(0) : std::nullopt;
}

HBRUSH TextView::Colours(HDC context) {
  const bool plain = model_.Enabled() || model_.BackColor() != White;
  const COLORREF paper = plain ? ColourOf(model_.BackColor()) : GetSysColor(COLOR_BTNFACE);
  SetBkColor(context, paper);
  SetTextColor(context, model_.Enabled() ? ColourOf(model_.ForeColor()) : GetSysColor(COLOR_GRAYTEXT));
  return Host().Tools().Brush(paper);
}

void TextView::SyncMore() {
  const bool readOnly = (GetWindowLongW(Outer(), GWL_STYLE) & ES_READONLY) != 0;
  if (readOnly != model_.Locked()) SendMessageW(Outer(), EM_SETREADONLY, model_.Locked() ? TRUE : FALSE, 0);
  if (paper_ != model_.BackColor() || ink_ != model_.ForeColor()) {
    paper_ = model_.BackColor();
    ink_ = model_.ForeColor();
    InvalidateRect(Outer(), nullptr, TRUE);
  }
  const std::wstring text = Shown();
  const bool changed = TextOfWindow(Outer()) != text;
  if (changed) SetWindowTextW(Outer(), text.c_str());
  if (model_.Locked()) return;
  const std::string_view all = model_.Text();
  std::wstring units = Wide(all);
  units.resize(static_cast<std::size_t>(UnitsAhead(units, model_.SelStart())));
  const auto caret = static_cast<WPARAM>(model_.MultiLine() ? WithLineEnds(units).size() : units.size());
  if (changed || static_cast<WPARAM>(Caret()) != caret)
    SendMessageW(Outer(), EM_SETSEL, caret, static_cast<LPARAM>(caret));
}

}  // namespace plexel
