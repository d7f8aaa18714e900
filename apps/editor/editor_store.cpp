#include "editor/editor_store.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <exception>
#include <string_view>
#include <system_error>

#include "editor/texts.h"
#include "files/file_error.h"
#include "files/ini_walk.h"
#include "files/system_files.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr std::size_t Limit = std::size_t{1} << 20U;

/// A path that a file of ours can be told by.
bool IsFileName(const QString& path) { return QDir::isAbsolutePath(path) && !path.contains(QChar(0)); }

/// Names of files stand without whatever has a meaning in the file.
std::string EncodedPath(const QString& path) { return path.toUtf8().toPercentEncoding("/").toStdString(); }
QString DecodedPath(const QByteArray& text) { return QString::fromUtf8(QByteArray::fromPercentEncoding(text)); }

}  // namespace

EditorStore::EditorStore(const std::filesystem::path& directory) : file_(directory / "editor.ini") {
  try {
    values_ = Read();
  } catch (const FileError& failure) {
    unread_ = failure.what();
  }
}

EditorStore::~EditorStore() { Keep(); }

/// FileError when the file is there and cannot be read.
EditorStore::Values EditorStore::Read() const {
  std::error_code error;
  if (std::filesystem::status(file_, error).type() == std::filesystem::file_type::not_found) return {};
  std::string content = ReadWholeFile(file_, Limit);
  Values values;
  try {
    const TextFile text(file_, std::move(content));
    IniWalk walk(text);
    std::string section;
    for (bool more = true; more;) {
      try {
        IniLine line;
        more = walk.Next(line);
        if (!more) break;
        if (line.section) {
          section = std::string(line.name) + '/';
        } else {
          values.insert_or_assign(section + std::string(line.name), std::string(line.value));
        }
      } catch (const FileError&) {  // a damaged line is none
      }
    }
  } catch (const FileError&) {  // a file that is no text has no values
  }
  return values;
}

QString EditorStore::Keep() {
  if (changed_.empty()) return {};
  if (!unread_.empty()) return Say(Text::StoreNotKept) + ' ' + ToQt(unread_);
  try {
    const Values stored = Read();
    Values values = stored;
    for (const auto& [name, value] : changed_) values.insert_or_assign(name, value);
    if (values != stored) Write(values);
    values_ = std::move(values);
    changed_.clear();
    return {};
  } catch (const std::exception& failure) {
    return Say(Text::StoreNotKept) + ' ' + ToQt(std::string_view(failure.what()));
  }
}

void EditorStore::Write(const Values& values) const {
  std::string text, section;
  for (const auto& [name, value] : values) {
    const std::size_t slash = std::min(name.find('/'), name.size() - 1);
    if (const std::string own = name.substr(0, slash); own != section) {
      section = own;
      text += '[' + section + "]\n";
    }
    text += name.substr(slash + 1) + '=' + value + '\n';
  }
  MakeOwnDirectory(file_.parent_path());
  WriteWholeFile(file_, text);
}

std::string EditorStore::Value(const char* name) const {
  const auto found = values_.find(name);
  return found == values_.end() ? std::string() : found->second;
}

void EditorStore::Put(const char* name, std::string value) {
  values_.insert_or_assign(name, value);
  changed_.insert_or_assign(name, std::move(value));
}

QByteArray EditorStore::Packed(const char* name) const {
  const auto read =
      QByteArray::fromBase64Encoding(QByteArray::fromStdString(Value(name)), QByteArray::AbortOnBase64DecodingErrors);
  return read ? *read : QByteArray();
}

QString EditorStore::Folder() const {
  const QString path = DecodedPath(QByteArray::fromStdString(Value("Files/Folder")));
  return IsFileName(path) && QFileInfo(path).isDir() ? path : QString();
}

void EditorStore::Folder(const QString& path) { Put("Files/Folder", EncodedPath(path)); }

QStringList EditorStore::Recent() const {
  QStringList files;
  for (const QByteArray& text : QByteArray::fromStdString(Value("Files/Recent")).split(' ')) {
    const QString file = DecodedPath(text);
    if (IsFileName(file) && !files.contains(file) && files.size() < MostRecent) files.append(file);
  }
  return files;
}

void EditorStore::PutRecent(const QStringList& files) {
  std::string text;
  for (const QString& file : files.mid(0, MostRecent)) text += (text.empty() ? "" : " ") + EncodedPath(file);
  Put("Files/Recent", text);
}

void EditorStore::AddRecent(const QString& file) {
  QStringList files = Recent();
  files.removeAll(file);
  files.prepend(file);
  PutRecent(files);
}

void EditorStore::DropRecent(const QString& file) {
  QStringList files = Recent();
  files.removeAll(file);
  PutRecent(files);
}

}  // namespace plexel
