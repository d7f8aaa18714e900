#include "activex/control.h"

#include <limits>

#include "activex/connection_points.h"
#include "activex/control_host.h"
#include "activex/faces.h"
#include "activex/in_place_window.h"
#include "activex/surface_painter.h"
#include "activex/units.h"
#include "win32/win32_platform.h"

namespace plexel::activex {

Control::Control(IUnknown* outer)
    : outer_(outer != nullptr ? outer : this),
      parts_(SharedParts::Get()),
      inForce_(parts_->Services()),
      host_(std::make_unique<Host>(*this)),
      faces_(std::make_unique<Faces>(*this)),
      points_(std::make_unique<ConnectionPoints>(*this)),
      place_(std::make_unique<InPlaceWindow>(*this)),
      extent_{HimetricOfTwips(Surface().Width), HimetricOfTwips(Surface().Height)},
      shownWidth_(Surface().Width),
      shownHeight_(Surface().Height) {}

Control::~Control() = default;

HRESULT Control::Create(IUnknown* outer, REFIID iid, void** object) {
  const ComPointer<Control> control(new Control(outer));
  return control->QueryInterface(iid, object);
}

HRESULT Control::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  if (iid == __uuidof(IUnknown)) {
    *object = this;
    AddRef();
    return S_OK;
  }
  IUnknown* const face = FaceOf(iid);
  *object = face;
  if (face == nullptr) return E_NOINTERFACE;
  face->AddRef();
  return S_OK;
}

ULONG Control::AddRef() { return ++holds_; }

ULONG Control::Release() {
  if (--holds_ > 0) return holds_;
  if (IsInside()) {
    hasToSettle_ = true;
    CloseDialogs();
  } else {
    Go();
  }
  return 0;
}

bool Control::IsInside() const {
  const HostCall* call = inForce_.innermost;
  while (call != nullptr && &call->services != &services_) call = call->around;
  return call != nullptr;
}

void Control::Settle() noexcept {
  if (IsInside()) return;
  hasToSettle_ = false;
  ++holds_;  // whoever is let go of may call
  LetGoOfFormer();
  Release();
}

void Control::Go() noexcept {
  holds_ = std::numeric_limits<ULONG>::max() / 2;  // whoever is told of the end may hold the control meanwhile
  (void)Guarded("Release", [&] {
    place_->Close();
    if (element_ != nullptr) element_->UserControl_Terminate();
    return S_OK;
  });
  LetGoOfFormer();
  if (element_ != nullptr) LetGo(*element_);
  Site(nullptr);
  delete this;
}

/// The component may keep an element that has been worked on, but it keeps nothing of the host's with it.
void Control::LetGo(Element& element) noexcept {
  element.Detach();
  (void)Guarded("ParentWindow", [&] {
    element.ParentWindow(nullptr);
    return S_OK;
  });
}

void Control::LetGoOfFormer() noexcept {
  const auto former = std::move(former_);
  former_.clear();
  for (const auto& element : former) LetGo(*element);
}

void Control::CloseDialogs() noexcept {
  if (dialogs_ == 0) return;
  (void)Guarded("CloseDialogs", [&] {
    parts_->TheComponent().Desktop().CloseDialogs();
    return S_OK;
  });
}

void Control::LookWhoSees() { isSeen_ = place_->Handle() != nullptr || viewSink; }

void Control::Renew() { Take(parts_->TheComponent().Create({}, *host_)); }

void Control::Read(const PropertyBag& bag) { Take(parts_->TheComponent().Read({}, *host_, bag)); }

void Control::Take(std::shared_ptr<Element> element) {
  if (element_ != nullptr) {
    element_->Detach();
    former_.push_back(std::move(element_));
    hasToSettle_ = true;
  }
  element_ = std::move(element);
}

void Control::Site(IOleClientSite* site) {
  const ComPointer<IOleClientSite> before = std::exchange(site_, ComPointer<IOleClientSite>(site));
  services_.Take(site);
}

SIZEL Control::Extent() {
  TellSize();
  return extent_;
}

void Control::TellSize() {
  if (element_ == nullptr) return;
  const Surface& surface = element_->SurfaceObjects();
  if (surface.Width == shownWidth_ && surface.Height == shownHeight_) return;
  if (surface.Width != shownWidth_) extent_.cx = HimetricOfTwips(surface.Width);
  if (surface.Height != shownHeight_) extent_.cy = HimetricOfTwips(surface.Height);
  shownWidth_ = surface.Width;
  shownHeight_ = surface.Height;
  place_->Resize(extent_);
}

void Control::ShowChanges() noexcept {
  if (element_ == nullptr) return;
  (void)Guarded("ShowChanges", [&] {
    TellSize();
    const Surface& now = TheElement().SurfaceObjects();
    if (LookTheSame(now, shown_)) return S_OK;
    shown_ = now;
    place_->Redraw();
    if (viewSink) {
      const ComPointer<IAdviseSink> told = viewSink;
      if ((viewFlags & ADVF_ONLYONCE) != 0) viewSink = nullptr;
      LookWhoSees();
      told->OnViewChange(DVASPECT_CONTENT, -1);
    }
    return S_OK;
  });
}

}  // namespace plexel::activex
