#include "editor/main_window.h"

#include <array>

#include "editor/overview_panel.h"
#include "editor/panel_view.h"

namespace plexel {

void MainWindow::ConnectOverview() {
  overview_->onFound = [this](const std::vector<int>& places) { view_->Found(places); };
  overview_->change = [this](StepKind kind, int place, const std::function<void()>& act) {
    Guarded([&] { document_->Change(kind, std::array{static_cast<std::size_t>(place)}, act); });
  };
}

void MainWindow::Find() { overview_->Find(); }
void MainWindow::FindByPressing() { overview_->FindByPressing(); }

}  // namespace plexel
