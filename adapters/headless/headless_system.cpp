#include "headless/headless_system.h"

namespace plexel {

namespace {
constexpr std::int32_t VersionRecordSize = 148;
}

float HeadlessScreen::TwipsPerPixelX() {
  faults_.Check(Fault::Screen);
  return twipsX_;
}

float HeadlessScreen::TwipsPerPixelY() {
  faults_.Check(Fault::Screen);
  return twipsY_;
}

std::intptr_t HeadlessScreen::CreateInformationContext() {
  faults_.Check(Fault::Screen);
  return ++openContexts_;
}

std::int32_t HeadlessScreen::DeviceCapability(std::intptr_t context, std::int32_t index) {
  faults_.Check(Fault::Screen);
  return context != 0 && index == LogicalPixelsX ? dpi_ : 0;
}

void HeadlessScreen::DeleteContext(std::intptr_t context) {
  if (context != 0) --openContexts_;
}

void HeadlessScreen::TwipsPerPixel(float x, float y) {
  twipsX_ = x;
  twipsY_ = y;
}

void HeadlessVersion::Get(OsVersionRecord& record) {
  faults_.Check(Fault::Version);
  if (record.size == VersionRecordSize) record.platformId = platformId_;
}

void HeadlessHelp::Show(std::intptr_t owner, std::string_view file, std::int32_t command, std::int32_t topic) {
  faults_.Check(Fault::Help);
  shown_.push_back({owner, std::string(file), command, topic});
  if (onShow) onShow(shown_.back());
}

void HeadlessEvents::DoEvents() {
  faults_.Check(Fault::Events);
  ++rounds_;
}

}  // namespace plexel
