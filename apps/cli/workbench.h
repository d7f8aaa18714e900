#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/command_error.h"
#include "cli/message_box.h"
#include "cli/open_projects.h"
#include "cli/script_host.h"
#include "component/component.h"
#include "files/parameter_file.h"
#include "forms/form.h"
#include "headless/headless_platform.h"
#include "headless/headless_surroundings.h"
#include "headless/host_window.h"
#include "headless/key_road.h"
#include "keyboard/table_layout.h"

namespace plexel {

/// All that the commands of a script work on: the platform and the surroundings, the elements by name, and what is
/// shown. One at a time.
class Workbench {
 public:
  using Element = std::shared_ptr<ctlPlexelBaseElement>;

  explicit Workbench(Reporter& reporter);
  ~Workbench();

  HeadlessPlatform platform;
  HeadlessSurroundings surroundings{platform};
  Component component{platform, surroundings};
  ScriptHost host;
  KeyRoad keys{platform};
  std::shared_ptr<HostForm> hostForm = std::make_shared<HostForm>();
  OpenProjects projects;

  /// Carries out commands as long as something shown stays open; `open` tells whether it does.
  std::function<void(const std::function<bool()>& open)> runWhile;

  // Surroundings. CommandError for a language or a layout that there is not.
  void UseLanguage(const std::string& name);
  void UseLayout(const std::string& name);

  // Elements. CommandError for a name that is taken, or unknown, and when none is selected.
  void RequireNewName(const std::string& name) const;
  void Add(const Element& element);
  void Select(const std::string& name);
  Element Find(const std::string& name) const;
  void Remove(const std::string& name);
  /// Whether an element is one of these.
  bool Has(const ctlPlexelBaseElement& element) const;
  /// The selected element; whoever calls into it holds on to it.
  Element Selected() const;
  bool HasSelected() const { return !selected_.empty(); }

  // What is shown.
  /// The message box in front, or null.
  MessageBox* Box();
  /// The name of the form or message box in front; empty when nothing is shown.
  std::string FrontName();
  /// The form that the user can act on; CommandError when none is shown or a message box is in front of it.
  Form& Front();
  /// A control of that form by its full name; CommandError for an unknown one.
  Control& FrontControl(const std::string& name);

  void ReportSwallowedKey();

 private:
  void ReportForms();
  void ReportSystem();
  MessageAnswer ShowMessage(const std::string& prompt, std::int32_t style, const std::string& title);

  Reporter& reporter_;
  FileParameterReader parameterFiles_;
  std::unique_ptr<TableLayout> layout_;
  std::map<std::string, Element, std::less<>> elements_;
  std::string selected_;
  std::vector<MessageBox*> boxes_;
};

/// A control as the kind that a command is about; CommandError for another kind.
template <typename Kind>
Kind& As(Control& control, const char* kind) {
  auto* wanted = dynamic_cast<Kind*>(&control);
  if (wanted == nullptr) throw CommandError(control.FullName() + " is no " + kind);
  return *wanted;
}

}  // namespace plexel
