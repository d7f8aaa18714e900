#pragma once

#include <ole2.h>
#include <windows.h>

#include "activex/com_pointer.h"
#include "activex/control.h"

namespace plexel::activex {

/// The control's window in its container. What the user does in it becomes events of the element's surface.
class InPlaceWindow {
 public:
  explicit InPlaceWindow(Control& control) : control_(control) {}
  ~InPlaceWindow() { Close(); }
  InPlaceWindow(const InPlaceWindow&) = delete;
  InPlaceWindow& operator=(const InPlaceWindow&) = delete;

  /// Null while the control is not active.
  HWND Handle() const { return window_; }

  /// Shows the control in its container, with the keys when `withKeys` says so. A container that does not let it is
  /// obeyed.
  HRESULT Activate(bool withKeys);
  void Deactivate();
  void DeactivateInterface();
  void Hide();
  /// Deactivates, whatever that throws.
  void Close() noexcept;

  /// Places the window in that of the container.
  void Move(const RECT& place, const RECT& clip);
  /// Asks the container for another size, in 0.01 mm.
  void Resize(SIZEL extent);
  void Redraw();

  /// Forgets the kind of window, when the library goes.
  static void Unregister();

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider);
  LRESULT Handle(UINT message, WPARAM wide, LPARAM wider, bool& known);
  /// Makes the window in that of the container.
  HRESULT Open(IOleInPlaceSite& site);
  HRESULT OpenWithin(IOleInPlaceSite& site);
  HRESULT ActivateInterface(IOleInPlaceSite& site);
  ComPointer<IOleInPlaceSite> Site() const;
  /// Whether the control is still in that container, which may take it out whenever it is called.
  bool IsIn(IOleInPlaceSite& site) const;

  void Paint();
  void PaintOn(HDC device);
  void PaintGround(HDC device, const RECT& area);
  void Focus(bool got);
  void MouseDown();
  void MouseUp(std::int16_t button, WPARAM keys, LPARAM place);

  Control& control_;
  HWND window_ = nullptr;
  bool active_ = false;
  bool hasKeys_ = false;
  ComPointer<IOleInPlaceFrame> frame_;
  ComPointer<IOleInPlaceUIWindow> document_;
};

}  // namespace plexel::activex
