#include "headless/headless_user.h"

#include <iterator>
#include <stdexcept>
#include <string>

#include "forms/hand.h"
#include "headless/headless_platform.h"
#include "headless/key_road.h"

namespace plexel {

Form& HeadlessUser::Dialog() const {
  Form* const form = platform_.Modal().Topmost();
  if (form == nullptr) throw std::logic_error("no dialog is open");
  return *form;
}

template <typename Kind>
Kind& HeadlessUser::Named(std::string_view control) const {
  const Form& form = Dialog();
  auto* const found = dynamic_cast<Kind*>(form.Find(control));
  if (found == nullptr) {
    throw std::logic_error(form.Name() + " has no such control: " + std::string(control));
  }
  return *found;
}

void HeadlessUser::Click(std::string_view control) { Hand(Dialog()).Click(Named(control)); }
void HeadlessUser::Click(std::string_view grid, int row, int col) { Hand(Dialog()).Click(Named<Grid>(grid), row, col); }
void HeadlessUser::DblClick(std::string_view control) { Hand(Dialog()).DblClick(Named(control)); }
void HeadlessUser::DblClick(std::string_view grid, int row, int col) {
  Hand(Dialog()).DblClick(Named<Grid>(grid), row, col);
}
void HeadlessUser::Select(std::string_view box, int index) { Hand(Dialog()).Select(Named<ComboBox>(box), index); }
void HeadlessUser::Type(std::string_view box, std::string_view text) { Hand(Dialog()).Type(Named<TextBox>(box), text); }

void HeadlessUser::Press(std::initializer_list<KeyEvent> keys) {
  KeyRoad road(platform_);
  const auto send = [&road](KeyEvent key, bool down) {
    key.down = down;
    road.Send(key);
  };
  for (const KeyEvent& key : keys) send(key, true);
  for (auto key = std::make_reverse_iterator(keys.end()); key != std::make_reverse_iterator(keys.begin()); ++key) {
    send(*key, false);
  }
}

}  // namespace plexel
