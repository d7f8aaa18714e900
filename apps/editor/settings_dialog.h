#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "files/file_surroundings.h"

class QComboBox;
class QFormLayout;

namespace plexel {

/// The user's settings: the language, and every row of the table of settings.
class SettingsDialog : public QDialog {
 public:
  SettingsDialog(FileSurroundings& surroundings, QWidget* parent);
  /// Takes the choices over and writes them to the file. A Failure or FileError tells what went wrong; what had been
  /// taken over then stays in force.
  void Apply();

 private:
  QWidget* MakeGeneralGroup();
  QWidget* MakeMarksGroup();
  QWidget* MakeRecordingGroup();
  void AlignFields();
  void AddSwitch(QFormLayout& layout, const SettingRow& row, const QString& caption);
  void AddColour(QFormLayout& layout, const SettingRow& row, const QString& caption);
  void AddNumber(QFormLayout& layout, const SettingRow& row, const QString& caption);
  void AddChoice(QFormLayout& layout, const SettingRow& row, const QString& caption, const QStringList& choices);

  struct Field {
    const SettingRow* row;
    std::function<std::int32_t()> read;
  };
  FileSurroundings& surroundings_;
  QComboBox* language_ = nullptr;
  std::vector<Field> fields_;
};

}  // namespace plexel
