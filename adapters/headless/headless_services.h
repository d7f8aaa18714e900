#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "headless/faults.h"
#include "headless/memory_registry.h"
#include "services/surroundings.h"

namespace plexel {

/// Language texts from a source that is asked at the first question, with single texts set over it.
class HeadlessLanguage : public LanguageService {
 public:
  /// Texts by number.
  using Texts = std::map<std::int32_t, std::string>;
  /// The faults outlive it.
  explicit HeadlessLanguage(Faults& faults) : faults_(faults) {}
  void GetText(std::int32_t number, std::string& text) override;

  /// The source of the texts; single texts stay set.
  void Source(std::function<Texts()> source);
  /// Sets a single text.
  void Set(std::int32_t number, std::string text) { set_[number] = std::move(text); }

 private:
  Faults& faults_;
  std::function<Texts()> source_;
  Texts texts_, set_;
};

/// Settings in memory. Options are off and parameters as the table of settings begins unless set. Positions come from
/// what was set, else from the registry, else from the defaults.
class HeadlessSettings : public SettingsService {
 public:
  /// The faults and the registry outlive it.
  HeadlessSettings(Faults& faults, const MemoryRegistry& registry);
  void GetBasePath(std::string& text) override;
  void GetLanguageName(std::string& text) override;
  void GetOption(std::int32_t number, Boolean& value) override;
  void GetParameter(std::int32_t number, std::string& text) override;
  void GetWindowPosition(std::int32_t number, std::string& text) override;

  /// Sets an answer. Options are false and positions those of the registry or the defaults until they are set.
  void BasePath(std::string value) { basePath_ = std::move(value); }
  void LanguageName(std::string value) { languageName_ = std::move(value); }
  void Option(std::int32_t number, Boolean value) { options_[number] = value; }
  void Parameter(std::int32_t number, std::string value) { parameters_[number] = std::move(value); }
  void Position(std::int32_t number, std::string value) { positions_[number] = std::move(value); }

 private:
  Faults& faults_;
  const MemoryRegistry& registry_;
  std::string basePath_, languageName_ = "English";
  std::map<std::int32_t, Boolean> options_;
  std::map<std::int32_t, std::string> parameters_;
  std::map<std::int32_t, std::string> positions_;
};

/// Answers of the capability service by target and query; a target "*" stands for every target without an answer of its
/// own. 0 unless set.
class HeadlessCapabilities : public CapabilityService {
 public:
  /// The faults outlive it.
  explicit HeadlessCapabilities(Faults& faults) : faults_(faults) {}
  std::int32_t Ask(Capability query, std::string_view targetSystem) override;
  /// Sets an answer.
  void Set(std::string target, Capability query, std::int32_t value) { answers_[{std::move(target), query}] = value; }

 private:
  Faults& faults_;
  std::map<std::pair<std::string, Capability>, std::int32_t> answers_;
};

/// A parameter file reader given from outside; without one every entry is missing.
class HeadlessParameterFiles : public ParameterFileReader {
 public:
  /// The faults outlive it.
  explicit HeadlessParameterFiles(Faults& faults) : faults_(faults) {}
  void SetDelimiter(std::string_view delimiter) override;
  void ReadEntry(std::string_view file, std::string_view section, std::string_view name, std::string& value,
                 std::int32_t reserved, std::int32_t& status) override;
  void GetItem(std::int32_t index, const std::string& value, std::string& text) override;
  /// The reader must outlive this object.
  void Use(ParameterFileReader& reader) { reader_ = &reader; }

 private:
  Faults& faults_;
  ParameterFileReader* reader_ = nullptr;
};

}  // namespace plexel
