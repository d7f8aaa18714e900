#include "headless/headless_modal_loop.h"

#include <algorithm>
#include <stdexcept>

#include "forms/form.h"

namespace plexel {

namespace {

/// Keeps a form among the shown ones as long as its loop runs.
class ShownForm {
 public:
  ShownForm(std::vector<Form*>& shown, Form& form) : shown_(shown), form_(&form) { shown_.push_back(form_); }
  ~ShownForm() { std::erase(shown_, form_); }
  ShownForm(const ShownForm&) = delete;
  ShownForm& operator=(const ShownForm&) = delete;

 private:
  std::vector<Form*>& shown_;
  Form* form_;
};

}  // namespace

void HeadlessModalLoop::Prepare(Form&) { faults_.Check(Fault::Show); }

void HeadlessModalLoop::Run(Form& form, Window* owner) {
  const ShownForm entry(shown_, form);
  if (onShown) onShown(form, owner);
  for (int round = 0; form.IsShown(); ++round) {
    if (!onRun || round == IdleRounds) throw std::logic_error("nobody closes " + form.Name());
    onRun(form);
  }
}

void HeadlessModalLoop::Closed(Form& form) {
  std::erase(shown_, &form);
  if (onClosed) onClosed(form);
}

void HeadlessModalLoop::Popup(Form& form, MenuItem& menu, bool placed, float x, float y) {
  faults_.Check(Fault::Popup);
  if (onPopup) onPopup(form, menu, placed, x, y);
}

}  // namespace plexel
