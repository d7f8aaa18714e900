#include "qt/qt_platform.h"

#include <QCoreApplication>

#include "qt/units.h"
#include "qt/x11_capture.h"

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

QtPlatform::QtPlatform(Registry& registry, HelpViewer& help)
    : registry_(registry),
      help_(help),
      keys_(hooks_),
      modal_(keys_),
      events_(modal_),
      capture_(X11Capture::OnThisDesktop(hooks_, keys_, modal_)) {
  modal_.Watch(capture_.get());
}

QtPlatform::~QtPlatform() { modal_.Watch(nullptr); }

}  // namespace plexel
