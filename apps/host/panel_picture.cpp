#include "host/panel_picture.h"

#include <algorithm>
#include <array>

#include "win32/scale.h"
#include "win32/wide_text.h"

namespace plexel::host {

namespace {

/// A pen and a brush, or a font, as long as something draws with it.
class Tool {
 public:
  Tool(HDC device, HGDIOBJ tool) : device_(device), tool_(tool), before_(SelectObject(device, tool)) {}
  ~Tool() {
    SelectObject(device_, before_);
    DeleteObject(tool_);
  }
  Tool(const Tool&) = delete;
  Tool& operator=(const Tool&) = delete;

 private:
  HDC device_;
  HGDIOBJ tool_, before_;
};

struct Canvas {
  HDC device;
  int dpi;
};

COLORREF Darker(COLORREF colour, int percent) {
  const auto part = [percent](int value) { return static_cast<BYTE>(value * 100 / percent); };
  return RGB(part(GetRValue(colour)), part(GetGValue(colour)), part(GetBValue(colour)));
}

void DrawRounded(const Canvas& canvas, const PanelPart& part, const RECT& box) {
  const int corner = 2 * OnScreen(part.cornerRadius, canvas.dpi);
  if (corner > 0) {
    RoundRect(canvas.device, box.left, box.top, box.right, box.bottom, corner, corner);
  } else {
    Rectangle(canvas.device, box.left, box.top, box.right, box.bottom);
  }
}

void DrawRound(const Canvas& canvas, const PanelPart&, const RECT& box) {
  Ellipse(canvas.device, box.left, box.top, box.right, box.bottom);
}

/// The lock of a key switch, with the slot for its key.
void DrawKeySwitch(const Canvas& canvas, const PanelPart& part, const RECT& box) {
  constexpr int CoreShade = 115, SlotShade = 120;
  DrawRound(canvas, part, box);
  RECT core = box, slot = box;
  InflateRect(&core, -WidthOf(box) / 4, -HeightOf(box) / 4);
  InflateRect(&slot, -WidthOf(box) * 46 / 100, -HeightOf(box) / 3);
  {
    const Tool brush(canvas.device, CreateSolidBrush(Darker(ColourOf(part.fillColor), CoreShade)));
    DrawRound(canvas, part, core);
  }
  const Tool brush(canvas.device, CreateSolidBrush(Darker(ColourOf(part.lineColor), SlotShade)));
  Rectangle(canvas.device, slot.left, slot.top, slot.right, slot.bottom);
}

void DrawLed(const Canvas& canvas, const PanelPart& part, const RECT& box) {
  if (part.cornerRadius > 0 || part.box.width == part.box.height) {
    DrawRound(canvas, part, box);
  } else {
    Rectangle(canvas.device, box.left, box.top, box.right, box.bottom);
  }
}

void DrawNothing(const Canvas&, const PanelPart&, const RECT&) {}

struct Drawing {
  PanelPartKind kind;
  void (*draw)(const Canvas& canvas, const PanelPart& part, const RECT& box);
};
constexpr std::array drawings = {
    Drawing{PanelPartKind::Housing, DrawRounded},     Drawing{PanelPartKind::Screen, DrawRounded},
    Drawing{PanelPartKind::Key, DrawRounded},         Drawing{PanelPartKind::RoundKey, DrawRound},
    Drawing{PanelPartKind::KeySwitch, DrawKeySwitch}, Drawing{PanelPartKind::Led, DrawLed},
    Drawing{PanelPartKind::Legend, DrawNothing}};

HFONT FontOf(const PanelPart& part, int dpi) {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  LOGFONTW look = metrics.lfMessageFont;
  look.lfHeight = -std::max(1, OnScreen(part.legendSize, dpi));
  look.lfWidth = 0;
  look.lfQuality = CLEARTYPE_QUALITY;
  return CreateFontIndirectW(&look);
}

UINT SideOf(LegendAlignment alignment) {
  if (alignment == LegendAlignment::Left) return DT_LEFT;
  return alignment == LegendAlignment::Right ? DT_RIGHT : DT_CENTER;
}

/// In the middle of the part's height, however many lines it has.
void DrawLegend(const Canvas& canvas, const PanelPart& part, const RECT& box) {
  if (part.legend.empty()) return;
  const Tool font(canvas.device, FontOf(part, canvas.dpi));
  SetTextColor(canvas.device, ColourOf(part.legendColor));
  const std::wstring legend = Wide(part.legend);
  const UINT format = SideOf(part.legendAlignment) | DT_NOPREFIX | DT_NOCLIP;
  RECT needed = {0, 0, WidthOf(box), 0}, place = box;
  DrawTextW(canvas.device, legend.c_str(), -1, &needed, format | DT_CALCRECT);
  place.top += (HeightOf(box) - HeightOf(needed)) / 2;
  place.bottom = place.top + HeightOf(needed);
  DrawTextW(canvas.device, legend.c_str(), -1, &place, format);
}

void DrawPart(const Canvas& canvas, const PanelPart& part) {
  const RECT box = OnScreen(part.box, canvas.dpi);
  {
    const Tool pen(canvas.device, CreatePen(PS_SOLID, OnScreen(1, canvas.dpi), ColourOf(part.lineColor)));
    const Tool brush(canvas.device, CreateSolidBrush(ColourOf(part.fillColor)));
    for (const Drawing& one : drawings) {
      if (one.kind == part.kind) one.draw(canvas, part, box);
    }
  }
  DrawLegend(canvas, part, box);
}

}  // namespace

int OnScreen(int pixels, int dpi) { return MulDiv(pixels, dpi, Scale::DesignDpi); }

RECT OnScreen(const PanelBox& box, int dpi) {
  return {OnScreen(box.left, dpi), OnScreen(box.top, dpi), OnScreen(box.left + box.width, dpi),
          OnScreen(box.top + box.height, dpi)};
}

PanelPicture::PanelPicture(const Panel& panel, int dpi)
    : size_{OnScreen(panel.width, dpi), OnScreen(panel.height, dpi)} {
  const HDC screen = GetDC(nullptr);
  memory_ = CreateCompatibleDC(screen);
  bits_ = CreateCompatibleBitmap(screen, size_.cx, size_.cy);
  ReleaseDC(nullptr, screen);
  before_ = SelectObject(memory_, bits_);
  SetBkMode(memory_, TRANSPARENT);
  const RECT whole = {0, 0, size_.cx, size_.cy};
  FillRect(memory_, &whole, GetSysColorBrush(COLOR_APPWORKSPACE));
  for (const PanelPart& part : panel.parts) DrawPart({memory_, dpi}, part);
}

PanelPicture::~PanelPicture() {
  SelectObject(memory_, before_);
  DeleteObject(bits_);
  DeleteDC(memory_);
}

void PanelPicture::DrawOn(HDC device) const { BitBlt(device, 0, 0, size_.cx, size_.cy, memory_, 0, 0, SRCCOPY); }

}  // namespace plexel::host
