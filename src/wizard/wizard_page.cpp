#include "wizard/wizard_page.h"

#include "platform/platform.h"
#include "services/conversion.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int32_t helpTopic = 1002;
constexpr float DesignTwipsPerPixel = 15;

}  // namespace

void WizardPage::SaveDialogPosition() {
  EndQuietly([this] { StorePositions({{SavedTop, SingleToText(Top())}, {SavedLeft, SingleToText(Left())}}); });
}

void WizardPage::OnAbandoned() { Module().bWizardPageChanging = False; }

void WizardPage::ScaleTitlePicture() {
  EndQuietly([this] {
    if (imgTitlePic.Stretch()) return;
    imgTitlePic.Stretch(true);
    // A picture that has not stretched is as large as its pixels, which take fewer twips on a finer screen.
    Screen& screen = Platform::Current().TheScreen();
    const double width = static_cast<double>(imgTitlePic.Width() * screen.TwipsPerPixelX() / DesignTwipsPerPixel);
    const double height = static_cast<double>(imgTitlePic.Height() * screen.TwipsPerPixelY() / DesignTwipsPerPixel);
    imgTitlePic.Width(static_cast<float>(width * GetDpiScaleFactor()));
    imgTitlePic.Height(static_cast<float>(height * GetDpiScaleFactor() - TitlePictureTrim));
  });
}

void WizardPage::labLimitations_Click() {
  EndQuietly([this] { ShowHelpTopic(reinterpret_cast<std::intptr_t>(this), helpTopic); });
}

void WizardPage::TakeHandedOverLeft() { Left(static_cast<float>(Module().lngDialogLeft)); }

void WizardPage::TakeHandedOverTop() { Top(static_cast<float>(Module().lngDialogTop)); }

}  // namespace plexel
