#include "editor/form_notes.h"

#include "configdialog/frmConfigurationDialog.h"
#include "editor/element_text.h"
#include "editor/layer_room.h"
#include "editor/texts.h"
#include "element/ctlPlexelBaseElement.h"
#include "services/element_types.h"
#include "services/module_state.h"
#include "wizard/frmButtonWizardPage3.h"

namespace plexel {

namespace {

/// Fewer free bytes than any key needs.
constexpr std::int32_t SmallestStroke = 3;

FormNote StoredInElement() {
  const ctlPlexelBaseElement& element = CurrentElement();
  QStringList stored = DefinitionText(element);
  if (stored.isEmpty()) {
    const udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
    for (std::int32_t layer = 1; layer <= LayerCount && stored.isEmpty(); ++layer) {
      if (RoomOf(record, layer).used > 0) stored.append(Say(Text::CodesWithoutText));
    }
  }
  if (stored.isEmpty()) return {Say(Text::NothingStored).toHtmlEscaped(), false};
  return {Say(Text::Stored).arg(stored.join("; ")).toHtmlEscaped(), false};
}

}  // namespace

FormNote FormNotes::Of(Form& form) {
  if (dynamic_cast<frmButtonWizardPage3*>(&form) != nullptr) return StoredInElement();
  if (dynamic_cast<frmConfigurationDialog*>(&form) != nullptr) return Room(form);
  return {};
}

FormNote FormNotes::Room(Form& form) {
  const ctlPlexelBaseElement& element = CurrentElement();
  if (element.ElementType() == Led) return {};
  const udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
  const std::int32_t layer = dynamic_cast<frmConfigurationDialog&>(form).msgScanCodes.Row();
  Watch(record, layer);
  if (refusingLayer_ != 0) {
    return {Say(Text::NoRoom).arg(refusingLayer_).arg(RoomOf(record, refusingLayer_).free).toHtmlEscaped(), true};
  }
  QStringList layers;
  for (std::int32_t one = 1; one <= LayerCount; ++one) {
    const LayerRoom room = RoomOf(record, one);
    QString told = Say(Text::RoomOfLayer).arg(one).arg(room.used).arg(room.free).toHtmlEscaped();
    told.replace(' ', "&nbsp;");
    layers.append(room.free < SmallestStroke ? "<b>" + told + "</b>" : told);
  }
  return {Say(Text::CodeBytes).toHtmlEscaped() + " &nbsp; " + layers.join(" &nbsp;\u00B7&nbsp; "), false};
}

void FormNotes::Watch(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer) {
  const bool recording = IsTrue(Module().bDirectInputActive);
  const std::int32_t held = recording ? Module().lngPressedKeyCount : 0;
  const bool same = record == record_;
  if (!same || !recording || layer != refusingLayer_) refusingLayer_ = 0;
  if (same && recording && heldKeys_ > 0 && held == 0) refusingLayer_ = layer;
  heldKeys_ = held;
  record_ = record;
}

}  // namespace plexel
