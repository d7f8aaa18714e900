#pragma once

#include <cstdint>

#include "forms/form.h"
#include "qt/form_note.h"
#include "services/element_types.h"

namespace plexel {

/// What the editor says under an open dialog, because the dialog itself is silent about it: the room left in each
/// layer, and at the end of the wizard what the element holds.
class FormNotes {
 public:
  /// Nothing for a form that needs no words. To be asked behind every key that a form gets: keys that a layer has no
  /// room for are known by their leaving no trace.
  FormNote Of(Form& form);

 private:
  FormNote Room(Form& form);
  /// Keeps in mind which layer last refused keys.
  void Watch(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer);

  udtTactisBaseElement_ScanCodeInfo record_;
  std::int32_t heldKeys_ = 0;
  std::int32_t refusingLayer_ = 0;  ///< 0 for none
};

}  // namespace plexel
