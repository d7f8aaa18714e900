#include "qt/help_window.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "qt/units.h"

namespace plexel {

namespace {

QString TopicFile(std::string_view helpFile, std::int32_t topic) {
  const QString file = ToQt(helpFile).replace('\\', '/');
  return file.section('.', 0, -2) + '/' + QString::number(topic) + ".html";
}

/// Shows the topics of one help file. What their links and pictures name elsewhere is not read.
class TopicBrowser : public QTextBrowser {
 public:
  void ShowTopic(const QString& file) {
    folder_ = QFileInfo(file).absolutePath();
    setSource(QUrl::fromLocalFile(file));
  }

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override {
    if (IsOfHelpFile(url)) QTextBrowser::doSetSource(url, type);
  }
  QVariant loadResource(int type, const QUrl& url) override {
    return IsOfHelpFile(url) ? QTextBrowser::loadResource(type, url) : QVariant();
  }

 private:
  bool IsOfHelpFile(const QUrl& url) const {
    const QUrl whole = source().resolved(url);
    return whole.isLocalFile() && QFileInfo(whole.toLocalFile()).absolutePath() == folder_;
  }

  QString folder_;
};

}  // namespace

HelpWindow::~HelpWindow() { delete window_; }

void HelpWindow::Show(std::intptr_t, std::string_view helpFile, std::int32_t command, std::int32_t topic) {
  const QString file = TopicFile(helpFile, topic);
  if (command != HelpContext) return;
  if (!QFileInfo::exists(file)) return qWarning("%s: there is no such help topic", qUtf8Printable(file));
  // A window that belongs to the open dialog stays usable while that is modal.
  QWidget* owner =
      QApplication::activeModalWidget() != nullptr ? QApplication::activeModalWidget() : QApplication::activeWindow();
  if (window_ && owner == window_) owner = window_->parentWidget();
  if (window_ && window_->parentWidget() != owner) delete window_;
  if (!window_) {
    window_ = new QDialog(owner);
    window_->setAttribute(Qt::WA_DeleteOnClose);
    window_->resize(560, 480);
    auto* layout = new QVBoxLayout(window_);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* browser = new TopicBrowser;
    browser->setFrameShape(QFrame::NoFrame);
    browser->document()->setDocumentMargin(16);
    layout->addWidget(browser);
  }
  auto* const browser = static_cast<TopicBrowser*>(window_->findChild<QTextBrowser*>());
  browser->ShowTopic(file);
  window_->setWindowTitle(title ? title() : browser->documentTitle());
  window_->show();
  window_->activateWindow();
}

}  // namespace plexel
