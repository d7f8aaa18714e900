#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/form.h"

namespace plexel {

/// A dialog around one list of texts, from which one goes into the current cell of the configuration dialog's grid. It
/// has the buttons OK (default), Cancel (cancel button) and Help. The list is moved in with Down, Up and Return and is
/// never typed into. Events end quietly on a failure.
class ListDialog : public Form {
 public:
  void cmdCancel_Click();
  void cmdHelp_Click();
  virtual void cmdOK_Click() = 0;

 protected:
  /// The names of a dialog and its controls, the markers of its texts, and its help topic.
  struct Design {
    std::string_view form, caption;
    std::string_view title, titleCaption;
    std::string_view list;
    std::int32_t helpTopic = 0;
  };
  explicit ListDialog(const Design& design);

  /// Puts a picture beside title and list.
  void PlacePicture(PictureBox& box, std::string picture);
  /// Shows the first entry, or nothing when the list is empty.
  void ShowFirstEntry();

  Label title;
  ComboBox list;

 public:
  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"}, cmdHelp{*this, "cmdHelp"};

 private:
  void PlaceControls(float contentLeft);
};

}  // namespace plexel
