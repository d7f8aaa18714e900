#include "qt/x_connection.h"

#include <QtGui/qguiapplication_platform.h>

#include <QGuiApplication>

namespace plexel {

xcb_connection_t* XConnection() {
  const auto* desktop = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return desktop == nullptr ? nullptr : desktop->connection();
}

}  // namespace plexel
