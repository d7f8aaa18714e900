#pragma once

#include <PlexelBaseElement.h>
#include <wrl/client.h>

#include <string>
#include <vector>

#include "files/flat_bag.h"
#include "files/project_file.h"
#include "host/control_site.h"

namespace plexel::host {

/// One control on its place in the container. Every call that fails throws ComError.
class PlacedControl {
 public:
  /// The name by which the control is created.
  static constexpr const wchar_t* ProgId = L"PlexelBaseElement.ctlPlexelBaseElement";

  /// Creates a control and gives it its site. It is new until it is loaded.
  PlacedControl(Container& container, const std::string& name);
  ~PlacedControl() { TakeOut(); }
  PlacedControl(const PlacedControl&) = delete;
  PlacedControl& operator=(const PlacedControl&) = delete;

  const std::string& Name() const { return site_->Name(); }
  /// The control by its own interface, and by another; null for one that it has not.
  _ctlPlexelBaseElement& Element() const { return *element_.Get(); }
  template <typename Interface>
  Microsoft::WRL::ComPtr<Interface> As() const {
    Microsoft::WRL::ComPtr<Interface> found;
    if (element_) element_.Get()->QueryInterface(__uuidof(Interface), reinterpret_cast<void**>(found.GetAddressOf()));
    return found;
  }

  void InitNew();
  /// Loads the control. Gives the key of the value that it could not read, where it has stopped; empty for none.
  std::string Load(const FlatBag& values);
  FlatBag Save() const;
  std::vector<SavedCodes> Codes() const;
  void Codes(const std::vector<SavedCodes>& codes);

  /// Where the control lies in the ground, in pixels; what is active is moved.
  const RECT& Place() const { return site_->place; }
  void Place(const RECT& place);
  /// Makes it active, and gives it the keys.
  void Activate();
  void TakeKeys();
  /// Its window, null while it is not active.
  HWND Window() const;

  /// Takes the control out of the container, as containers do. Gives how often it is held still.
  ULONG TakeOut();

 private:
  void Verb(LONG verb, const char* tried);

  Microsoft::WRL::ComPtr<ControlSite> site_;
  Microsoft::WRL::ComPtr<_ctlPlexelBaseElement> element_;
  Microsoft::WRL::ComPtr<IOleInPlaceObject> inPlace_;
  Microsoft::WRL::ComPtr<IConnectionPoint> events_;
  DWORD hearing_ = 0;
};

}  // namespace plexel::host
