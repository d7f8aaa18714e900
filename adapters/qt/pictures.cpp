#include "qt/pictures.h"

#include <QLoggingCategory>
#include <QSvgRenderer>
#include <map>
#include <memory>

#include "files/data_directory.h"

namespace plexel {

namespace {

QSvgRenderer& Renderer(const std::string& name) {
  static std::map<std::string, std::unique_ptr<QSvgRenderer>> renderers;
  std::unique_ptr<QSvgRenderer>& renderer = renderers[name];
  if (renderer) return *renderer;
  const QString file = QString::fromStdString((DataDirectory() / "pictures" / (name + ".svg")).string());
  renderer = std::make_unique<QSvgRenderer>(file);
  if (!renderer->isValid()) qWarning("%s: the picture cannot be read", qUtf8Printable(file));
  return *renderer;
}

}  // namespace

QSize PictureSize(const std::string& name) { return name.empty() ? QSize() : Renderer(name).defaultSize(); }

void DrawPicture(QPainter& painter, const std::string& name, const QRectF& target) {
  if (!name.empty() && Renderer(name).isValid()) Renderer(name).render(&painter, target);
}

QPixmap PicturePixmap(const std::string& name, const QSize& size, qreal ratio) {
  QPixmap pixmap(size * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const QSize natural = PictureSize(name);
  if (natural.isEmpty()) return pixmap;
  QRectF target(QPointF(), QSizeF(natural.scaled(size, Qt::KeepAspectRatio)));
  target.moveCenter(QRectF(QPointF(), QSizeF(size)).center());
  DrawPicture(painter, name, target);
  return pixmap;
}

QIcon PictureIcon(const std::string& name, const QSize& size) {
  QIcon icon;
  for (const qreal ratio : {1, 2, 3}) {
    const QPixmap pixmap = PicturePixmap(name, size, ratio);
    // In a selected line it keeps its colours, which tell something.
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) icon.addPixmap(pixmap, mode);
  }
  return icon;
}

}  // namespace plexel
