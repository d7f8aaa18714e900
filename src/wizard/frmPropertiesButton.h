#pragma once

#include <cstdint>
#include <deque>
#include <string>

#include "forms/form.h"

namespace plexel {

/// The read-only dialog of an element's hardware numbers. It has no buttons and changes nothing.
class frmPropertiesButton : public Form {
 public:
  static constexpr std::int32_t Rows = 8;

  frmPropertiesButton();

  /// Ends quietly at the first step that fails, with what was filled up to then.
  void OnLoad() override;

  /// Shows one row, 0 to 7. Ends quietly on a failure.
  void ShowPropertyRow(std::int32_t lngRow, const std::string& strDescription, std::int32_t lngNumber);

 private:
  void Design();
  void ShowKind(const std::string& picture, std::int32_t title);
  void ShowElement();
  void ShowKeyNumbers();

  TabStrip SSTab1{*this, "SSTab1", 1};
  PictureBox imgProperty{*this, "imgProperty"};
  Label labTitel{*this, "labTitel"};
  Frame fraDummy{*this, "fraDummy"};
  std::deque<Label> labNumberDescription, labHardwareNumber;
  ImageList ilsImageList{*this, "ilsImageList"};
};

}  // namespace plexel
