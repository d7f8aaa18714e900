#include "editor/step_text.h"

#include "editor/texts.h"
#include "qt/units.h"

namespace plexel {

namespace {

struct KindText {
  StepKind kind;
  Text text;
};
constexpr KindText kindTexts[] = {{StepKind::Configure, Text::StepConfigure},
                                  {StepKind::Properties, Text::StepProperties},
                                  {StepKind::Paste, Text::StepPaste},
                                  {StepKind::Swap, Text::StepSwap},
                                  {StepKind::Clear, Text::StepClear},
                                  {StepKind::Notes, Text::StepNotes},
                                  {StepKind::LedFunction, Text::StepLedFunction},
                                  {StepKind::Import, Text::StepImport},
                                  {StepKind::Restore, Text::StepRestore},
                                  {StepKind::Recover, Text::StepRecover},
                                  {StepKind::TakeOver, Text::StepTakeOver},
                                  {StepKind::UsePanel, Text::StepUsePanel}};

}  // namespace

QString StepText(const StepName& name) {
  QString what = name.element.empty() ? Say(Text::StepElements).arg(name.count) : ToQt(name.element);
  for (const KindText& one : kindTexts) {
    if (one.kind != name.kind) continue;
    QString pattern = Say(one.text);
    if (name.element.empty() && name.count == 0) return pattern;  // of the panel alone
    return pattern.contains("%1") ? pattern.arg(what) : pattern + " (" + what + ')';
  }
  return what;
}

}  // namespace plexel
