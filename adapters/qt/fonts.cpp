#include "qt/fonts.h"

#include <QFontDatabase>
#include <cmath>

#include "qt/units.h"

namespace plexel {

int FontPixels(double points) {
  constexpr double TwipsPerPoint = 20;
  return static_cast<int>(std::lround(points * TwipsPerPoint / static_cast<double>(TwipsPerLogicalPixel)));
}

QFont DialogFont() {
  constexpr double DialogPoints = 9;
  static const bool liberation = QFontDatabase::hasFamily("Liberation Sans");
  QFont font = liberation ? QFont("Liberation Sans") : QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(FontPixels(DialogPoints));
  return font;
}

}  // namespace plexel
