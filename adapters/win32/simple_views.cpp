#include "win32/simple_views.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdlib>

#include "forms/caption.h"
#include "win32/captions.h"
#include "win32/pictures.h"
#include "win32/wide_text.h"

namespace plexel {

namespace {

/// A frame up to this height in twips is drawn as a rule.
constexpr float RuleHeight = 90;

DWORD StyleOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::Centre:
      return SS_CENTER;
    case TextAlignment::Right:
      return SS_RIGHT;
    case TextAlignment::Left:
      break;
  }
  return SS_LEFT;
}

int BrightnessOf(COLORREF colour) {
  constexpr int Red = 30, Green = 59, Blue = 11, All = 100;
  return (Red * GetRValue(colour) + Green * GetGValue(colour) + Blue * GetBValue(colour)) / All;
}

/// The colour, or that of other texts where it would fade into the ground.
COLORREF ReadableOn(COLORREF ground, COLORREF colour) {
  constexpr int Least = 80;
  return std::abs(BrightnessOf(ground) - BrightnessOf(colour)) < Least ? GetSysColor(COLOR_BTNTEXT) : colour;
}

const wchar_t* ClassOf(const Frame& frame) {
  return frame.Border() && frame.Height() <= RuleHeight ? WC_STATICW : PaneClass;
}

}  // namespace

ButtonView::ButtonView(CommandButton& model, HWND parent, ViewFrame& frame) : ControlView(model, frame), model_(model) {
  Make(parent, WC_BUTTONW, BS_PUSHBUTTON | (model.Picture().empty() ? 0U : DWORD{BS_ICON}));
}

ButtonView::~ButtonView() {
  if (icon_ != nullptr) DestroyIcon(icon_);
}

void ButtonView::Notified(UINT code) {
  if (code == BN_CLICKED) Host().Carry(model_, [this](Hand& hand) { hand.Click(model_); });
}

void ButtonView::Rescaled() {
  ControlView::Rescaled();
  picture_.clear();
}

void ButtonView::SyncMore() {
  ShowText(WithLetter(model_.Caption()));
  // The mark stands on the button that Return presses: a button with the focus takes it from the default one.
  const Control* const focus = model_.Owner().Focus();
  const bool elsewhere = focus != nullptr && focus != &model_ && focus->Kind() == ControlKind::CommandButton;
  const bool marked = model_.Default() && !elsewhere;
  if (marked_ != marked) {
    marked_ = marked;
    const auto picture = static_cast<WPARAM>(GetWindowLongW(Outer(), GWL_STYLE) & BS_ICON);
    SendMessageW(Outer(), BM_SETSTYLE, picture | (marked ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON), TRUE);
  }
  if (picture_ != model_.Picture()) ShowPicture();
}

void ButtonView::ShowPicture() {
  constexpr int Margin = 8;
  picture_ = model_.Picture();
  const RECT place = Host().Measure().PixelRect(model_);
  const int side = std::min(WidthOf(place), HeightOf(place)) - Host().Measure().Of(Margin);
  const HICON icon = PictureIcon(picture_, side);
  SendMessageW(Outer(), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
  if (icon_ != nullptr) DestroyIcon(icon_);
  icon_ = icon;
}

OptionView::OptionView(OptionButton& model, HWND parent, ViewFrame& frame) : ControlView(model, frame), model_(model) {
  Make(parent, WC_BUTTONW, BS_RADIOBUTTON);
}

void OptionView::Notified(UINT code) {
  if (code == BN_CLICKED) Host().Carry(model_, [this](Hand& hand) { hand.Click(model_); });
}

void OptionView::SyncMore() {
  ShowText(WithLetter(model_.Caption()));
  const WPARAM wanted = model_.Value() ? BST_CHECKED : BST_UNCHECKED;
  if (static_cast<WPARAM>(SendMessageW(Outer(), BM_GETCHECK, 0, 0)) != wanted) {
    SendMessageW(Outer(), BM_SETCHECK, wanted, 0);
  }
}

LabelView::LabelView(Label& model, HWND parent, ViewFrame& frame) : ControlView(model, frame), model_(model) {
  Make(parent, WC_STATICW, SS_NOTIFY | StyleOf(model.Alignment()));
  UseFont(Outer());
}

FontLook LabelView::Look() const {
  constexpr float TitlePoints = 10.5F;
  switch (static_cast<const Label&>(Model()).Look()) {
    case LabelLook::Title:
      return {.bold = true, .points = TitlePoints};
    case LabelLook::Link:
      return {.underlined = true};
    case LabelLook::Plain:
      break;
  }
  return {};
}

HBRUSH LabelView::Colours(HDC context) {
  if (model_.Look() != LabelLook::Link || !model_.Enabled()) return nullptr;
  const COLORREF ground = Host().GroundOf(model_);
  SetTextColor(context, ReadableOn(ground, GetSysColor(COLOR_HOTLIGHT)));
  SetBkColor(context, ground);
  return Host().Tools().Brush(ground);
}

std::optional<LRESULT> LabelView::Ahead(HWND, UINT message, WPARAM, LPARAM) {
  if (message != WM_SETCURSOR || model_.Look() != LabelLook::Link) return std::nullopt;
  SetCursor(LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_HAND)));
  return TRUE;
}

void LabelView::SyncMore() {
  const bool leads = model_.Look() == LabelLook::Link || model_.Names() != nullptr;
  ShowText(leads ? WithLetter(model_.Caption()) : WithoutLetter(model_.Caption()));
}

PictureView::PictureView(PictureBox& model, HWND parent, ViewFrame& frame) : ControlView(model, frame), model_(model) {
  Make(parent, PaneClass, 0);
}

std::optional<LRESULT> PictureView::Ahead(HWND, UINT message, WPARAM, LPARAM) {
  if (message != WM_PAINT) return std::nullopt;
  Paint();
  return 0;
}

void PictureView::Paint() const {
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(Outer(), &paint);
  RECT area;
  GetClientRect(Outer(), &area);
  if (!model_.Stretch()) area = FittingRect(model_.Picture(), area);
  DrawPicture(context, model_.Picture(), area);
  EndPaint(Outer(), &paint);
}

void PictureView::SyncMore() {
  const std::string wanted = model_.Picture() + (model_.Stretch() ? "|" : "");
  if (shown_ == wanted) return;
  shown_ = wanted;
  InvalidateRect(Outer(), nullptr, TRUE);
}

FrameView::FrameView(Frame& model, HWND parent, ViewFrame& frame) : ControlView(model, frame), model_(model) {
  const bool rule = ClassOf(model) != PaneClass;
  Make(parent, ClassOf(model), rule ? SS_ETCHEDHORZ : 0U, rule ? 0 : WS_EX_CONTROLPARENT);
  if (model.Border() && !rule) {
    box_ = Make(Outer(), WC_BUTTONW, BS_GROUPBOX | WS_VISIBLE);
  }
}

void FrameView::Rescaled() {
  ControlView::Rescaled();
  if (box_ != nullptr) UseFont(box_);
}

void FrameView::PlaceAt(const RECT& place) {
  ControlView::PlaceAt(place);
  if (box_ != nullptr) {
    SetWindowPos(box_, HWND_BOTTOM, 0, 0, WidthOf(place), HeightOf(place), SWP_NOACTIVATE | SWP_NOOWNERZORDER);
  }
}

void FrameView::SyncMore() {
  const std::wstring title = WithLetter(model_.Caption());
  if (box_ == nullptr || title_ == title) return;
  title_ = title;
  SetWindowTextW(box_, title_.c_str());
}

StatusView::StatusView(StatusBar& model, HWND parent, ViewFrame& frame) : ControlView(model, frame), model_(model) {
  Make(parent, STATUSCLASSNAMEW, CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER);
}

void StatusView::SyncMore() { ShowText(Wide(model_.SimpleText())); }

}  // namespace plexel
