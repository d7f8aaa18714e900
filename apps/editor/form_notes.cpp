#include "editor/form_notes.h"

#include "configdialog/frmConfigurationDialog.h"
#include "editor/element_text.h"
#include "editor/texts.h"
#include "element/ctlPlexelBaseElement.h"
#include "scancodes/element_codes.h"
#include "services/element_types.h"
#include "services/module_state.h"
#include "wizard/frmButtonWizardPage3.h"

namespace plexel {

namespace {

/// Fewer free bytes than any key needs.
constexpr std::int32_t SmallestStroke = 3;

/// How many more code bytes the layer takes.
std::int32_t FreeBytes(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer) {
  std::int32_t count = 0;
  while (HasRoomForCodes(layer, record, count + 1)) ++count;
  return count;
}

/// The code bytes of a buffer; the end mark ahead of the first group is none of them, nor is any other.
std::int32_t UsedBytes(const udtTactisBaseElement_TACTIS_SCANCODE& buffer) {
  constexpr std::uint8_t endMark = 0xFF;
  std::int32_t count = 0;
  for (std::int32_t index = 1; index <= buffer.NextValue; ++index) {
    if (buffer.Value.at(static_cast<std::size_t>(index)) != endMark) ++count;
  }
  return count;
}

std::int32_t UsedBytes(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer) {
  return UsedBytes(*PressBuffer(record, layer)) + UsedBytes(*ReleaseBuffer(record, layer));
}

FormNote StoredInElement() {
  const ctlPlexelBaseElement& element = CurrentElement();
  QStringList stored = DefinitionText(element);
  if (stored.isEmpty()) {
    const udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
    for (std::int32_t layer = 1; layer <= LayerCount && stored.isEmpty(); ++layer) {
      if (UsedBytes(record, layer) > 0) stored.append(Say(Text::CodesWithoutText));
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
    return {Say(Text::NoRoom).arg(refusingLayer_).arg(FreeBytes(record, refusingLayer_)).toHtmlEscaped(), true};
  }
  QStringList layers;
  for (std::int32_t one = 1; one <= LayerCount; ++one) {
    const std::int32_t left = FreeBytes(record, one);
    QString told = Say(Text::RoomOfLayer).arg(one).arg(UsedBytes(record, one)).arg(left).toHtmlEscaped();
    told.replace(' ', "&nbsp;");
    layers.append(left < SmallestStroke ? "<b>" + told + "</b>" : told);
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
