#pragma once

#include <QMenu>
#include <functional>

namespace plexel {

class EditorStore;

/// The menu of the files that were last open, which is made anew whenever it unfolds.
class RecentMenu : public QMenu {
 public:
  RecentMenu(EditorStore& store, QWidget* parent);

  std::function<void(const QString& file)> onOpen;

 private:
  void Fill();

  EditorStore& store_;
};

}  // namespace plexel
