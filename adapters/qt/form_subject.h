#pragma once

#include <QRect>
#include <QString>

namespace plexel {

/// What an open form is about, as the host tells it.
struct FormSubject {
  /// Stands behind the form's caption in the title of its window; empty for nothing.
  QString name;
  /// Where it lies on the screen, in logical pixels; the window opens beside it where the screen has room. Empty where
  /// nothing is to be kept in sight.
  QRect place;
};

}  // namespace plexel
