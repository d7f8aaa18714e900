#include "editor/settings_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "editor/colour_button.h"
#include "editor/texts.h"
#include "platform/failure.h"
#include "qt/units.h"

namespace plexel {

SettingsDialog::SettingsDialog(FileSurroundings& surroundings, QWidget* parent)
    : QDialog(parent), surroundings_(surroundings) {
  setWindowTitle(Say(Text::SettingsTitle));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeGeneralGroup());
  layout->addWidget(MakeMarksGroup());
  layout->addWidget(MakeRecordingGroup());
  AlignFields();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Ok)->setText(Say(Text::OK));
  buttons->button(QDialogButtonBox::Cancel)->setText(Say(Text::Cancel));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* SettingsDialog::MakeGeneralGroup() {
  auto* group = new QGroupBox(Say(Text::GroupGeneral));
  auto* layout = new QFormLayout(group);
  language_ = new QComboBox;
  language_->setObjectName("Language");
  for (const std::string& name : surroundings_.Language().Available()) {
    language_->addItem(LanguageTitle(name), ToQt(name));
  }
  language_->setCurrentIndex(language_->findData(ToQt(surroundings_.Language().Chosen())));
  layout->addRow(Say(Text::Language), language_);
  AddSwitch(*layout, SettingOf(OptionUseWizard), Say(Text::UseWizard));
  return group;
}

QWidget* SettingsDialog::MakeMarksGroup() {
  auto* group = new QGroupBox(Say(Text::GroupMarks));
  auto* layout = new QFormLayout(group);
  AddColour(*layout, SettingOf(ParameterFocusColor), Say(Text::FocusColor));
  AddNumber(*layout, SettingOf(ParameterFocusWidth), Say(Text::FocusWidth));
  AddSwitch(*layout, SettingOf(OptionShowX), Say(Text::ShowX));
  AddSwitch(*layout, SettingOf(OptionShowXPermanent), Say(Text::ShowXPermanent));
  AddChoice(*layout, SettingOf(ParameterXSize), Say(Text::XSize),
            {Say(Text::XBig), Say(Text::XMedium), Say(Text::XSmall)});
  AddSwitch(*layout, SettingOf(OptionShowDefined), Say(Text::ShowDefined));
  AddColour(*layout, SettingOf(ParameterDefinedColor), Say(Text::DefinedColor));
  return group;
}

QWidget* SettingsDialog::MakeRecordingGroup() {
  auto* group = new QGroupBox(Say(Text::GroupRecording));
  auto* layout = new QFormLayout(group);
  AddSwitch(*layout, SettingOf(OptionLockTaskKeys), Say(Text::LockTaskKeys));
  AddSwitch(*layout, SettingOf(OptionShowCodeBalance), Say(Text::ShowCodeBalance));
  AddColour(*layout, SettingOf(ParameterCaptureColor), Say(Text::CaptureColor));
  return group;
}

/// Gives all groups the same column of captions.
void SettingsDialog::AlignFields() {
  QList<QWidget*> captions;
  for (QFormLayout* const layout : findChildren<QFormLayout*>()) {
    for (int row = 0; row < layout->rowCount(); ++row) {
      if (QLayoutItem* const caption = layout->itemAt(row, QFormLayout::LabelRole)) captions.append(caption->widget());
    }
  }
  int widest = 0;
  for (const QWidget* const caption : captions) widest = std::max(widest, caption->sizeHint().width());
  for (QWidget* const caption : captions) caption->setMinimumWidth(widest);
}

void SettingsDialog::AddSwitch(QFormLayout& layout, const SettingRow& row, const QString& caption) {
  auto* box = new QCheckBox(caption);
  box->setObjectName(ToQt(row.name));
  box->setChecked(surroundings_.Settings().Value(row) != 0);
  layout.addRow(box);
  fields_.push_back({&row, [box] { return box->isChecked() ? 1 : 0; }});
}

void SettingsDialog::AddColour(QFormLayout& layout, const SettingRow& row, const QString& caption) {
  auto* button = new ColourButton(ColourOf(surroundings_.Settings().Value(row)));
  button->setObjectName(ToQt(row.name));
  layout.addRow(caption, button);
  fields_.push_back({&row, [button] { return NumberOf(button->Colour()); }});
}

void SettingsDialog::AddNumber(QFormLayout& layout, const SettingRow& row, const QString& caption) {
  auto* box = new QSpinBox;
  box->setObjectName(ToQt(row.name));
  box->setRange(row.low, row.high);
  box->setValue(surroundings_.Settings().Value(row));
  layout.addRow(caption, box);
  fields_.push_back({&row, [box] { return box->value(); }});
}

void SettingsDialog::AddChoice(QFormLayout& layout, const SettingRow& row, const QString& caption,
                               const QStringList& choices) {
  auto* box = new QComboBox;
  box->setObjectName(ToQt(row.name));
  box->addItems(choices);
  box->setCurrentIndex(surroundings_.Settings().Value(row) - row.low);
  layout.addRow(caption, box);
  fields_.push_back({&row, [box, &row] { return box->currentIndex() + row.low; }});
}

void SettingsDialog::Apply() {
  surroundings_.ChooseLanguage(language_->currentData().toString().toStdString());
  for (const Field& field : fields_) surroundings_.Settings().Value(*field.row, field.read());
  surroundings_.Settings().Save();
}

}  // namespace plexel
