#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <cmath>
#include <cstdint>
#include <string>

#include "forms/control.h"

namespace plexel {

/// Units and values of the form model and of the toolkit, turned into each other.

inline constexpr float TwipsPerLogicalPixel = 15;

inline int ToPixels(float twips) { return static_cast<int>(std::lround(twips / TwipsPerLogicalPixel)); }
inline float ToTwips(double pixels) { return static_cast<float>(pixels * TwipsPerLogicalPixel); }

/// A rectangle in whole pixels. Its edges are rounded, so that what touches in twips touches in pixels.
inline QRect PixelRect(float left, float top, float width, float height) {
  const QPoint from(ToPixels(left), ToPixels(top)), to(ToPixels(left + width), ToPixels(top + height));
  return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}
inline QRect PixelRect(const Control& control) {
  return PixelRect(control.Left(), control.Top(), control.Width(), control.Height());
}

/// The colour of a number 0x00BBGGRR.
inline QColor ColourOf(std::int32_t number) {
  return QColor(number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF);
}
inline std::int32_t NumberOf(const QColor& colour) {
  return colour.red() | (colour.green() << 8) | (colour.blue() << 16);
}

inline QString ToQt(const std::string& text) { return QString::fromStdString(text); }
inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A place in a text of the toolkit, counted in 16-bit units, as a number of characters, and back.
int CharactersAhead(const QString& text, int units);
int UnitsAhead(const QString& text, int characters);

/// The text with a visible sign for each control character.
QString WithVisibleControls(const QString& text);

}  // namespace plexel
