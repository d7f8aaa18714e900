#include "activex/registration.h"

#include <PlexelBaseElement.h>
#include <comcat.h>

#include <string>
#include <vector>

#include "activex/class_facts.h"
#include "activex/com_pointer.h"
#include "activex/guard.h"
#include "activex/module.h"

namespace plexel::activex {

namespace {

constexpr const wchar_t* Classes = L"Software\\Classes";
/// The system's own way to carry calls of such interfaces to other threads.
constexpr const wchar_t* Carrier = L"{00020424-0000-0000-C000-000000000046}";
#ifdef _WIN64
constexpr const wchar_t* Bitness = L"win64";
#else
constexpr const wchar_t* Bitness = L"win32";
#endif

/// A value that stands in a key of its own or under a name in one.
struct Entry {
  std::wstring key;
  std::wstring name;  ///< empty for the key's own value
  std::wstring value;
};

std::wstring TextOf(REFGUID id) {
  std::wstring text(39, L'\0');
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  text.pop_back();
  return text;
}

void AddClass(std::vector<Entry>& entries, const std::wstring& file, const std::wstring& library) {
  const std::wstring id = TextOf(__uuidof(::ctlPlexelBaseElement)), root = L"CLSID\\" + id;
  const std::wstring status = std::to_wstring(class_facts::MiscStatus);
  entries.insert(entries.end(), {{class_facts::ProgId, L"", class_facts::Name},
                                 {class_facts::ProgId + std::wstring(L"\\CLSID"), L"", id},
                                 {class_facts::AnyProgId, L"", class_facts::Name},
                                 {class_facts::AnyProgId + std::wstring(L"\\CLSID"), L"", id},
                                 {class_facts::AnyProgId + std::wstring(L"\\CurVer"), L"", class_facts::ProgId},
                                 {root, L"", class_facts::Name},
                                 {root + L"\\InprocServer32", L"", file},
                                 {root + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
                                 {root + L"\\ProgID", L"", class_facts::ProgId},
                                 {root + L"\\VersionIndependentProgID", L"", class_facts::AnyProgId},
                                 {root + L"\\TypeLib", L"", library},
                                 {root + L"\\Version", L"", class_facts::Version},
                                 {root + L"\\Control", L"", L""},
                                 {root + L"\\Implemented Categories\\" + TextOf(CATID_Control), L"", L""},
                                 {root + L"\\MiscStatus", L"", L"0"},
                                 {root + L"\\MiscStatus\\1", L"", status},
                                 {root + L"\\ToolboxBitmap32", L"", file + L", 1"}});
}

void AddLibrary(std::vector<Entry>& entries, const std::wstring& file, const std::wstring& library) {
  const std::wstring root = L"TypeLib\\" + library + L"\\" + class_facts::Version;
  entries.insert(entries.end(), {{root, L"", L"Keys and LEDs of operator panels"},
                                 {root + L"\\FLAGS", L"", L"0"},
                                 {root + L"\\0\\" + Bitness, L"", file}});
}

void AddInterface(std::vector<Entry>& entries, REFIID id, const wchar_t* name, const std::wstring& library) {
  const std::wstring root = L"Interface\\" + TextOf(id);
  entries.insert(entries.end(), {{root, L"", name},
                                 {root + L"\\ProxyStubClsid32", L"", Carrier},
                                 {root + L"\\TypeLib", L"", library},
                                 {root + L"\\TypeLib", L"Version", class_facts::Version}});
}

std::wstring LibraryId() {
  const ComPointer<ITypeLib> library = module::TypeLibrary();
  if (!library) throw ResultError(TYPE_E_CANTLOADLIBRARY);
  TLIBATTR* attributes = nullptr;
  Check(library->GetLibAttr(&attributes));
  const GUID id = attributes->guid;
  library->ReleaseTLibAttr(attributes);
  return TextOf(id);
}

std::vector<Entry> Entries() {
  const std::wstring file = module::File().native(), library = LibraryId();
  std::vector<Entry> entries;
  AddLibrary(entries, file, library);
  AddInterface(entries, __uuidof(_ctlPlexelBaseElement), L"_ctlPlexelBaseElement", library);
  AddInterface(entries, __uuidof(__ctlPlexelBaseElement), L"__ctlPlexelBaseElement", library);
  AddInterface(entries, __uuidof(IPlexelLanguage), L"IPlexelLanguage", library);
  AddInterface(entries, __uuidof(IPlexelSettings), L"IPlexelSettings", library);
  AddInterface(entries, __uuidof(IPlexelCapabilities), L"IPlexelCapabilities", library);
  AddClass(entries, file, library);
  return entries;
}

HKEY RootOf(RegisteredFor whom) {
  return whom == RegisteredFor::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;  // NOLINT: the system's macros cast
}

/// A key of the registry while it is open.
class Key {
 public:
  Key(HKEY parent, const std::wstring& path, REGSAM access) {
    result_ = RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, access, nullptr, &key_, nullptr);
  }
  ~Key() {
    if (key_ != nullptr) RegCloseKey(key_);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  LSTATUS Result() const { return result_; }
  HKEY Get() const { return key_; }

 private:
  HKEY key_ = nullptr;
  LSTATUS result_;
};

LSTATUS Write(HKEY classes, const Entry& entry) {
  const Key key(classes, entry.key, KEY_WRITE);
  if (key.Result() != ERROR_SUCCESS) return key.Result();
  const auto bytes = static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t));
  return RegSetValueExW(key.Get(), entry.name.empty() ? nullptr : entry.name.c_str(), 0, REG_SZ,
                        reinterpret_cast<const BYTE*>(entry.value.c_str()), bytes);
}

/// Whether nothing stands in a key any more but its own value, which goes with it.
bool IsEmpty(HKEY classes, const std::wstring& path) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(classes, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  DWORD keys = 0, values = 0;
  RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr, nullptr,
                   nullptr);
  const bool own = RegQueryValueExW(key, nullptr, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
  RegCloseKey(key);
  return keys == 0 && values == (own ? 1U : 0U);
}

/// Takes a key away, and those above it as long as they are empty.
void Remove(HKEY classes, std::wstring path) {
  while (IsEmpty(classes, path) && RegDeleteKeyW(classes, path.c_str()) == ERROR_SUCCESS) {
    const std::size_t end = path.rfind(L'\\');
    if (end == std::wstring::npos) return;
    path.resize(end);
  }
}

}  // namespace

bool MayRegisterForMachine() {
  HKEY key = nullptr;
  if (RegOpenKeyExW(RootOf(RegisteredFor::Machine), Classes, 0, KEY_WRITE, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

HRESULT Register(RegisteredFor whom) {
  return Guarded("Register", [&] {
    const Key classes(RootOf(whom), Classes, KEY_WRITE | KEY_READ);
    if (classes.Result() != ERROR_SUCCESS) return HRESULT_FROM_WIN32(static_cast<DWORD>(classes.Result()));
    for (const Entry& entry : Entries()) {
      const LSTATUS result = Write(classes.Get(), entry);
      if (result != ERROR_SUCCESS) return HRESULT_FROM_WIN32(static_cast<DWORD>(result));
    }
    return S_OK;
  });
}

HRESULT Unregister(RegisteredFor whom) {
  return Guarded("Unregister", [&] {
    HKEY classes = nullptr;
    const LSTATUS result = RegOpenKeyExW(RootOf(whom), Classes, 0, KEY_WRITE | KEY_READ, &classes);
    if (result != ERROR_SUCCESS)
      return result == ERROR_FILE_NOT_FOUND ? S_OK : HRESULT_FROM_WIN32(static_cast<DWORD>(result));
    const std::vector<Entry> entries = Entries();
    for (const Entry& entry : entries) {
      HKEY key = nullptr;
      if (entry.name.empty() || RegOpenKeyExW(classes, entry.key.c_str(), 0, KEY_WRITE, &key) != ERROR_SUCCESS)
        continue;
      RegDeleteValueW(key, entry.name.c_str());
      RegCloseKey(key);
    }
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) Remove(classes, entry->key);
    RegCloseKey(classes);
    return S_OK;
  });
}

}  // namespace plexel::activex
