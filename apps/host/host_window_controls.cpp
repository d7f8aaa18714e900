#include "host/host_window.h"

#include <algorithm>

#include "host/com_error.h"
#include "win32/scale.h"

namespace plexel::host {

void HostWindow::Heard(const std::string& place, const ElementEvent& event) {
  events_->Add(place + ": " + event.call);
  if (event.number == ProjectModified) Modified(true);
  // The control is in the middle of its event: its dialog is opened behind it.
  if (event.number == MouseDblClicked) PostMessageW(Handle(), OpenMessage, PlaceOf(place), 0);
}

std::size_t HostWindow::PlaceOf(const std::string& name) const {
  if (project_ == nullptr) return NoPlace;
  const auto& places = project_->Places();
  const auto found = std::ranges::find_if(places, [&name](const auto& place) { return place.control->Name() == name; });
  return found == places.end() ? NoPlace : static_cast<std::size_t>(found - places.begin());
}

/// The element that has the keys shows it, and Return opens its dialog; no other does.
void HostWindow::GotKeys(const std::string& name) {
  const std::size_t place = PlaceOf(name);
  if (place == NoPlace) return;
  const auto& places = project_->Places();
  if (current_ < places.size() && current_ != place) {
    Check(places[current_].control->Element().put_FocusVisible(VARIANT_FALSE), "FocusVisible");
  }
  current_ = place;
  Check(places[place].control->Element().put_FocusVisible(VARIANT_TRUE), "FocusVisible");
  // What the mouse presses is in sight, and stays under it.
  if (GetKeyState(VK_LBUTTON) >= 0 && GetKeyState(VK_RBUTTON) >= 0 && GetKeyState(VK_MBUTTON) >= 0) {
    panel_->Reveal(places[place].control->Place());
  }
}

bool HostWindow::OfferedKey(const std::string& name, const MSG& message) {
  if (message.message != WM_KEYDOWN || project_ == nullptr) return false;
  if (GetKeyState(VK_CONTROL) < 0 || GetKeyState(VK_MENU) < 0) return false;
  std::vector<RECT> places;
  for (const auto& place : project_->Places()) places.push_back(place.control->Place());
  const std::size_t from = PlaceOf(name);
  const std::size_t place = PlaceBehind(places, from, message.wParam, GetKeyState(VK_SHIFT) < 0);
  if (place != from) TakeKeys(place);
  return place != from;
}

void HostWindow::TakeKeys(std::size_t place) {
  if (project_ == nullptr || project_->Places().empty() || IsBusy()) return;
  const auto& places = project_->Places();
  places[place < places.size() ? place : 0].control->TakeKeys();
}

void HostWindow::PlaceControls() {
  if (project_ == nullptr) return panel_->Show(nullptr);
  panel_->Show(std::make_unique<PanelPicture>(project_->ThePanel(), dpi_));
  project_->Scale(static_cast<double>(dpi_) / Scale::DesignDpi);
  for (const auto& place : project_->Places()) {
    const PanelElement& described = *place.part->element;
    const LONG left = OnScreen(place.part->box.left, dpi_), top = OnScreen(place.part->box.top, dpi_);
    place.control->Place({left, top, left + OnScreen(described.sizeX, dpi_), top + OnScreen(described.sizeY, dpi_)});
    if (place.control->Window() == nullptr) place.control->Activate();
  }
}

void HostWindow::OpenDialog(std::size_t place, bool properties) {
  if (project_ == nullptr || place >= project_->Places().size() || IsBusy()) return;
  _ctlPlexelBaseElement& element = project_->Places()[place].control->Element();
  const HRESULT result = properties ? element.OpenPropertiesDialog() : element.OpenConfigurationDialog();
  Check(result, properties ? "OpenPropertiesDialog" : "OpenConfigurationDialog");
}

}  // namespace plexel::host
