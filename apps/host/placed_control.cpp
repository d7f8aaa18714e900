#include "host/placed_control.h"

#include <exception>

#include "host/code_record.h"
#include "host/com_error.h"
#include "host/element_bag.h"
#include "host/event_sink.h"

namespace plexel::host {

namespace {

using Microsoft::WRL::ComPtr;

/// The key at which a control has ended its reading too early; empty for none. Controls ask for all keys in their
/// order, and stop at the first value that they cannot take. Behind the last, a number, nothing is asked for any more.
std::string StoppedAt(const ElementBag& bag) {
  const std::string& last = bag.LastAsked();
  if (last != StoredKey(StoredKeyCount - 1)) return last;
  const BagValue* const value = bag.Values().Find(last);
  try {
    if (value != nullptr) static_cast<void>(BagToInt32(*value));
    return {};
  } catch (const std::exception&) {
    return last;
  }
}

}  // namespace

PlacedControl::PlacedControl(Container& container, const std::string& name) : site_(new ControlSite(container, name)) {
  CLSID id;
  Check(CLSIDFromProgID(ProgId, &id), "CLSIDFromProgID");
  Check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_ctlPlexelBaseElement),
                         reinterpret_cast<void**>(element_.GetAddressOf())),
        "CoCreateInstance");
  try {
    const auto object = As<IOleObject>();
    const auto points = As<IConnectionPointContainer>();
    if (!object || !points) throw ComError(E_NOINTERFACE, "QueryInterface");
    Check(object->SetClientSite(site_.Get()), "SetClientSite");
    Check(points->FindConnectionPoint(__uuidof(__ctlPlexelBaseElement), events_.GetAddressOf()), "FindConnectionPoint");
    const ComPtr<EventSink> sink(new EventSink([this](const ElementEvent& event) {
      const ComPtr<ControlSite> site = site_;  // whoever hears it may take the control out
      Container& told = site->TheContainer();
      try {
        if (told.heard) told.heard(site->Name(), event);
      } catch (const std::exception&) {  // whoever hears events tells of failures by itself
      }
    }));
    Check(events_->Advise(sink.Get(), &hearing_), "Advise");
  } catch (...) {
    TakeOut();
    throw;
  }
}

void PlacedControl::InitNew() {
  const auto persist = As<IPersistPropertyBag>();
  Check(persist ? persist->InitNew() : E_NOINTERFACE, "InitNew");
}

std::string PlacedControl::Load(const FlatBag& values) {
  const auto persist = As<IPersistPropertyBag>();
  const ComPtr<ElementBag> bag(new ElementBag(values));
  Check(persist ? persist->Load(bag.Get(), nullptr) : E_NOINTERFACE, "Load");
  return StoppedAt(*bag.Get());
}

FlatBag PlacedControl::Save() const {
  const auto persist = As<IPersistPropertyBag>();
  const ComPtr<ElementBag> bag(new ElementBag);
  Check(persist ? persist->Save(bag.Get(), TRUE, TRUE) : E_NOINTERFACE, "Save");
  return bag->Values();
}

std::vector<SavedCodes> PlacedControl::Codes() const {
  CodeRecord record;
  Check(element_->get_TactisBaseElementScanCodeBuffer(&record.Get()), "TactisBaseElementScanCodeBuffer");
  return record.Codes();
}

void PlacedControl::Codes(const std::vector<SavedCodes>& codes) {
  CodeRecord record;
  Check(element_->get_TactisBaseElementScanCodeBuffer(&record.Get()), "TactisBaseElementScanCodeBuffer");
  record.Codes(codes);
  Check(element_->put_TactisBaseElementScanCodeBuffer(&record.Get()), "TactisBaseElementScanCodeBuffer");
}

void PlacedControl::Place(const RECT& place) {
  site_->place = place;
  if (inPlace_) Check(inPlace_->SetObjectRects(&place, &place), "SetObjectRects");
}

void PlacedControl::Verb(LONG verb, const char* tried) {
  const auto object = As<IOleObject>();
  Check(object ? object->DoVerb(verb, nullptr, site_.Get(), 0, site_->TheContainer().ground, &site_->place)
               : E_NOINTERFACE,
        tried);
}

void PlacedControl::Activate() {
  inPlace_ = As<IOleInPlaceObject>();
  site_->object = inPlace_.Get();
  Verb(OLEIVERB_INPLACEACTIVATE, "DoVerb, OLEIVERB_INPLACEACTIVATE");
}

void PlacedControl::TakeKeys() { Verb(OLEIVERB_UIACTIVATE, "DoVerb, OLEIVERB_UIACTIVATE"); }

HWND PlacedControl::Window() const {
  HWND window = nullptr;
  return inPlace_ && SUCCEEDED(inPlace_->GetWindow(&window)) ? window : nullptr;
}

ULONG PlacedControl::TakeOut() {
  if (!element_) return 0;
  if (events_ && hearing_ != 0) (void)events_->Unadvise(hearing_);
  events_ = nullptr;
  site_->object = nullptr;
  if (inPlace_) (void)inPlace_->InPlaceDeactivate();
  inPlace_ = nullptr;
  if (auto object = As<IOleObject>()) {
    (void)object->Close(OLECLOSE_NOSAVE);
    (void)object->SetClientSite(nullptr);
  }
  return element_.Detach()->Release();
}

}  // namespace plexel::host
