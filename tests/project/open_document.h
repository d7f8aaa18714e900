#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "files/data_directory.h"
#include "project/panel_document.h"
#include "world/world.h"

namespace plexel {

/// A new project on the large panel, in memory.
class OpenDocument : public ::testing::Test {
 protected:
  PanelDocument::Site Site() {
    return {world.component, world.host, std::make_shared<HostForm>(), DataDirectory() / "panels"};
  }
  std::size_t PlaceOf(const std::string& id) {
    for (std::size_t place = 0; place < document->Places().size(); ++place) {
      if (document->Places()[place].element->Name() == id) return place;
    }
    throw std::logic_error("no element " + id);
  }
  ctlPlexelBaseElement& Element(const std::string& id) { return *document->Places()[PlaceOf(id)].element; }
  /// One step on elements.
  void Change(std::initializer_list<const char*> ids, const std::function<void()>& act,
              StepKind kind = StepKind::Configure) {
    std::vector<std::size_t> places;
    for (const char* const id : ids) places.push_back(PlaceOf(id));
    document->Change(kind, places, act);
  }
  /// Gives an element bytes that no text tells.
  void PutBytes(const std::string& id, std::initializer_list<std::uint8_t> bytes) {
    udtTactisBaseElement_ScanCodeInfo record = Element(id).TactisBaseElementScanCodeBuffer();
    std::size_t index = 0;
    for (const std::uint8_t byte : bytes) record.strLayer2ReleaseScanCode.Value[index++] = byte;
    record.strLayer2ReleaseScanCode.NextValue = static_cast<std::int32_t>(index) - 1;
    Element(id).TactisBaseElementScanCodeBuffer(record);
  }

  World world;
  std::unique_ptr<PanelDocument> document = PanelDocument::New("Large", Site());
};

}  // namespace plexel
