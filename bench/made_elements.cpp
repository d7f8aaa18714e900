#include "made_elements.h"

#include <string>

#include "files/project_file.h"
#include "world.h"

using namespace plexel;

bench::Elements bench::MakeElements(std::int64_t count) {
  World& world = TheWorld();
  Elements elements;
  for (std::int64_t number = 0; number < count; ++number) {
    const auto element = world.component.Create("P" + std::to_string(number), world.host);
    element->ElementType(RectLed);
    element->ZoomFactor(100);
    element->SizeX(40);
    element->SizeY(30);
    element->OriginalPosX(static_cast<std::int32_t>(number % 1000));
    element->TargetSystem("Extended");
    element->HardwareNumberButton(static_cast<std::int32_t>(number));
    element->HardwareNumberLed(static_cast<std::int32_t>(2 * number));
    element->WizardOptions(ManuallyDefined);
    element->KeyDefinedColor(32768);
    element->ShowDefined(True);
    element->LEDTypeLayer1(UserLed);
    if (number % 10 == 0) element->ButtonNotes("Starts the pump when the tank is filled.");
    udtTactisBaseElement_ScanCodeInfo record = element->TactisBaseElementScanCodeBuffer();
    const std::int32_t layers = number % 3 == 0 ? LayerCount : 1;
    for (std::int32_t layer = 1; layer <= layers; ++layer) {
      element->PressKeyDefLayer(layer, "[Ctrl Left+a\u2039]");
      element->ReleaseKeyDefLayer(layer, "[Ctrl Left+a\u203A]");
      PressBuffer(record, layer)->Value = {0xFF, 0x14, 0x1C, 0xFF};
      PressBuffer(record, layer)->NextValue = 3;
      ReleaseBuffer(record, layer)->Value = {0xFF, 0xF0, 0x1C, 0xF0, 0x14, 0xFF};
      ReleaseBuffer(record, layer)->NextValue = 5;
    }
    udtTactisBaseElement_ScanCodeInfo kept = element->TactisBaseElementScanCodeBuffer();
    PutCodes(CodesOf(record), kept);
    element->TactisBaseElementScanCodeBuffer(kept);
    elements.push_back(element);
  }
  return elements;
}
