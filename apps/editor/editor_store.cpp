#include "editor/editor_store.h"

#include <QDir>
#include <QFileInfo>

namespace plexel {

namespace {

/// A path that a file of ours can be told by.
bool IsFileName(const QString& path) { return QDir::isAbsolutePath(path) && !path.contains(QChar(0)); }

}  // namespace

EditorStore::EditorStore(const std::filesystem::path& directory)
    : values_(QString::fromStdString((directory / "editor.ini").string()), QSettings::IniFormat) {}

QByteArray EditorStore::Bytes(const char* name) const {
  const QVariant value = values_.value(name);
  return value.typeId() == QMetaType::QByteArray ? value.toByteArray() : QByteArray();
}

void EditorStore::Put(const char* name, const QVariant& value) { values_.setValue(name, value); }

QString EditorStore::Folder() const {
  const QString path = values_.value("Files/Folder").toString();
  return IsFileName(path) && QFileInfo(path).isDir() ? path : QString();
}

QStringList EditorStore::Recent() const {
  QStringList files;
  for (const QString& file : values_.value("Files/Recent").toStringList()) {
    if (IsFileName(file) && !files.contains(file) && files.size() < MostRecent) files.append(file);
  }
  return files;
}

void EditorStore::AddRecent(const QString& file) {
  QStringList files = Recent();
  files.removeAll(file);
  files.prepend(file);
  Put("Files/Recent", QStringList(files.mid(0, MostRecent)));
}

void EditorStore::DropRecent(const QString& file) {
  QStringList files = Recent();
  files.removeAll(file);
  Put("Files/Recent", files);
}

}  // namespace plexel
