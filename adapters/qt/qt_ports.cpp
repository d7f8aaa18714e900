#include "qt/qt_ports.h"

#include <QCoreApplication>
#include <utility>

#include "qt/desktop_capture.h"
#include "qt/units.h"

namespace plexel {

float LogicalScreen::TwipsPerPixelX() { return TwipsPerLogicalPixel; }
float LogicalScreen::TwipsPerPixelY() { return TwipsPerLogicalPixel; }

std::int32_t LogicalScreen::DeviceCapability(std::intptr_t, std::int32_t index) {
  constexpr std::int32_t TwipsPerInch = 1440;
  return index == LogicalPixelsX ? TwipsPerInch / static_cast<std::int32_t>(TwipsPerLogicalPixel) : 0;
}

void DesktopVersion::Get(OsVersionRecord& record) { record.platformId = 2; }

void QtEventPump::DoEvents() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  desk_.SyncAll();
}

QtPlatform::Ports::Ports(Registry& userRegistry, HelpViewer& helpViewer, std::unique_ptr<DesktopKeyboard> keyboard)
    : registry(userRegistry), help(helpViewer), keys(hooks), modal(keys), events(modal) {
  if (keyboard) capture = std::make_unique<DesktopCapture>(std::move(keyboard), hooks, keys, modal);
  modal.Watch(capture.get());
}

QtPlatform::Ports::~Ports() { modal.Watch(nullptr); }

}  // namespace plexel
