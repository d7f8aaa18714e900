#include "qt/pictures.h"

#include <QApplication>
#include <QIconEngine>
#include <QLoggingCategory>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <filesystem>
#include <map>
#include <memory>

#include "files/data_directory.h"

namespace plexel {

namespace {

QSvgRenderer& Renderer(const std::string& name) {
  static std::map<std::string, std::unique_ptr<QSvgRenderer>> renderers;
  std::unique_ptr<QSvgRenderer>& renderer = renderers[name];
  if (renderer) return *renderer;
  static const std::filesystem::path pictures = DataDirectory() / "pictures";
  const QString file = QString::fromStdString((pictures / (name + ".svg")).string());
  renderer = std::make_unique<QSvgRenderer>(file);
  if (!renderer->isValid()) qWarning("%s: the picture cannot be read", qUtf8Printable(file));
  return *renderer;
}

/// Draws a picture in the sizes that are asked for, each once. In a selected line it keeps its colours, which tell
/// something.
class PictureEngine : public QIconEngine {
 public:
  PictureEngine(std::string name, const QSize& size) : name_(std::move(name)), size_(size) {}

  void paint(QPainter* painter, const QRect& target, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(target, pixmap(target.size() * ratio, mode, state));
  }
  QPixmap pixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State) override {
    const QString key = QString("picture %1 %2 %3 %4 %5")
                            .arg(QString::fromStdString(name_))
                            .arg(pixels.width())
                            .arg(pixels.height())
                            .arg(mode == QIcon::Disabled ? QGuiApplication::palette().cacheKey() : 0)
                            .arg(mode == QIcon::Disabled);
    QPixmap drawn;
    if (QPixmapCache::find(key, &drawn)) return drawn;
    drawn = PicturePixmap(name_, pixels, 1);
    if (mode == QIcon::Disabled) {
      QStyleOption option;
      option.palette = QGuiApplication::palette();
      drawn = QApplication::style()->generatedIconPixmap(mode, drawn, &option);
    }
    QPixmapCache::insert(key, drawn);
    return drawn;
  }
  QIconEngine* clone() const override { return new PictureEngine(*this); }
  bool isNull() override { return false; }
  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {size_}; }

 private:
  std::string name_;
  QSize size_;
};

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

QIcon PictureIcon(const std::string& name, const QSize& size) { return QIcon(new PictureEngine(name, size)); }

}  // namespace plexel
