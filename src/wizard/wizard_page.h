#pragma once

#include <cstdint>
#include <string_view>

#include "forms/form.h"

namespace plexel {

/// What the three pages of the button wizard share: size, title picture, title, description, the link to the
/// limitations, the rule above the buttons, the cancel button, and the place that they store.
class WizardPage : public Form {
 public:
  /// Stores top and left where the configuration dialog stores its own, so that both open where the last one closed.
  /// Ends quietly on a failure.
  void SaveDialogPosition();
  /// Fits the title picture to the screen, once. Ends quietly on a failure.
  void ScaleTitlePicture();
  void labLimitations_Click();
  void OnAbandoned() override;

 protected:
  static constexpr float PageWidth = 7425, PageHeight = 5220;  ///< client area, in twips
  static constexpr float Margin = 150;
  static constexpr float ContentLeft = 1875, ContentWidth = PageWidth - Margin - ContentLeft;
  static constexpr float DescriptionTop = 585;
  static constexpr float TitlePictureTrim = 30;
  static constexpr float RuleTop = 4500, RuleHeight = 30;
  static constexpr float ButtonTop = 4665, ButtonWidth = 1275, ButtonHeight = 375, ButtonGap = 90;

  /// `description` is the caption marker of labDescription.
  WizardPage(std::string_view name, std::string_view description, float descriptionHeight);

  /// Puts a button into the row at the bottom, counted from the right: 0 is the last.
  static void PlaceInButtonRow(CommandButton& button, int fromRight);
  /// Gives the help context to the form and to every control made so far.
  void UseHelpContext(std::int32_t context);
  /// Moves the form to where the first page stood when it went forward.
  void TakeHandedOverLeft();
  void TakeHandedOverTop();

  Shape shpBackGround{*this, "shpBackGround"};
  PictureBox imgTitlePic{*this, "imgTitlePic"};
  Label labTitel{*this, "labTitel"};
  Label labDescription{*this, "labDescription"};
  Frame fraDummy{*this, "fraDummy"};
  Label labLimitations{*this, "labLimitations"};
  CommandButton cmdCancel{*this, "cmdCancel"};
};

}  // namespace plexel
