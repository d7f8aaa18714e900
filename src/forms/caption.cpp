#include "forms/caption.h"

#include "forms/ascii.h"

namespace plexel {

namespace {

constexpr char Mark = '&';

bool IsLetterOrDigit(char letter) { return (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9'); }

}  // namespace

ReadableCaption ReadCaption(std::string_view caption) {
  ReadableCaption read;
  for (std::size_t place = 0; place < caption.size(); ++place) {
    const bool marks = caption[place] == Mark && place + 1 < caption.size() && caption[place + 1] != ' ';
    if (!marks) {
      read.text += caption[place];
      continue;
    }
    ++place;
    if (caption[place] != Mark && read.letterAt == ReadableCaption::NoLetter) read.letterAt = read.text.size();
    read.text += caption[place];
  }
  return read;
}

bool LeadsTo(std::string_view caption, std::int16_t keyCode) {
  const ReadableCaption read = ReadCaption(caption);
  if (read.letterAt == ReadableCaption::NoLetter) return false;
  const char letter = ascii::Upper(read.text[read.letterAt]);
  return IsLetterOrDigit(letter) && letter == keyCode;
}

}  // namespace plexel
