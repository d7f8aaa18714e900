#include "wizard/wizard_page.h"

#include "services/conversion.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int32_t helpTopic = 1002;

}  // namespace

void WizardPage::SaveDialogPosition() {
  EndQuietly([this] { StorePositions({{SavedTop, SingleToText(Top())}, {SavedLeft, SingleToText(Left())}}); });
}

void WizardPage::OnAbandoned() { Module().bWizardPageChanging = False; }

void WizardPage::ScaleTitlePicture() {
  EndQuietly([this] {
    if (imgTitlePic.Stretch()) return;
    imgTitlePic.Stretch(true);
    imgTitlePic.Width(static_cast<float>(imgTitlePic.Width() * GetDpiScaleFactor()));
    imgTitlePic.Height(static_cast<float>(imgTitlePic.Height() * GetDpiScaleFactor() - TitlePictureTrim));
  });
}

void WizardPage::labLimitations_Click() {
  EndQuietly([this] { ShowHelpTopic(reinterpret_cast<std::intptr_t>(this), helpTopic); });
}

void WizardPage::TakeHandedOverLeft() { Left(static_cast<float>(Module().lngDialogLeft)); }

void WizardPage::TakeHandedOverTop() { Top(static_cast<float>(Module().lngDialogTop)); }

}  // namespace plexel
