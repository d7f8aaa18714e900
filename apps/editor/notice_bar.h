#pragma once

#include <QFrame>
#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;

namespace plexel {

/// A line above the picture that tells something and offers what can be done; it holds nobody up.
class NoticeBar : public QFrame {
 public:
  struct Choice {
    QString text;
    std::function<void()> act;
  };

  NoticeBar();
  /// Shows a text, which is plain, with buttons; what was shown before goes. A choice does not hide the bar by itself.
  void Tell(const QString& text, const std::vector<Choice>& choices);
  /// What it tells; empty while it is hidden.
  QString Told() const;

 private:
  QLabel* text_;
  QHBoxLayout* layout_;
  std::vector<QWidget*> buttons_;
};

}  // namespace plexel
