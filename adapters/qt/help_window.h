#pragma once

#include <QPointer>
#include <QString>
#include <functional>

#include "platform/system.h"

class QDialog;

namespace plexel {

/// Help in a window with one topic at a time. A help file stands for the directory of its name without the
/// extension, which holds the topics as "NUMBER.html".
class HelpWindow : public HelpViewer {
 public:
  HelpWindow() = default;
  ~HelpWindow() override;
  HelpWindow(const HelpWindow&) = delete;
  HelpWindow& operator=(const HelpWindow&) = delete;

  /// Opens a topic. A topic that is missing opens nothing.
  void Show(std::intptr_t owner, std::string_view file, std::int32_t command, std::int32_t topic) override;

  /// The topic of the table of contents.
  static constexpr std::int32_t Contents = 1;
  /// The window, null before the first topic.
  const QPointer<QDialog>& Window() const { return window_; }

  /// The title of the window; without it that of the topic.
  std::function<QString()> title;

 private:
  QPointer<QDialog> window_;
};

}  // namespace plexel
