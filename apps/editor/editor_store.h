#pragma once

#include <QByteArray>
#include <QStringList>
#include <filesystem>
#include <map>
#include <string>

namespace plexel {

/// What the editor itself keeps from one run to the next, in a file of its own beside the user's settings. A value that
/// is missing, damaged or of another kind is passed over.
class EditorStore {
 public:
  /// `directory` is that of the user's own files.
  explicit EditorStore(const std::filesystem::path& directory);
  /// Keeps what is not kept yet.
  ~EditorStore();
  EditorStore(const EditorStore&) = delete;
  EditorStore& operator=(const EditorStore&) = delete;

  /// Brings what has changed to the disk, beside what other editors have put there. Tells why that failed, empty when
  /// it did not; the file stands as it was then.
  QString Keep();

  /// The place of the window, and that of its docks and tool bars, as the toolkit packs them; empty for none.
  QByteArray Geometry() const { return Packed("Window/Geometry"); }
  void Geometry(const QByteArray& value) { PutPacked("Window/Geometry", value); }
  QByteArray Layout() const { return Packed("Window/Layout"); }
  void Layout(const QByteArray& value) { PutPacked("Window/Layout", value); }
  /// The folder in which a file was last chosen; empty for none, or when it is gone.
  QString Folder() const;
  void Folder(const QString& path);
  /// The files that were last open, absolute, the latest first; ten at most.
  QStringList Recent() const;
  void AddRecent(const QString& file);
  void DropRecent(const QString& file);
  void ClearRecent() { PutRecent({}); }
  static constexpr int MostRecent = 10;
  /// Whether keys show their definitions.
  bool Labels() const { return Value("View/Labels") == "1"; }
  void Labels(bool value) { Put("View/Labels", value ? "1" : "0"); }

 private:
  /// By SECTION/KEY, as they stand in the file.
  using Values = std::map<std::string, std::string>;
  Values Read() const;
  void Write(const Values& values) const;
  std::string Value(const char* name) const;
  void Put(const char* name, std::string value);
  QByteArray Packed(const char* name) const;
  void PutPacked(const char* name, const QByteArray& value) { Put(name, value.toBase64().toStdString()); }
  void PutRecent(const QStringList& files);

  const std::filesystem::path file_;
  std::string unread_;  ///< why the file could not be read
  Values values_, changed_;
};

}  // namespace plexel
