#include "qt/panel_painter.h"

#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <array>

#include "qt/fonts.h"
#include "qt/units.h"

namespace plexel {

namespace {

QRectF BoxOf(const PanelPart& part) { return QRect(part.box.left, part.box.top, part.box.width, part.box.height); }

/// Where the outline of a part runs: inside its box, so that at scale 1 it fills whole pixels.
QRectF OutlineOf(const PanelPart& part) {
  constexpr double half = 0.5;
  return BoxOf(part).adjusted(half, half, -half, -half);
}

/// Light from above: `depth` in percent brighter at the top, as much darker at the bottom.
QLinearGradient Lit(const QRectF& box, const QColor& colour, int depth) {
  QLinearGradient gradient(box.topLeft(), box.bottomLeft());
  gradient.setColorAt(0, colour.lighter(100 + depth));
  gradient.setColorAt(1, colour.darker(100 + depth));
  return gradient;
}

void DrawRounded(QPainter& painter, const PanelPart& part, const QBrush& fill) {
  painter.setPen(QPen(ColourOf(part.lineColor), 1));
  painter.setBrush(fill);
  painter.drawRoundedRect(OutlineOf(part), part.cornerRadius, part.cornerRadius);
}

void DrawHousing(QPainter& painter, const PanelPart& part) {
  DrawRounded(painter, part, Lit(BoxOf(part), ColourOf(part.fillColor), 6));
}

void DrawScreen(QPainter& painter, const PanelPart& part) {
  DrawRounded(painter, part, ColourOf(part.fillColor));
  const QRectF box = BoxOf(part);
  QPainterPath glare;
  glare.moveTo(box.topLeft());
  glare.lineTo(box.left() + box.width() * 0.55, box.top());
  glare.lineTo(box.left() + box.width() * 0.30, box.bottom());
  glare.lineTo(box.bottomLeft());
  glare.closeSubpath();
  painter.fillPath(glare, QColor(255, 255, 255, 14));
}

void DrawKey(QPainter& painter, const PanelPart& part) {
  DrawRounded(painter, part, Lit(BoxOf(part), ColourOf(part.fillColor), 7));
}

void DrawRoundKey(QPainter& painter, const PanelPart& part) {
  painter.setPen(QPen(ColourOf(part.lineColor), 1));
  painter.setBrush(Lit(BoxOf(part), ColourOf(part.fillColor), 7));
  painter.drawEllipse(OutlineOf(part));
}

void DrawKeySwitch(QPainter& painter, const PanelPart& part) {
  DrawRoundKey(painter, part);
  const QRectF box = BoxOf(part);
  QRectF core(0, 0, box.width() * 0.5, box.height() * 0.5);
  core.moveCenter(box.center());
  painter.setBrush(ColourOf(part.fillColor).darker(115));
  painter.drawEllipse(core);
  QRectF slot(0, 0, box.width() * 0.08, box.height() * 0.34);
  slot.moveCenter(box.center());
  painter.setBrush(ColourOf(part.lineColor).darker(120));
  painter.drawRoundedRect(slot, 1, 1);
}

void DrawLed(QPainter& painter, const PanelPart& part) {
  const QRectF box = BoxOf(part);
  const QColor colour = ColourOf(part.fillColor);
  QRadialGradient gradient(box.center() - QPointF(box.width() * 0.15, box.height() * 0.2), box.width() * 0.6);
  gradient.setColorAt(0, colour.lighter(150));
  gradient.setColorAt(1, colour);
  painter.setPen(QPen(ColourOf(part.lineColor), 1));
  painter.setBrush(gradient);
  if (part.cornerRadius > 0 || box.width() == box.height()) {
    painter.drawEllipse(OutlineOf(part));
  } else {
    painter.drawRect(OutlineOf(part));
  }
}

void DrawNothing(QPainter&, const PanelPart&) {}

struct PartDrawing {
  PanelPartKind kind;
  void (*draw)(QPainter&, const PanelPart&);
};

constexpr std::array drawings = {PartDrawing{PanelPartKind::Housing, DrawHousing},
                                 PartDrawing{PanelPartKind::Screen, DrawScreen},
                                 PartDrawing{PanelPartKind::Key, DrawKey},
                                 PartDrawing{PanelPartKind::RoundKey, DrawRoundKey},
                                 PartDrawing{PanelPartKind::KeySwitch, DrawKeySwitch},
                                 PartDrawing{PanelPartKind::Led, DrawLed},
                                 PartDrawing{PanelPartKind::Legend, DrawNothing}};

int AlignmentOf(LegendAlignment alignment) {
  switch (alignment) {
    case LegendAlignment::Left:
      return Qt::AlignLeft | Qt::AlignVCenter;
    case LegendAlignment::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
    case LegendAlignment::Center:
      break;
  }
  return Qt::AlignCenter;
}

QFont FontOf(const PanelPart& part) {
  QFont font = DialogFont();
  font.setPixelSize(std::max(1, part.legendSize));
  return font;
}

QPointF PixelPoint(float x, float y) {
  return QPointF(static_cast<double>(x), static_cast<double>(y)) / static_cast<double>(TwipsPerLogicalPixel);
}

/// Where the line of a shape runs: inside its box.
QRectF ShapeRect(const SurfaceShape& shape) {
  const double half = shape.BorderWidth / 2.0;
  return QRectF(PixelPoint(shape.Left, shape.Top), PixelPoint(shape.Left + shape.Width, shape.Top + shape.Height))
      .adjusted(half, half, -half, -half);
}

QPen PenOf(std::int32_t colour, std::int16_t width) {
  QPen pen(ColourOf(colour), width);
  pen.setJoinStyle(Qt::MiterJoin);
  return pen;
}

void DrawLine(QPainter& painter, const SurfaceLine& line) {
  if (!line.Visible) return;
  painter.setPen(PenOf(line.BorderColor, line.BorderWidth));
  painter.drawLine(PixelPoint(line.X1, line.Y1), PixelPoint(line.X2, line.Y2));
}

/// Where the tick in a corner stands.
QRectF CornerTickBox(const Surface& surface, TickPlace tick) {
  constexpr double Share = 0.2, RoundShare = 0.16, Smallest = 6, OfRound = 0.08;
  const bool round = tick == TickPlace::RoundCorner;
  const QPointF whole = PixelPoint(surface.Width, surface.Height);
  const double least = std::min(whole.x(), whole.y());
  const double size = std::max(Smallest, (round ? RoundShare : Share) * least);
  const double edge = size * 0.4 + (round ? OfRound * least : 0);
  return {whole.x() - size - edge, edge, size, size};
}

bool HasCornerTick(const Surface& surface, TickPlace tick) {
  return surface.linOK1.Visible && (tick == TickPlace::Corner || tick == TickPlace::RoundCorner);
}

}  // namespace

QRect BoundsOf(const PanelPart& part) {
  constexpr int Line = 1;
  const QRect box = BoxOf(part).toRect().adjusted(-Line, -Line, Line, Line);
  if (part.legend.empty()) return box;
  const QRect text = QFontMetrics(FontOf(part))
                         .boundingRect(BoxOf(part).toRect(), AlignmentOf(part.legendAlignment), ToQt(part.legend));
  return box | text.adjusted(-Line, -Line, Line, Line);
}

void DrawPart(QPainter& painter, const PanelPart& part) {
  DrawBody(painter, part);
  DrawLegend(painter, part);
}

void DrawBody(QPainter& painter, const PanelPart& part) {
  for (const PartDrawing& one : drawings) {
    if (one.kind == part.kind) one.draw(painter, part);
  }
}

void DrawLegend(QPainter& painter, const PanelPart& part) {
  if (part.legend.empty()) return;
  // A painter that has the font keeps it, and with it what the toolkit has loaded of it.
  if (const QFont font = FontOf(part); painter.font() != font) painter.setFont(font);
  painter.setPen(ColourOf(part.legendColor));
  painter.drawText(BoxOf(part), AlignmentOf(part.legendAlignment) | Qt::TextDontClip, ToQt(part.legend));
}

void DrawSurface(QPainter& painter, const Surface& surface, TickPlace tick) {
  painter.setBrush(Qt::NoBrush);
  if (surface.shpOval.Visible) {
    painter.setPen(PenOf(surface.shpOval.BorderColor, surface.shpOval.BorderWidth));
    painter.drawEllipse(ShapeRect(surface.shpOval));
  }
  if (surface.shpRect.Visible) {
    painter.setPen(PenOf(surface.shpRect.BorderColor, surface.shpRect.BorderWidth));
    painter.drawRect(ShapeRect(surface.shpRect));
  }
  for (const SurfaceLine* line : {&surface.linX1, &surface.linX2}) DrawLine(painter, *line);
  DrawCornerTick(painter, surface, tick);
  if (tick != TickPlace::AsDesigned) return;
  for (const SurfaceLine* line : {&surface.linOK1, &surface.linOK2}) DrawLine(painter, *line);
}

/// On a ground of its own.
void DrawCornerTick(QPainter& painter, const Surface& surface, TickPlace tick) {
  if (!HasCornerTick(surface, tick)) return;
  const QRectF box = CornerTickBox(surface, tick);
  const double size = box.width();
  const std::array points = {box.topLeft() + QPointF(0, size * 0.55), box.topLeft() + QPointF(size * 0.35, size * 0.9),
                             box.topLeft() + QPointF(size, size * 0.1)};
  QPen pen(QColor(255, 255, 255, 220), size / 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  painter.setPen(pen);
  painter.drawPolyline(points.data(), static_cast<int>(points.size()));
  pen.setColor(ColourOf(surface.linOK1.BorderColor));
  pen.setWidthF(std::max(2.0, size / 5));
  painter.setPen(pen);
  painter.drawPolyline(points.data(), static_cast<int>(points.size()));
}

QRectF CornerTickBounds(const Surface& surface, TickPlace tick) {
  if (!HasCornerTick(surface, tick)) return {};
  const QRectF box = CornerTickBox(surface, tick);
  const double line = std::max(2.0, box.width() / 2.6);
  return box.adjusted(-line, -line, line, line);
}

void DrawFound(QPainter& painter, const QRect& box) {
  const QColor ground(0xFF, 0xC0, 0x2E, 0x5A), edge(0xE0, 0x8A, 0x00);
  constexpr qreal width = 2;
  painter.save();
  painter.setPen(QPen(edge, width));
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(box).adjusted(width / 2, width / 2, -width / 2, -width / 2), 3, 3);
  painter.restore();
}

void DrawChoice(QPainter& painter, const QRect& box, const QColor& colour) {
  constexpr double Width = 2, Round = 4;
  constexpr int Veil = 50;
  QColor veil = colour;
  veil.setAlpha(Veil);
  painter.setPen(QPen(colour, Width));
  painter.setBrush(veil);
  painter.drawRoundedRect(QRectF(box).adjusted(-Width, -Width, Width, Width), Round, Round);
}

void DrawLabel(QPainter& painter, const QRect& box, const QString& text, qreal scale) {
  constexpr double Size = 10, Smallest = 6, MostOfHeight = 0.34;
  constexpr int Side = 3;
  QFont font = DialogFont();
  font.setPixelSize(static_cast<int>(std::max(Smallest, Size * scale)));
  const QFontMetrics metrics(font);
  QRect strip(box.left() + Side, 0, box.width() - 2 * Side, metrics.height());
  if (text.isEmpty() || strip.height() > MostOfHeight * box.height()) return;
  strip.moveBottom(box.bottom() - Side);
  const QString shown = metrics.elidedText(text, Qt::ElideRight, strip.width() - 2 * Side);
  QRect ground(0, 0, std::min(strip.width(), metrics.horizontalAdvance(shown) + 2 * Side), strip.height());
  ground.moveCenter(strip.center());
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 248, 214, 235));
  painter.drawRoundedRect(ground, 2, 2);
  painter.setFont(font);
  painter.setPen(QColor(0x22, 0x38, 0x4F));
  painter.drawText(strip, Qt::AlignCenter | Qt::TextSingleLine, shown);
}

}  // namespace plexel
