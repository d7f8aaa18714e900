#pragma once

#include <QDialog>
#include <array>
#include <cstdint>
#include <vector>

#include "services/element_types.h"

class QCheckBox;
class QComboBox;
class QPushButton;

namespace plexel {

/// Asks which layer is copied onto which others.
class LayersDialog : public QDialog {
 public:
  /// `from` is the layer that is offered first, 1 to 4.
  LayersDialog(std::int32_t from, QWidget* parent);
  std::int32_t From() const;
  /// The other layers that are chosen.
  std::vector<std::int32_t> Onto() const;

 private:
  void Update();

  QComboBox* from_;
  std::array<QCheckBox*, LayerCount> onto_{};
  QPushButton* ok_;
};

}  // namespace plexel
