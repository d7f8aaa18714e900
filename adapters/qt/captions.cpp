#include "qt/captions.h"

#include <QStringList>
#include <QTextDocument>
#include <algorithm>

#include "forms/caption.h"
#include "qt/units.h"

namespace plexel {

namespace {

/// The number of units in the first line of a text.
qsizetype LineOf(const QString& text) {
  constexpr qsizetype Longest = 80;
  if (text.size() <= Longest) return text.size();
  const QStringView line = QStringView(text).first(Longest);
  const qsizetype end = std::max(line.lastIndexOf(u' '), line.lastIndexOf(u']')) + 1;
  return end > 0 ? end : Longest;
}

}  // namespace

QString WithLetter(const std::string& caption) {
  const ReadableCaption read = ReadCaption(caption);
  const std::string_view text = read.text;
  const bool marked = read.letterAt != ReadableCaption::NoLetter;
  const std::string_view ahead = marked ? text.substr(0, read.letterAt) : text;
  const QString shown = ToQt(ahead).replace('&', "&&");
  return marked ? shown + '&' + ToQt(text.substr(read.letterAt)).replace('&', "&&") : shown;
}

QString ToolTipOf(const QString& text) {
  QStringList lines;
  for (QString rest : text.split('\n')) {
    do {
      const qsizetype end = LineOf(rest);
      lines.append(rest.first(end));
      rest.remove(0, end);
    } while (!rest.isEmpty());
  }
  return Qt::convertFromPlainText(lines.join('\n'), Qt::WhiteSpacePre);
}

}  // namespace plexel
