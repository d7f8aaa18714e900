#include "editor/main_window.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <algorithm>

#include "editor/key_guard.h"
#include "editor/virtual_panel.h"
#include "qt/x_connection.h"

namespace plexel {

void MainWindow::AddVirtualPanel(QMenu& menu) {
  const bool hasX = XConnection() != nullptr;
  QAction* const action = menu.addAction(QString());
  action->setObjectName("VirtualPanel");
  action->setShortcut(Qt::SHIFT | Qt::Key_F5);
  action->setEnabled(hasX);
  named_.push_back({action, hasX ? Text::VirtualPanel : Text::VirtualNeedsX});
  connect(action, &QAction::triggered, this, [this] { Guarded([this] { ShowVirtualPanel(); }); });
}

void MainWindow::ShowVirtualPanel() {
  if (!document_) return;
  if (virtualPanel_) return virtualPanel_->raise();
  keyGuard_ = std::make_unique<KeyGuard>(QApplication::applicationFilePath());
  virtualPanel_ = std::make_unique<VirtualPanel>(*document_, std::max(1, layerBox_->currentIndex()),
                                                 [this](int evdev, bool down) { keyGuard_->Send(evdev, down); });
  keyGuard_->onEnd = [this] { virtualPanel_->Lost(); };
  keyGuard_->onKilled = [this] { virtualPanel_->LetGoOfAll(); };
  // The window is on its way out of one of its own events.
  virtualPanel_->onClose = [this] {
    QMetaObject::invokeMethod(this, [this] { CloseVirtualPanel(); }, Qt::QueuedConnection);
  };
  virtualPanel_->show();
}

void MainWindow::CloseVirtualPanel() {
  keyGuard_.reset();
  virtualPanel_.reset();
}

}  // namespace plexel
