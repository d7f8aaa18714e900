#include "forms/form_directory.h"

#include "platform/failure.h"

namespace plexel {

FormDirectory& FormDirectory::Instance() {
  static FormDirectory directory;
  return directory;
}

void FormDirectory::Add(FormName name, Maker maker) { entries_[name].maker = std::move(maker); }

void FormDirectory::ShowModal(FormName name, Window* owner) {
  const auto found = entries_.find(std::string_view(name));
  if (found == entries_.end() || !found->second.maker)
    throw Failure(FailureKind::NoSuchMember, "no form named " + std::string(name));
  Entry& entry = found->second;
  if (entry.open) throw Failure(FailureKind::InvalidCall, std::string(name) + " is shown already");

  struct Closing {
    Entry& entry;
    ~Closing() { entry.open.reset(); }
  };
  const Closing closing{entry};
  entry.open = entry.maker();
  entry.open->ShowModal(owner);
}

std::vector<Form*> FormDirectory::Clear() {
  std::vector<Form*> open;
  for (auto& [name, entry] : entries_) {
    entry.maker = nullptr;
    if (entry.open) open.push_back(entry.open.get());
  }
  return open;
}

Form* FormDirectory::Open(FormName name) const {
  const auto entry = entries_.find(std::string_view(name));
  return entry == entries_.end() ? nullptr : entry->second.open.get();
}

}  // namespace plexel
