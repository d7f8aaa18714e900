#pragma once

#include <QAbstractButton>
#include <QString>
#include <string>

namespace plexel {

/// Plain text that wraps wherever it must, so that no text of a file is too wide for its place. It may have a picture
/// ahead, and may be a link, which the keyboard reaches and Return follows.
class TextLine : public QAbstractButton {
 public:
  enum class Look { Plain, Heading, Quiet };

  explicit TextLine(Look look = Look::Plain, bool isLink = false, QWidget* parent = nullptr);
  void SetText(const QString& text);
  const QString& Content() const { return content_; }
  void SetLook(Look look);
  /// The name of a picture; empty for none.
  void SetPicture(const std::string& name);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Lays the text out from a place on, and draws it where there is a painter. Its height.
  int LayOut(int width, QPainter* painter) const;
  int Ahead() const;

  QString content_;
  std::string picture_;
  Look look_ = Look::Plain;
  bool isLink_;
};

}  // namespace plexel
