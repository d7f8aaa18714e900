#include "activex/surface_painter.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace plexel::activex {

namespace {

int Whole(double value) { return static_cast<int>(std::lround(value)); }

/// The canvas's way from twips to the device.
POINT PointOf(const Canvas& canvas, float x, float y) {
  return {Whole(canvas.origin.x + static_cast<double>(x) * canvas.across),
          Whole(canvas.origin.y + static_cast<double>(y) * canvas.down)};
}

/// A pen of a line, in force while this lives. The surface shows through what it goes round.
class Pen {
 public:
  Pen(const Canvas& canvas, std::int32_t colour, std::int16_t width)
      : device_(canvas.device),
        width_(std::max(1, Whole(width * canvas.line))),
        pen_(Made(static_cast<COLORREF>(colour) & 0xFFFFFFU, width_)),
        penBefore_(SelectObject(device_, pen_)),
        brushBefore_(SelectObject(device_, GetStockObject(NULL_BRUSH))) {}
  ~Pen() {
    SelectObject(device_, brushBefore_);
    SelectObject(device_, penBefore_);
    DeleteObject(pen_);
  }
  Pen(const Pen&) = delete;
  Pen& operator=(const Pen&) = delete;
  int Width() const { return width_; }

 private:
  static HPEN Made(COLORREF colour, int width) {
    const LOGBRUSH brush{BS_SOLID, colour, 0};
    return ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_ROUND | PS_JOIN_MITER, static_cast<DWORD>(width), &brush, 0,
                        nullptr);
  }

  HDC device_;
  int width_;
  HPEN pen_;
  HGDIOBJ penBefore_, brushBefore_;
};

void DrawShape(const Canvas& canvas, const SurfaceShape& shape, WINBOOL(WINAPI* draw)(HDC, int, int, int, int)) {
  if (!shape.Visible) return;
  const Pen pen(canvas, shape.BorderColor, shape.BorderWidth);
  const POINT from = PointOf(canvas, shape.Left, shape.Top);
  const POINT to = PointOf(canvas, shape.Left + shape.Width, shape.Top + shape.Height);
  const int ahead = pen.Width() / 2, behind = (pen.Width() - 1) / 2;
  draw(canvas.device, from.x + ahead, from.y + ahead, to.x - behind, to.y - behind);
}

void DrawLine(const Canvas& canvas, const SurfaceLine& line) {
  if (!line.Visible) return;
  const Pen pen(canvas, line.BorderColor, line.BorderWidth);
  const POINT from = PointOf(canvas, line.X1, line.Y1), to = PointOf(canvas, line.X2, line.Y2);
  MoveToEx(canvas.device, from.x, from.y, nullptr);
  LineTo(canvas.device, to.x, to.y);
}

bool Same(const SurfaceShape& one, const SurfaceShape& other) {
  const auto fields = [](const SurfaceShape& shape) {
    return std::tie(shape.Left, shape.Top, shape.Width, shape.Height, shape.BorderColor, shape.BorderWidth,
                    shape.Visible);
  };
  return fields(one) == fields(other);
}

bool Same(const SurfaceLine& one, const SurfaceLine& other) {
  const auto fields = [](const SurfaceLine& line) {
    return std::tie(line.X1, line.Y1, line.X2, line.Y2, line.BorderColor, line.BorderWidth, line.Visible);
  };
  return fields(one) == fields(other);
}

}  // namespace

bool LookTheSame(const Surface& one, const Surface& other) {
  return one.Width == other.Width && one.Height == other.Height && Same(one.shpOval, other.shpOval) &&
         Same(one.shpRect, other.shpRect) && Same(one.linX1, other.linX1) && Same(one.linX2, other.linX2) &&
         Same(one.linOK1, other.linOK1) && Same(one.linOK2, other.linOK2);
}

void DrawSurface(const Canvas& canvas, const Surface& surface) {
  const int state = SaveDC(canvas.device);
  const POINT from = PointOf(canvas, 0, 0), to = PointOf(canvas, surface.Width, surface.Height);
  IntersectClipRect(canvas.device, from.x, from.y, to.x, to.y);
  DrawShape(canvas, surface.shpOval, Ellipse);
  DrawShape(canvas, surface.shpRect, Rectangle);
  for (const SurfaceLine* line : {&surface.linX1, &surface.linX2, &surface.linOK1, &surface.linOK2}) {
    DrawLine(canvas, *line);
  }
  RestoreDC(canvas.device, state);
}

}  // namespace plexel::activex
