#include "cli/workbench.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "cli/values_json.h"
#include "files/data_directory.h"
#include "files/file_error.h"
#include "files/file_lists.h"
#include "files/language_file.h"
#include "files/path_text.h"
#include "files/text_lines.h"
#include "forms/ascii.h"
#include "keyboard/named_layout.h"

namespace plexel {

namespace {

constexpr const char* InitialLanguage = "English";
constexpr const char* InitialLayout = "us";

std::filesystem::path LanguageDirectory() { return DataDirectory() / "languages"; }

LanguageTexts InitialTexts() {
  try {
    return ReadLanguageFile(LanguageDirectory() / (InitialLanguage + std::string(LanguageExtension)));
  } catch (const FileError& error) {
    throw Failure(FailureKind::Platform, error.what());
  }
}

/// The file of a language, whose name may be written in any case.
std::filesystem::path LanguageFile(const std::string& name) {
  std::error_code error;
  for (const std::filesystem::path& file : FilesWith(LanguageExtension, LanguageDirectory(), error)) {
    if (ascii::Same(TextOf(file.stem()), name)) return file;
  }
  throw CommandError("no language is named " + Excerpt(name));
}

const char* HookName(HookKind kind) { return kind == HookKind::Keyboard ? "keyboard" : "lowlevel"; }

}  // namespace

Workbench::Workbench(Reporter& reporter) : host(platform.faults, reporter), reporter_(reporter) {
  surroundings.Settings().BasePath(TextOf(DataDirectory()));
  surroundings.Settings().LanguageName(InitialLanguage);
  surroundings.Language().Source(InitialTexts);
  surroundings.ParameterFiles().Use(parameterFiles_);
  layout_ = NamedLayout(InitialLayout);
  platform.Layout().Use(*layout_);
  ReportForms();
  ReportSystem();
}

Workbench::~Workbench() {
  host.TraceNotices(false);  // behind the last answer nothing is reported
  for (const auto& [name, element] : elements_) {
    element->UserControl_Terminate();
    element->Detach();
  }
}

void Workbench::UseLanguage(const std::string& name) {
  LanguageTexts texts = ReadLanguageFile(LanguageFile(name));
  surroundings.Language().Source([texts = std::move(texts)] { return texts; });
  surroundings.Settings().LanguageName(name);
}

void Workbench::UseLayout(const std::string& name) {
  auto layout = NamedLayout(name);
  layout->Load();
  platform.Layout().Use(*layout);
  layout_ = std::move(layout);
}

void Workbench::RequireNewName(const std::string& name) const {
  if (name.empty()) throw CommandError("an element needs a name");
  if (elements_.contains(name)) throw CommandError("there is an element " + Excerpt(name) + " already");
}

void Workbench::Add(const Element& element) {
  elements_[element->Name()] = element;
  selected_ = element->Name();
}

Workbench::Element Workbench::Find(const std::string& name) const {
  const auto found = elements_.find(name);
  if (found == elements_.end()) throw CommandError("there is no element " + Excerpt(name));
  return found->second;
}

void Workbench::Select(const std::string& name) { selected_ = Find(name)->Name(); }

void Workbench::Remove(const std::string& name) {
  elements_.erase(name);
  if (selected_ == name) selected_.clear();
}

bool Workbench::Has(const ctlPlexelBaseElement& element) const {
  const auto found = elements_.find(element.Name());
  return found != elements_.end() && found->second.get() == &element;
}

Workbench::Element Workbench::Selected() const {
  if (!HasSelected()) throw CommandError("no element is selected");
  return Find(selected_);
}

MessageBox* Workbench::Box() {
  if (boxes_.empty() || boxes_.back()->formsBelow < platform.Modal().Shown().size()) return nullptr;
  return boxes_.back();
}

std::string Workbench::FrontName() {
  if (Box() != nullptr) return "MessageBox";
  const Form* form = platform.Modal().Topmost();
  return form == nullptr ? std::string() : form->Name();
}

Form& Workbench::Front() {
  if (Box() != nullptr) throw CommandError("a message box is open and waits for its answer");
  if (platform.Modal().Topmost() == nullptr) throw CommandError("no form is shown");
  return *platform.Modal().Topmost();
}

Control& Workbench::FrontControl(const std::string& name) {
  Form& form = Front();
  Control* control = form.Find(name);
  if (control == nullptr) throw CommandError(form.Name() + " has no control " + Excerpt(name));
  return *control;
}

void Workbench::ReportSwallowedKey() {
  Json report;
  report["swallowed"] = true;
  reporter_.Report(report);
}

void Workbench::ReportForms() {
  HeadlessModalLoop& modal = platform.Modal();
  modal.onShown = [this](Form& form, Window* owner) {
    Json report;
    report["shown"] = form.Name();
    report["owner"] = owner == nullptr ? Json() : Json(owner->WindowName());
    reporter_.Report(report);
  };
  modal.onRun = [this](Form& form) { runWhile([&form] { return form.IsShown(); }); };
  modal.onClosed = [this](Form& form) {
    Json report;
    report["unloaded"] = form.Name();
    reporter_.Report(report);
  };
  modal.onPopup = [this](Form&, MenuItem& menu, bool placed, float x, float y) {
    Json report;
    report["popup"] = menu.FullName();
    if (placed) {
      report["x"] = NumberToJson(x);
      report["y"] = NumberToJson(y);
    }
    reporter_.Report(report);
  };
  platform.Messages().onShow = [this](const std::string& prompt, std::int32_t style, const std::string& title) {
    return ShowMessage(prompt, style, title);
  };
}

void Workbench::ReportSystem() {
  platform.Help().onShow = [this](const HeadlessHelp::Topic& topic) {
    Json report;
    report["help"]["file"] = topic.file;
    report["help"]["topic"] = topic.topic;
    reporter_.Report(report);
  };
  platform.Hooks().onChange = [this](HookKind kind, bool installed) {
    Json report;
    report["hook"] = HookName(kind);
    report["installed"] = installed;
    reporter_.Report(report);
  };
}

MessageAnswer Workbench::ShowMessage(const std::string& prompt, std::int32_t style, const std::string& title) {
  Json report;
  report["message"]["prompt"] = prompt;
  report["message"]["title"] = title;
  report["message"]["style"] = style;
  reporter_.Report(report);

  MessageBox box{prompt, title, style, platform.Modal().Shown().size(), std::nullopt};
  struct Opened {
    std::vector<MessageBox*>& boxes;
    ~Opened() { boxes.pop_back(); }
  };
  boxes_.push_back(&box);
  const Opened opened{boxes_};
  runWhile([&box] { return !box.answer.has_value(); });
  return *box.answer;
}

}  // namespace plexel
