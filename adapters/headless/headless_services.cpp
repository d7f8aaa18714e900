#include "headless/headless_services.h"

#include "services/saved_positions.h"
#include "services/setting_table.h"

namespace plexel {

namespace {

constexpr std::int32_t EntryMissing = 1;

std::string Setting(const std::map<std::int32_t, std::string>& settings, std::int32_t number) {
  const auto found = settings.find(number);
  return found == settings.end() ? std::string() : found->second;
}

}  // namespace

void HeadlessLanguage::GetText(std::int32_t number, std::string& text) {
  faults_.Check(Fault::Language);
  if (const auto own = set_.find(number); own != set_.end()) {
    text = own->second;
    return;
  }
  if (source_) {
    texts_ = source_();
    source_ = nullptr;
  }
  const auto found = texts_.find(number);
  text = found == texts_.end() ? std::string() : found->second;
}

void HeadlessLanguage::Source(std::function<Texts()> source) {
  texts_.clear();
  source_ = std::move(source);
}

HeadlessSettings::HeadlessSettings(Faults& faults, const MemoryRegistry& registry)
    : faults_(faults), registry_(registry) {
  for (const SettingRow& row : SettingTable) {
    if (!row.isSwitch) parameters_[row.number] = std::to_string(row.initial);
  }
}

void HeadlessSettings::GetBasePath(std::string& text) {
  faults_.Check(Fault::Settings);
  text = basePath_;
}

void HeadlessSettings::GetLanguageName(std::string& text) {
  faults_.Check(Fault::Settings);
  text = languageName_;
}

void HeadlessSettings::GetOption(std::int32_t number, Boolean& value) {
  faults_.Check(Fault::Settings);
  const auto found = options_.find(number);
  value = found == options_.end() ? False : found->second;
}

void HeadlessSettings::GetParameter(std::int32_t number, std::string& text) {
  faults_.Check(Fault::Settings);
  text = Setting(parameters_, number);
}

void HeadlessSettings::GetWindowPosition(std::int32_t number, std::string& text) {
  faults_.Check(Fault::Settings);
  text = Setting(positions_, number);
  if (positions_.contains(number)) return;
  const PositionRow* row = FindPosition(number);
  if (row == nullptr) return;
  const std::string* stored = registry_.Find(row->name);
  text = stored != nullptr ? *stored : std::string(row->initial);
}

std::int32_t HeadlessCapabilities::Ask(Capability query, std::string_view targetSystem) {
  faults_.Check(Fault::Capability);
  const auto own = answers_.find({std::string(targetSystem), query});
  if (own != answers_.end()) return own->second;
  const auto all = answers_.find({"*", query});
  return all == answers_.end() ? 0 : all->second;
}

void HeadlessParameterFiles::SetDelimiter(std::string_view delimiter) {
  faults_.Check(Fault::ParameterFiles);
  if (reader_ != nullptr) reader_->SetDelimiter(delimiter);
}

void HeadlessParameterFiles::ReadEntry(std::string_view file, std::string_view section, std::string_view name,
                                       std::string& value, std::int32_t reserved, std::int32_t& status) {
  faults_.Check(Fault::ParameterFiles);
  status = EntryMissing;
  if (reader_ != nullptr) reader_->ReadEntry(file, section, name, value, reserved, status);
}

void HeadlessParameterFiles::GetItem(std::int32_t index, const std::string& value, std::string& text) {
  faults_.Check(Fault::ParameterFiles);
  text.clear();
  if (reader_ != nullptr) reader_->GetItem(index, value, text);
}

}  // namespace plexel
