#include "editor/editor_host.h"

#include <QStringList>

#include "element/ctlPlexelBaseElement.h"
#include "qt/units.h"

namespace plexel {

namespace {

QString Quoted(const std::string& text) { return '"' + ToQt(text) + '"'; }

}  // namespace

void EditorHost::Tell(const ctlPlexelBaseElement& element, Text words, const char* event, const QString& arguments) {
  const QString name = ToQt(element.Name());
  if (onEvent) onEvent(Say(words).arg(name), name + ": " + event + '(' + arguments + ')');
}

void EditorHost::PropertyChanged(ctlPlexelBaseElement& element, const Notice&) {
  if (onChanged) onChanged(element);
}

Boolean EditorHost::CheckIfLedIsAlreadyDefined(std::int32_t& LEDType, std::int32_t& Layer) {
  return ledIsDefined && ledIsDefined(LEDType, Layer);
}

void EditorHost::DirectInputStatusChanged(ctlPlexelBaseElement& element, Boolean& bDirectInputStatus) {
  const bool begins = IsTrue(bDirectInputStatus);
  Tell(element, begins ? Text::EventRecording : Text::EventRecorded, "DirectInputStatusChanged",
       QString::number(bDirectInputStatus.Value()));
}

void EditorHost::SendKeyDefinition(ctlPlexelBaseElement& element, KeyDefinition& definition) {
  QStringList arguments;
  for (const std::string* text :
       {&definition.strLayer1Press, &definition.strLayer1Release, &definition.strLayer2Press,
        &definition.strLayer2Release, &definition.strLayer3Press, &definition.strLayer3Release,
        &definition.strLayer4Press, &definition.strLayer4Release}) {
    arguments.append(Quoted(*text));
  }
  for (const std::int32_t type :
       {definition.LEDTypeLayer1, definition.LEDTypeLayer2, definition.LEDTypeLayer3, definition.LEDTypeLayer4}) {
    arguments.append(QString::number(type));
  }
  Tell(element, Text::EventHandedOver, "SendKeyDefinition", arguments.join(", "));
}

void EditorHost::MouseClicked(ctlPlexelBaseElement& element, std::int16_t& Button, std::int16_t& Shift, float& x,
                              float& Y) {
  const QStringList arguments = {QString::number(Button), QString::number(Shift),
                                 QString::number(static_cast<double>(x)), QString::number(static_cast<double>(Y))};
  Tell(element, Text::EventClicked, "MouseClicked", arguments.join(", "));
}

void EditorHost::MouseDblClicked(ctlPlexelBaseElement& element) {
  Tell(element, Text::EventDoubleClicked, "MouseDblClicked", QString());
  if (onDoubleClick) onDoubleClick(element);
}

void EditorHost::ProjectModified(ctlPlexelBaseElement& element) {
  Tell(element, Text::EventModified, "ProjectModified", QString());
}

}  // namespace plexel
