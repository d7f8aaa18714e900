#include "world/file_faults.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/uio.h>

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace plexel {

namespace {

/// What is watched. It outlives everything, since files are closed until the very end of a program.
struct Watch {
  std::mutex mutex;
  std::condition_variable changed;
  // Of FileFaults and Meanwhile:
  std::string directory, operation;
  int left = 0;
  std::vector<int> errors;  ///< of the operation of that name, the next one first
  int error = 0;            ///< when these have come to their end
  std::function<void()> act;
  std::string failed;
  std::set<int> handles;  ///< of files below the directory
  // Of LateFile:
  std::string late;
  int waiting = 0;
  std::thread::id owner;
  std::function<void(const char*)> told;
};
Watch& TheWatch() {
  static auto* const watch = new Watch;
  return *watch;
}
std::atomic<bool> faulty{false}, anyLate{false}, watchesNothing{false}, knowsNobody{false}, knowsNoModule{false};

bool IsBelow(std::string_view path, std::string_view directory) {
  return path.starts_with(directory) && (path.size() == directory.size() || path[directory.size()] == '/');
}

/// Counts an operation below the directory, and gives the error with which it fails; 0 for none.
int NextError(Watch& watch, const char* operation) {
  if (watch.operation != operation) return watch.left == 0 || --watch.left > 0 ? 0 : watch.error;
  if (watch.errors.empty()) return watch.error;
  const int error = watch.errors.front();
  watch.errors.erase(watch.errors.begin());
  return error;
}

/// Looks at an operation below the directory; true when it fails.
bool LookAt(const char* operation, std::unique_lock<std::mutex>& lock) {
  Watch& watch = TheWatch();
  if (watch.act && watch.operation == operation) {
    const std::function<void()> act = watch.act;
    lock.unlock();
    faulty = false;
    act();
    faulty = true;
    return false;
  }
  const int error = NextError(watch, operation);
  if (error == 0) return false;
  watch.failed = operation;
  errno = error;
  return true;
}

bool Fails(const char* operation, const char* path) {
  if (anyLate && path != nullptr) {
    std::function<void(const char*)> told;
    {
      const std::lock_guard lock(TheWatch().mutex);
      if (TheWatch().owner == std::this_thread::get_id() && TheWatch().late == path) told = TheWatch().told;
    }
    if (told) told(operation);
  }
  if (!faulty || path == nullptr) return false;
  std::unique_lock lock(TheWatch().mutex);
  return IsBelow(path, TheWatch().directory) && LookAt(operation, lock);
}

bool Fails(const char* operation, int handle) {
  if (!faulty) return false;
  std::unique_lock lock(TheWatch().mutex);
  return TheWatch().handles.contains(handle) && LookAt(operation, lock);
}

void WaitFor(const char* path) {
  if (!anyLate) return;
  Watch& watch = TheWatch();
  std::unique_lock lock(watch.mutex);
  if (watch.late != path || watch.owner == std::this_thread::get_id()) return;
  ++watch.waiting;
  watch.changed.wait(lock, [&watch, path = std::string(path)] { return watch.late != path; });
  --watch.waiting;
}

int Opened(const char* path, int handle) {
  if (!faulty || handle < 0) return handle;
  const std::lock_guard lock(TheWatch().mutex);
  if (IsBelow(path, TheWatch().directory)) TheWatch().handles.insert(handle);
  return handle;
}

template <typename Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

namespace {

/// Begins to look at a directory anew.
Watch& Begin(const std::filesystem::path& directory, const char* operation) {
  Watch& watch = TheWatch();
  watch.directory = directory.string();
  watch.operation = operation;
  watch.left = watch.error = 0;
  watch.errors.clear();
  watch.act = nullptr;
  watch.failed.clear();
  watch.handles.clear();
  faulty = true;
  return watch;
}

}  // namespace

FileFaults::FileFaults(const std::filesystem::path& directory, int number, int error) {
  const std::lock_guard lock(TheWatch().mutex);
  Watch& watch = Begin(directory, "");
  watch.left = number;
  watch.error = error;
}

FileFaults::FileFaults(const std::filesystem::path& directory, const char* operation, int error) {
  const std::lock_guard lock(TheWatch().mutex);
  Begin(directory, operation).error = error;
}

FileFaults::FileFaults(const std::filesystem::path& directory, const char* operation,
                       std::initializer_list<int> errors) {
  const std::lock_guard lock(TheWatch().mutex);
  Begin(directory, operation).errors = errors;
}

FileFaults::~FileFaults() { faulty = false; }

std::string FileFaults::Failed() const {
  const std::lock_guard lock(TheWatch().mutex);
  return TheWatch().failed;
}

Meanwhile::Meanwhile(const std::filesystem::path& place, const char* operation, std::function<void()> act) {
  const std::lock_guard lock(TheWatch().mutex);
  Begin(place, operation).act = std::move(act);
}

Meanwhile::~Meanwhile() {
  faulty = false;
  const std::lock_guard lock(TheWatch().mutex);
  TheWatch().act = nullptr;
}

LateFile::LateFile(const std::filesystem::path& file) {
  const std::lock_guard lock(TheWatch().mutex);
  TheWatch().late = file.string();
  TheWatch().owner = std::this_thread::get_id();
  anyLate = true;
}

LateFile::~LateFile() {
  LetGo();
  OnOwn(nullptr);
  anyLate = false;
}

void LateFile::LetGo() {
  {
    const std::lock_guard lock(TheWatch().mutex);
    TheWatch().late.clear();
  }
  TheWatch().changed.notify_all();
}

bool LateFile::IsWaitedFor() const {
  const std::lock_guard lock(TheWatch().mutex);
  return TheWatch().waiting > 0;
}

void LateFile::OnOwn(std::function<void(const char* operation)> told) {
  const std::lock_guard lock(TheWatch().mutex);
  TheWatch().told = std::move(told);
}

NoFileWatching::NoFileWatching() { watchesNothing = true; }
NoFileWatching::~NoFileWatching() { watchesNothing = false; }
NoUserNames::NoUserNames() { knowsNobody = true; }
NoUserNames::~NoUserNames() { knowsNobody = false; }
NoModuleNames::NoModuleNames() { knowsNoModule = true; }
NoModuleNames::~NoModuleNames() { knowsNoModule = false; }

}  // namespace plexel

// The system's functions by their own names. They are declared under others, since headers declare them in ways that
// differ from one system to the next.

using plexel::Fails;
using plexel::Next;

#define PLEXEL_STANDS_FOR(name, ...) extern "C" __attribute__((visibility("default"))) __VA_ARGS__ __asm__(name)

namespace {

mode_t ModeOf(int flags, va_list& more) {
  return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(more, int)) : mode_t{0};
}

int OpenBy(const char* name, const char* path, int flags, mode_t mode) {
  if (Fails("open", path)) return -1;
  plexel::WaitFor(path);
  return plexel::Opened(path, Next<int(const char*, int, ...)>(name)(path, flags, mode));
}

std::FILE* OpenStream(const char* name, const char* path, const char* mode) {
  if (Fails("open", path)) return nullptr;
  plexel::WaitFor(path);
  return Next<std::FILE*(const char*, const char*)>(name)(path, mode);
}

}  // namespace

PLEXEL_STANDS_FOR("open", int FaultyOpen(const char* path, int flags, ...));
int FaultyOpen(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = ModeOf(flags, more);
  va_end(more);
  return OpenBy("open", path, flags, mode);
}
PLEXEL_STANDS_FOR("open64", int FaultyOpen64(const char* path, int flags, ...));
int FaultyOpen64(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = ModeOf(flags, more);
  va_end(more);
  return OpenBy("open64", path, flags, mode);
}
PLEXEL_STANDS_FOR("openat", int FaultyOpenAt(int directory, const char* path, int flags, ...));
int FaultyOpenAt(int directory, const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = ModeOf(flags, more);
  va_end(more);
  if (Fails("openat", path)) return -1;
  return plexel::Opened(path, Next<int(int, const char*, int, ...)>("openat")(directory, path, flags, mode));
}
PLEXEL_STANDS_FOR("fopen", std::FILE* FaultyFileOpen(const char* path, const char* mode));
std::FILE* FaultyFileOpen(const char* path, const char* mode) { return OpenStream("fopen", path, mode); }
PLEXEL_STANDS_FOR("fopen64", std::FILE* FaultyFileOpen64(const char* path, const char* mode));
std::FILE* FaultyFileOpen64(const char* path, const char* mode) { return OpenStream("fopen64", path, mode); }
PLEXEL_STANDS_FOR("opendir", DIR* FaultyOpenDirectory(const char* path));
DIR* FaultyOpenDirectory(const char* path) {
  return Fails("opendir", path) ? nullptr : Next<DIR*(const char*)>("opendir")(path);
}

PLEXEL_STANDS_FOR("read", ssize_t FaultyRead(int handle, void* bytes, std::size_t count));
ssize_t FaultyRead(int handle, void* bytes, std::size_t count) {
  return Fails("read", handle) ? -1 : Next<ssize_t(int, void*, std::size_t)>("read")(handle, bytes, count);
}
PLEXEL_STANDS_FOR("write", ssize_t FaultyWrite(int handle, const void* bytes, std::size_t count));
ssize_t FaultyWrite(int handle, const void* bytes, std::size_t count) {
  return Fails("write", handle) ? -1 : Next<ssize_t(int, const void*, std::size_t)>("write")(handle, bytes, count);
}
PLEXEL_STANDS_FOR("pwrite", ssize_t FaultyWriteAt(int handle, const void* bytes, std::size_t count, off_t place));
ssize_t FaultyWriteAt(int handle, const void* bytes, std::size_t count, off_t place) {
  return Fails("pwrite", handle)
             ? -1
             : Next<ssize_t(int, const void*, std::size_t, off_t)>("pwrite")(handle, bytes, count, place);
}
PLEXEL_STANDS_FOR("writev", ssize_t FaultyWriteParts(int handle, const iovec* parts, int count));
ssize_t FaultyWriteParts(int handle, const iovec* parts, int count) {
  return Fails("write", handle) ? -1 : Next<ssize_t(int, const iovec*, int)>("writev")(handle, parts, count);
}
/// A handle that could not be closed is closed all the same.
PLEXEL_STANDS_FOR("close", int FaultyClose(int handle));
int FaultyClose(int handle) {
  const bool fails = Fails("close", handle);
  const int error = errno;
  if (plexel::faulty) {
    const std::lock_guard lock(plexel::TheWatch().mutex);
    plexel::TheWatch().handles.erase(handle);
  }
  const int result = Next<int(int)>("close")(handle);
  if (!fails) return result;
  errno = error;
  return -1;
}

#define PLEXEL_BY_HANDLE(name, Function, Type)                   \
  PLEXEL_STANDS_FOR(name, int Function(int handle, Type value)); \
  int Function(int handle, Type value) { return Fails(name, handle) ? -1 : Next<int(int, Type)>(name)(handle, value); }
PLEXEL_BY_HANDLE("flock", FaultyLock, int)
PLEXEL_BY_HANDLE("fchmod", FaultyChangeMode, mode_t)
PLEXEL_BY_HANDLE("ftruncate", FaultyCut, off_t)
PLEXEL_BY_HANDLE("ftruncate64", FaultyCut64, off_t)
PLEXEL_BY_HANDLE("fstat", FaultyStatus, struct stat*)
PLEXEL_BY_HANDLE("fstat64", FaultyStatus64, struct stat*)

PLEXEL_STANDS_FOR("fchown", int FaultyGive(int handle, uid_t owner, gid_t group));
int FaultyGive(int handle, uid_t owner, gid_t group) {
  return Fails("fchown", handle) ? -1 : Next<int(int, uid_t, gid_t)>("fchown")(handle, owner, group);
}

PLEXEL_STANDS_FOR("fsync", int FaultyFlush(int handle));
int FaultyFlush(int handle) {
  struct stat status{};
  const bool isDirectory =
      plexel::faulty && Next<int(int, struct stat*)>("fstat")(handle, &status) == 0 && S_ISDIR(status.st_mode);
  return Fails(isDirectory ? "fsync of a directory" : "fsync", handle) ? -1 : Next<int(int)>("fsync")(handle);
}
PLEXEL_STANDS_FOR("fdatasync", int FaultyFlushData(int handle));
int FaultyFlushData(int handle) { return Fails("fdatasync", handle) ? -1 : Next<int(int)>("fdatasync")(handle); }

// Extended attributes, access lists among them.
PLEXEL_STANDS_FOR("listxattr", ssize_t FaultyListAttributes(const char* path, char* names, std::size_t size));
ssize_t FaultyListAttributes(const char* path, char* names, std::size_t size) {
  return Fails("listxattr", path) ? -1 : Next<ssize_t(const char*, char*, std::size_t)>("listxattr")(path, names, size);
}
PLEXEL_STANDS_FOR("getxattr",
                  ssize_t FaultyAttribute(const char* path, const char* name, void* value, std::size_t size));
ssize_t FaultyAttribute(const char* path, const char* name, void* value, std::size_t size) {
  if (Fails("getxattr", path)) return -1;
  return Next<ssize_t(const char*, const char*, void*, std::size_t)>("getxattr")(path, name, value, size);
}
PLEXEL_STANDS_FOR("fgetxattr", ssize_t FaultyAttributeOf(int handle, const char* name, void* value, std::size_t size));
ssize_t FaultyAttributeOf(int handle, const char* name, void* value, std::size_t size) {
  if (Fails("fgetxattr", handle)) return -1;
  return Next<ssize_t(int, const char*, void*, std::size_t)>("fgetxattr")(handle, name, value, size);
}
PLEXEL_STANDS_FOR("fsetxattr", int FaultyGiveAttribute(int handle, const char* name, const void* value,
                                                       std::size_t size, int flags));
int FaultyGiveAttribute(int handle, const char* name, const void* value, std::size_t size, int flags) {
  if (Fails("fsetxattr", handle)) return -1;
  return Next<int(int, const char*, const void*, std::size_t, int)>("fsetxattr")(handle, name, value, size, flags);
}
PLEXEL_STANDS_FOR("fremovexattr", int FaultyTakeAttribute(int handle, const char* name));
int FaultyTakeAttribute(int handle, const char* name) {
  return Fails("fremovexattr", handle) ? -1 : Next<int(int, const char*)>("fremovexattr")(handle, name);
}
PLEXEL_STANDS_FOR("pathconf", long FaultyLimitOf(const char* path, int name));
long FaultyLimitOf(const char* path, int name) {
  return Fails("pathconf", path) ? -1 : Next<long(const char*, int)>("pathconf")(path, name);
}

#define PLEXEL_BY_PATH(name, Function, Type)                                         \
  PLEXEL_STANDS_FOR(name, int Function(const char* path, Type value));               \
  int Function(const char* path, Type value) {                                       \
    return Fails(name, path) ? -1 : Next<int(const char*, Type)>(name)(path, value); \
  }
PLEXEL_BY_PATH("stat", FaultyStatusOf, struct stat*)
PLEXEL_BY_PATH("stat64", FaultyStatusOf64, struct stat*)
PLEXEL_BY_PATH("lstat", FaultyLinkStatusOf, struct stat*)
PLEXEL_BY_PATH("lstat64", FaultyLinkStatusOf64, struct stat*)
PLEXEL_BY_PATH("access", FaultyAccess, int)
PLEXEL_BY_PATH("mkdir", FaultyMakeDirectory, mode_t)
PLEXEL_BY_PATH("chmod", FaultyChangeModeOf, mode_t)
PLEXEL_BY_PATH("rename", FaultyRename, const char*)
PLEXEL_BY_PATH("link", FaultyLink, const char*)

PLEXEL_STANDS_FOR("statx", int FaultyStatusX(int directory, const char* path, int flags, unsigned mask, void* status));
int FaultyStatusX(int directory, const char* path, int flags, unsigned mask, void* status) {
  const bool fails = *path != '\0' ? Fails("statx", path) : Fails("statx", directory);
  return fails ? -1 : Next<int(int, const char*, int, unsigned, void*)>("statx")(directory, path, flags, mask, status);
}
PLEXEL_STANDS_FOR("fchmodat", int FaultyChangeModeAt(int directory, const char* path, mode_t mode, int flags));
int FaultyChangeModeAt(int directory, const char* path, mode_t mode, int flags) {
  return Fails("fchmodat", path) ? -1
                                 : Next<int(int, const char*, mode_t, int)>("fchmodat")(directory, path, mode, flags);
}
PLEXEL_STANDS_FOR("renameat2",
                  int FaultyRenameAt(int from, const char* path, int to, const char* name, unsigned flags));
int FaultyRenameAt(int from, const char* path, int to, const char* name, unsigned flags) {
  return Fails("renameat2", path)
             ? -1
             : Next<int(int, const char*, int, const char*, unsigned)>("renameat2")(from, path, to, name, flags);
}
PLEXEL_STANDS_FOR("linkat", int FaultyLinkAt(int from, const char* path, int to, const char* name, int flags));
int FaultyLinkAt(int from, const char* path, int to, const char* name, int flags) {
  return Fails("linkat", name)
             ? -1
             : Next<int(int, const char*, int, const char*, int)>("linkat")(from, path, to, name, flags);
}
PLEXEL_STANDS_FOR("unlink", int FaultyUnlink(const char* path));
int FaultyUnlink(const char* path) { return Fails("unlink", path) ? -1 : Next<int(const char*)>("unlink")(path); }
PLEXEL_STANDS_FOR("remove", int FaultyRemove(const char* path));
int FaultyRemove(const char* path) { return Fails("remove", path) ? -1 : Next<int(const char*)>("remove")(path); }
PLEXEL_STANDS_FOR("realpath", char* FaultyRealPath(const char* path, char* resolved));
char* FaultyRealPath(const char* path, char* resolved) {
  return Fails("realpath", path) ? nullptr : Next<char*(const char*, char*)>("realpath")(path, resolved);
}
PLEXEL_STANDS_FOR("inotify_add_watch", int FaultyAddWatch(int handle, const char* path, std::uint32_t mask));
int FaultyAddWatch(int handle, const char* path, std::uint32_t mask) {
  if (Fails("inotify_add_watch", path)) return -1;
  if (plexel::watchesNothing) {
    errno = ENOSPC;
    return -1;
  }
  return Next<int(int, const char*, std::uint32_t)>("inotify_add_watch")(handle, path, mask);
}

// The names of users and groups, and of what holds a piece of code.
PLEXEL_STANDS_FOR("getpwuid_r",
                  int FaultyUser(uid_t user, passwd* entry, char* room, std::size_t size, passwd** found));
int FaultyUser(uid_t user, passwd* entry, char* room, std::size_t size, passwd** found) {
  if (plexel::knowsNobody) return EIO;
  return Next<int(uid_t, passwd*, char*, std::size_t, passwd**)>("getpwuid_r")(user, entry, room, size, found);
}
PLEXEL_STANDS_FOR("getgrgid_r", int FaultyGroup(gid_t group, struct group* entry, char* room, std::size_t size,
                                                struct group** found));
int FaultyGroup(gid_t group, struct group* entry, char* room, std::size_t size, struct group** found) {
  if (plexel::knowsNobody) return EIO;
  return Next<int(gid_t, struct group*, char*, std::size_t, struct group**)>("getgrgid_r")(group, entry, room, size,
                                                                                           found);
}
PLEXEL_STANDS_FOR("dladdr", int FaultyModule(const void* place, Dl_info* module));
int FaultyModule(const void* place, Dl_info* module) {
  return plexel::knowsNoModule ? 0 : Next<int(const void*, Dl_info*)>("dladdr")(place, module);
}
