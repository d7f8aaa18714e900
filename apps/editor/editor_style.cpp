#include "editor/editor_style.h"

#include "qt/pictures.h"

namespace plexel {

int EditorStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* answer) const {
  return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
}

QIcon EditorStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
  constexpr QSize size(16, 16);
  if (which == SP_ToolBarHorizontalExtensionButton) return PictureIcon("more", size);
  if (which == SP_ToolBarVerticalExtensionButton) return PictureIcon("more-below", size);
  if (which != SP_TitleBarNormalButton && which != SP_TitleBarCloseButton) {
    return QProxyStyle::standardIcon(which, option, widget);
  }
  QIcon& icon = ofDocks_[which];
  if (icon.isNull()) icon = QProxyStyle::standardIcon(which, option, widget);
  return icon;
}

}  // namespace plexel
