#pragma once

#include <QIcon>
#include <QProxyStyle>
#include <map>

namespace plexel {

/// The desktop's style, without icons on the buttons of some boxes and none on others, and with pictures of the
/// editor's own on what opens the rest of a bar that is too short: for the toolkit's, which every bar takes at once, it
/// would load all that it has for reading images. The toolkit's pictures for the titles of docks it makes once, and not
/// at each look at a title.
class EditorStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override;

 private:
  mutable std::map<StandardPixmap, QIcon> ofDocks_;
};

}  // namespace plexel
