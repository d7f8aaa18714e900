#pragma once

#include <QColor>
#include <QPushButton>

namespace plexel {

/// A button that shows a colour and lets the user choose another.
class ColourButton : public QPushButton {
 public:
  explicit ColourButton(const QColor& colour);
  const QColor& Colour() const { return colour_; }
  void Colour(const QColor& colour);

 private:
  QColor colour_;
};

}  // namespace plexel
