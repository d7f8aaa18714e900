#pragma once

#include <QFrame>
#include <QString>

namespace plexel {

/// One line of text that ends in an ellipsis where it does not fit.
class ElidedLabel : public QFrame {
 public:
  explicit ElidedLabel(QWidget* parent = nullptr);
  void SetText(const QString& text);
  const QString& Content() const { return text_; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
};

}  // namespace plexel
