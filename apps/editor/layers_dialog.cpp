#include "editor/layers_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "editor/help_key.h"
#include "editor/texts.h"

namespace plexel {

LayersDialog::LayersDialog(std::int32_t from, QWidget* parent) : QDialog(parent), from_(new QComboBox) {
  setWindowTitle(Say(Text::LayersTitle));
  auto* const layout = new QVBoxLayout(this);
  auto* const fields = new QFormLayout;
  from_->setObjectName("From");
  auto* const boxes = new QHBoxLayout;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    from_->addItem(Say(Text::LayerOne).arg(layer).remove('&'));
    auto* const box = new QCheckBox(QString::number(layer));
    box->setObjectName("Onto" + QString::number(layer));
    box->setChecked(true);
    connect(box, &QCheckBox::toggled, this, [this] { Update(); });
    boxes->addWidget(box);
    onto_[static_cast<std::size_t>(layer - 1)] = box;
  }
  from_->setCurrentIndex(from - 1);
  connect(from_, &QComboBox::currentIndexChanged, this, [this] { Update(); });
  fields->addRow(Say(Text::LayerFrom), from_);
  fields->addRow(Say(Text::LayersOnto), boxes);
  layout->addLayout(fields);
  auto* const buttons = new QDialogButtonBox;
  ok_ = buttons->addButton(Say(Text::OK), QDialogButtonBox::AcceptRole);
  buttons->addButton(Say(Text::Cancel), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  AddHelpKey(*this, help_topics::Copying);
  constexpr int TitleSides = 110;  // what a frame puts beside the title
  setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) + TitleSides);
  Update();
}

std::int32_t LayersDialog::From() const { return from_->currentIndex() + 1; }

std::vector<std::int32_t> LayersDialog::Onto() const {
  std::vector<std::int32_t> layers;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    if (layer != From() && onto_[static_cast<std::size_t>(layer - 1)]->isChecked()) layers.push_back(layer);
  }
  return layers;
}

void LayersDialog::Update() {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    onto_[static_cast<std::size_t>(layer - 1)]->setEnabled(layer != From());
  }
  ok_->setEnabled(!Onto().empty());
}

}  // namespace plexel
