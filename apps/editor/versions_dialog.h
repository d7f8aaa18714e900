#pragma once

#include <QDialog>
#include <optional>

#include "project/panel_document.h"
#include "project/versions.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace plexel {

class DifferenceView;

/// The saved versions of a project, each with what it differs in from the project as it is now.
class VersionsDialog : public QDialog {
 public:
  VersionsDialog(const VersionStore& store, const PanelDocument& document, QWidget* parent);
  /// The version that is to be brought back, when the dialog was accepted.
  std::filesystem::path Chosen() const;

 private:
  void ShowVersion(int row);

  const Project now_;
  const std::vector<VersionStore::Version> versions_;
  QListWidget* list_;
  QLabel* summary_;
  DifferenceView* differences_;
  QPushButton* bringBack_;
};

}  // namespace plexel
