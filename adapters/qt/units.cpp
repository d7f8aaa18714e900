#include "qt/units.h"

namespace plexel {

int CharactersAhead(const QString& text, int units) {
  int characters = 0;
  for (int place = 0; place < units && place < text.size(); ++place) {
    if (!text[place].isLowSurrogate()) ++characters;
  }
  return characters;
}

int UnitsAhead(const QString& text, int characters) {
  int units = 0;
  while (characters > 0 && units < text.size()) {
    units += text[units].isHighSurrogate() ? 2 : 1;
    --characters;
  }
  return units;
}

QString WithVisibleControls(const QString& text) {
  constexpr char16_t EmptyBox = 0x25A1;
  QString visible = text;
  for (QChar& character : visible) {
    if (character.category() == QChar::Other_Control) character = QChar(EmptyBox);
  }
  return visible;
}

}  // namespace plexel
