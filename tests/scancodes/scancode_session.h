#pragma once

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/form_directory.h"
#include "scancodes/key_translation.h"
#include "scancodes/stand_in_dialogs.h"
#include "services/code_page.h"
#include "services/dialogs.h"
#include "world/world.h"

namespace plexel {

/// A world with one current element and stand-ins for the dialogs that the procedures work on.
///
/// A layer takes 43 codes; the grid check is on.
class ScanCodeSession : public World {
 public:
  ScanCodeSession() {
    element->ElementType(Rect);
    element->TargetSystem("PANEL");
    Module().ctlCurrentElement = element;
    Module().lngMaxScanCodes = 43;
    Module().lngOsFamily = 1;
    surroundings.Settings().Option(1, True);
    Speak();
    host.Forget();
    FormDirectory::Instance().Add(dialogs::frmConfigurationDialog,
                                  [] { return std::make_unique<StandInConfigurationDialog>(); });
    FormDirectory::Instance().Add(dialogs::frmButtonWizardPage1, [] { return std::make_unique<StandInWizardPage>(); });
    platform.Modal().onRun = [this](Form& form) {
      const auto act = std::move(acts_.back());
      acts_.back() = [](Form& forgotten) { forgotten.Unload(); };
      act(form);
    };
  }
  ScanCodeSession(const ScanCodeSession&) = delete;
  ScanCodeSession& operator=(const ScanCodeSession&) = delete;

  /// Shows a form, acts on it once, and closes it if the act has not.
  template <typename Dialog>
  void Show(FormName name, const std::function<void(Dialog&)>& act) {
    acts_.emplace_back([&act](Form& form) {
      act(dynamic_cast<Dialog&>(form));
      form.Unload();
    });
    FormDirectory::Instance().ShowModal(name, nullptr);
    acts_.pop_back();
  }
  void InConfigurationDialog(const std::function<void(StandInConfigurationDialog&)>& act) {
    Show<StandInConfigurationDialog>(dialogs::frmConfigurationDialog, act);
  }
  void InWizard(const std::function<void(StandInWizardPage&)>& act) {
    Show<StandInWizardPage>(dialogs::frmButtonWizardPage1, act);
  }

  udtTactisBaseElement_ScanCodeInfo Record() { return element->TactisBaseElementScanCodeBuffer(); }

  std::shared_ptr<ctlPlexelBaseElement> element = component.Create("Key1", host);

 private:
  std::vector<std::function<void(Form&)>> acts_;
};

/// Bytes in hexadecimal with blanks between them.
inline std::string Hex(const std::vector<int>& bytes) {
  std::string text;
  for (const int byte : bytes) {
    char two[12];
    std::snprintf(two, sizeof two, "%02X", static_cast<unsigned>(byte));
    text += (text.empty() ? "" : " ") + std::string(two);
  }
  return text;
}

/// The bytes of a buffer from index 0 to NextValue.
inline std::string Used(const udtTactisBaseElement_TACTIS_SCANCODE& buffer) {
  return Hex({buffer.Value.begin(), buffer.Value.begin() + buffer.NextValue + 1});
}

/// The first codes of a sequence, whatever its length.
inline std::string First(std::int32_t count, const CodeSequence& sequence) {
  return Hex({sequence.codes.begin(), sequence.codes.begin() + count});
}

/// The codes that count.
inline std::string Counted(const CodeSequence& sequence) { return First(sequence.length, sequence); }

inline CodeSequence Sequence(const std::vector<int>& codes) {
  CodeSequence sequence;
  for (const int code : codes) sequence.Append(code);
  return sequence;
}

/// A sequence that tells nothing by its codes, all the same.
inline CodeSequence Filled(std::int32_t code, std::int32_t length) {
  CodeSequence sequence;
  sequence.codes.fill(code);
  sequence.length = length;
  return sequence;
}

/// A buffer in the state of a new element.
inline udtTactisBaseElement_TACTIS_SCANCODE InitialBuffer() {
  udtTactisBaseElement_TACTIS_SCANCODE buffer;
  std::fill_n(buffer.Value.begin(), 45, std::uint8_t{0xFF});
  return buffer;
}

inline const std::string M{chrMakeMark}, B{chrBreakMark};

}  // namespace plexel
