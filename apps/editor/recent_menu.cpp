#include "editor/recent_menu.h"

#include <QDir>
#include <QFileInfo>

#include "editor/editor_store.h"
#include "editor/texts.h"
#include "qt/captions.h"

namespace plexel {

namespace {

/// A text as a menu shows it whole: a letter behind "&" would be underlined, and what stands behind a tab is taken for
/// keys.
QString Plain(QString text) {
  for (QChar& character : text) {
    if (!character.isPrint()) character = QChar::ReplacementCharacter;
  }
  return text.replace('&', "&&");
}

}  // namespace

RecentMenu::RecentMenu(EditorStore& store, QWidget* parent) : QMenu(parent), store_(store) {
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, [this] { Fill(); });
  Fill();
}

void RecentMenu::Fill() {
  clear();
  int number = 0;
  for (const QString& file : store_.Recent()) {
    const QFileInfo info(file);
    const QString place = Plain(info.fileName()) + " \u2013 " + Plain(QDir::toNativeSeparators(info.path()));
    // The last of ten has the letter 0.
    QAction* const entry = addAction('&' + QString::number(++number % EditorStore::MostRecent) + "  " + place);
    entry->setToolTip(ToolTipOf(file));
    connect(entry, &QAction::triggered, this, [this, file] {
      if (onOpen) onOpen(file);
    });
  }
  const bool any = !isEmpty();
  if (any) addSeparator();
  QAction* const wipe = addAction(Say(Text::ClearRecent));
  wipe->setEnabled(any);
  connect(wipe, &QAction::triggered, this, [this] { store_.ClearRecent(); });
}

}  // namespace plexel
