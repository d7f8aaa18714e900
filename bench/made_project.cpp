#include "made_project.h"

#include <fstream>

#include "project/pasting.h"

using namespace plexel;

void bench::MakePanel(const std::filesystem::path& directory, std::int64_t count) {
  constexpr std::int64_t row = 200, pitch = 40, size = 36;
  std::ofstream file(directory / "bench.panel");
  file << "[PANEL]\nTitle=Bench\nWidth=" << row * pitch << "\nHeight=" << (count / row + 1) * pitch
       << "\nTargetSystem=Extended\nDeviceType=1\nVantaEnabled=no\n";
  for (std::int64_t number = 0; number < count; ++number) {
    file << "\n[KEY]\nPlace=" << number % row * pitch << ' ' << number / row * pitch << ' ' << size << ' ' << size
         << "\nRadius=4\nLegend=K" << number << "\nLegendSize=9\nElement=K" << number
         << "\nElementType=5\nHardwareNumberButton=" << number + 1 << "\n";
  }
  file << "\n[END]\n";
}

ElementRecord bench::MadeDefinition() {
  ElementRecord record = EmptyDefinition();
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    PressBuffer(record, layer)->Value = {0xFF, 0x14, 0x1C, 0xF0, 0x1C, 0xF0, 0x14, 0xFF};
    PressBuffer(record, layer)->NextValue = 7;
  }
  record.strLayer1PressString = record.strLayer2PressString = record.strLayer3PressString =
      record.strLayer4PressString = "[Ctrl Left+a\u2039\u203A]";
  record.strBaseElementNotes = "start of the machine";
  return record;
}

std::unique_ptr<PanelDocument> bench::MakeProject(const PanelDocument::Site& site, std::int64_t count) {
  MakePanel(site.panelDirectory, count);
  auto document = PanelDocument::New("bench", site);
  for (const PanelDocument::Place& place : document->Places()) Define(*place.element, MadeDefinition());
  document->CarriesPanel(true);
  return document;
}
