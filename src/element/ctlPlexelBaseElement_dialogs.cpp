#include "element/ctlPlexelBaseElement.h"

#include <array>
#include <memory>
#include <string>

#include "forms/form_directory.h"
#include "platform/clean_up.h"
#include "platform/platform.h"
#include "services/code_limit.h"
#include "services/dialogs.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// A text for the user; what cannot be fetched stays empty.
std::string TextOrNothing(std::int32_t number) {
  std::string text;
  PassOver([&] { text = GetText(number); });
  return text;
}

MessageAnswer AskBeforeWizard() {
  struct Paragraph {
    std::int32_t text;
    std::string_view breaks;  ///< behind the paragraph
  };
  constexpr auto paragraphs = std::to_array<Paragraph>({{2403, "\r\n\r\n\r\n"},
                                                        {2404, "\r\n\r\n"},
                                                        {2405, "\r\n\r\n"},
                                                        {2406, "\r\n\r\n"},
                                                        {2407, "\r\n\r\n\r\n"},
                                                        {2408, ""}});
  constexpr std::int32_t titleText = 6002;
  std::string prompt;
  for (const Paragraph& paragraph : paragraphs) prompt.append(TextOrNothing(paragraph.text)).append(paragraph.breaks);
  const std::string title = TextOrNothing(titleText);

  MessageAnswer answer = MessageAnswer::None;
  PassOver([&] {
    constexpr std::int32_t style = MessageBoxes::StyleYesNoCancel + MessageBoxes::StyleCritical;
    answer = Platform::Current().Messages().Show(prompt, style, title);
  });
  return answer;
}

}  // namespace

void ctlPlexelBaseElement::ShowForm(FormName form) {
  const std::shared_ptr<HostObject> owner = ParentWindow();
  FormDirectory::Instance().ShowModal(form, owner != nullptr ? owner->AsForm() : nullptr);
}

void ctlPlexelBaseElement::ShowDialog(FormName form) {
  mbDialogOpen_ = True;
  const AtEnd closed([this] { mbDialogOpen_ = False; });
  PassOver([&] { ShowForm(form); });
}

void ctlPlexelBaseElement::ShowWizard() {
  ShowDialog(ElementType() == Led ? dialogs::frmButtonWizardPage2 : dialogs::frmButtonWizardPage1);
}

void ctlPlexelBaseElement::ShowChosenDialog() {
  if (WizardOn() == False) {
    ShowDialog(dialogs::frmConfigurationDialog);
  } else if (WizardOptions() != ManuallyDefined || IsDefinitionEmpty()) {
    ShowWizard();
  } else {
    const MessageAnswer answer = AskBeforeWizard();
    if (answer == MessageAnswer::Yes) ShowDialog(dialogs::frmConfigurationDialog);
    if (answer == MessageAnswer::No) ShowWizard();
  }
}

void ctlPlexelBaseElement::OpenConfigurationDialog() {
  const auto self = shared_from_this();  // the host may let the element go while the dialog is open
  if (IsTrue(mbDialogOpen_)) return;
  if (!ComponentLives()) throw Failure(FailureKind::ObjectNotSet, "the element's component has ended");
  Module().udtSavedScanCodeInfo = TactisBaseElementScanCodeBuffer();
  if (ElementType() == Key) return;
  BecomeCurrent();
  Module().lngMaxScanCodes = MaxScanCodesFor(CurrentElement().VantaEnabled());
  ShowChosenDialog();
  PassOver([&] { SendKeyDefinition(); });
}

void ctlPlexelBaseElement::OpenPropertiesDialog() {
  EndQuietly([&] {
    const auto self = shared_from_this();
    if (BecomeCurrent()) ShowForm(dialogs::frmPropertiesButton);
  });
}

}  // namespace plexel
