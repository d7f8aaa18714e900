#include "win32/dialog_walk.h"

#include "dialogs/dialog_visits.h"
#include "win32/desk.h"

namespace plexel {

namespace {

using Look = std::function<void(const std::string& name)>;

/// The steps come when the window has drawn itself.
void Walk(Desk& desk, const dialogs::Step& step, const Look& look) {
  desk.Until("the dialog opens: " + step.look, [&desk, form = step.form] { return desk.IsOpen(form); });
  if (!step.look.empty()) {
    desk.Then("it draws itself", [] {});
    desk.Then("it draws itself", [] {});
    desk.Then("a look at " + step.look, [look, name = step.look] { look(name); });
  }
  if (!step.act) return;
  desk.Then("an act behind " + step.look, [&desk, act = step.act] {
    Hand hand(desk.TopForm());
    act(hand, desk.TopForm());
    desk.platform.Modal().SyncAll();
  });
}

}  // namespace

void WalkDialogs(Desk& desk, const Look& look) {
  for (const dialogs::Visit& visit : dialogs::Visits()) {
    const auto element = desk.Element(visit.type);
    visit.SetUp(*element);
    for (const dialogs::Step& step : visit.steps) Walk(desk, step, look);
    visit.Open(*element);
  }
}

}  // namespace plexel
