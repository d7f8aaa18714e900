#pragma once

#include <QByteArray>
#include <QSettings>
#include <QStringList>
#include <filesystem>

namespace plexel {

/// What the editor itself keeps from one run to the next, in a file of its own beside the user's settings. A value that
/// is missing, damaged or of another kind is passed over; what cannot be written is not kept.
class EditorStore {
 public:
  /// `directory` is that of the user's own files.
  explicit EditorStore(const std::filesystem::path& directory);

  /// The place of the window, and that of its docks and tool bars, as the toolkit packs them; empty for none.
  QByteArray Geometry() const { return Bytes("Window/Geometry"); }
  void Geometry(const QByteArray& value) { Put("Window/Geometry", value); }
  QByteArray Layout() const { return Bytes("Window/Layout"); }
  void Layout(const QByteArray& value) { Put("Window/Layout", value); }
  /// The folder in which a file was last chosen; empty for none, or when it is gone.
  QString Folder() const;
  void Folder(const QString& path) { Put("Files/Folder", path); }
  /// The files that were last open, absolute, the latest first; ten at most.
  QStringList Recent() const;
  void AddRecent(const QString& file);
  void DropRecent(const QString& file);
  void ClearRecent() { Put("Files/Recent", QStringList()); }
  static constexpr int MostRecent = 10;
  /// Whether keys show their definitions.
  bool Labels() const { return values_.value("View/Labels", false).toBool(); }
  void Labels(bool value) { Put("View/Labels", value); }

 private:
  QByteArray Bytes(const char* name) const;
  void Put(const char* name, const QVariant& value);

  QSettings values_;
};

}  // namespace plexel
