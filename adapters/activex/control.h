#pragma once

#include <ole2.h>
#include <windows.h>

#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "activex/com_pointer.h"
#include "activex/guard.h"
#include "activex/host_services.h"
#include "activex/module.h"
#include "activex/shared_parts.h"
#include "element/ctlPlexelBaseElement.h"
#include "platform/clean_up.h"

namespace plexel::activex {

class ConnectionPoints;
class InPlaceWindow;

/// One control: an element and what hosts need to place it. This is its identity and what its interfaces share; each of
/// those is a part of its own (Faces).
class Control final : public IUnknown, private module::Use {
 public:
  using Element = ctlPlexelBaseElement;

  /// Makes one, within `outer` if that is not null, and gives an interface of it. Throws what stands in its way.
  static HRESULT Create(IUnknown* outer, REFIID iid, void** object);

  // What the control is to whoever holds it by itself, or as a part of an object around it.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  /// The object as which hosts know the control.
  IUnknown& Outer() { return *outer_; }

  /// The element. One that is neither loaded nor initialised when it is first used is new.
  Element& TheElement() {
    if (element_ == nullptr) Renew();
    return *element_;
  }
  /// A new element in place of the one before.
  void Renew();
  /// One that is read, in place of the one before. What does not convert ends the reading.
  void Read(const PropertyBag& bag);

  SharedParts& Shared() { return *parts_; }
  ConnectionPoints& Points() { return *points_; }
  InPlaceWindow& Place() { return *place_; }

  /// The site in the container.
  IOleClientSite* Site() const { return site_.Get(); }
  void Site(IOleClientSite* site);

  /// Whether something is to be saved.
  bool Changed() const { return changed_; }
  void Changed(bool changed) { changed_ = changed; }

  /// Sizes are in 0.01 mm, as hosts count them.
  SIZEL Extent();
  void Extent(SIZEL extent) { extent_ = extent; }

  /// To be called when the control gets a window or loses it, and when its sink comes or goes.
  void LookWhoSees();
  /// The sink that is told when the control looks otherwise, and its aspects.
  ComPointer<IAdviseSink> viewSink;
  DWORD viewAspects = 0, viewFlags = 0;
  /// Sinks of the control as an object in a document; made when the first comes.
  ComPointer<IOleAdviseHolder> objectSinks;

  /// Closes the dialogs of the control that are open, since its host has no more use for it.
  void CloseDialogs() noexcept;

  /// Shows a dialog of the element.
  template <typename Procedure>
  void RunDialog(Procedure&& procedure) {
    ++dialogs_;
    const AtEnd closed([this] { --dialogs_; });
    procedure();
  }

  /// Runs what a host has called. The control outlives the call, whatever the host does meanwhile; what it shows is
  /// brought up to date, and what it asks for is answered by its own host's services.
  template <typename Procedure>
  [[gnu::always_inline]] inline HRESULT Run(const std::string_view& member, Procedure&& procedure) noexcept {
    const Entry entry(*this);
    return Guarded(member, [&] {
      if constexpr (std::is_void_v<std::invoke_result_t<Procedure>>) {
        procedure();
        return S_OK;
      } else {
        return procedure();
      }
    });
  }

 private:
  /// A call from outside.
  class Entry : private HostCall {
   public:
    explicit Entry(Control& control) noexcept
        : HostCall{control.services_, control.inForce_.innermost}, control_(control) {
      control.inForce_.innermost = this;
    }
    ~Entry() {
      if (control_.isSeen_) control_.ShowChanges();
      control_.inForce_.innermost = around;
      if (control_.hasToSettle_) control_.Settle();
    }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

   private:
    Control& control_;
  };

  class Host;
  struct Faces;

  explicit Control(IUnknown* outer);
  ~Control();
  /// An interface of the control by its identifier; null when it has none.
  IUnknown* FaceOf(REFIID iid);
  /// Whether a call has not returned.
  bool IsInside() const;
  /// Does what has waited for the last call to return, if that has: former elements go, and the control when nobody
  /// holds it.
  void Settle() noexcept;
  /// The end of the control.
  void Go() noexcept;
  void Take(std::shared_ptr<Element> element);
  static void LetGo(Element& element) noexcept;
  void LetGoOfFormer() noexcept;
  /// Tells the container of a new size, and whoever shows the control that it looks otherwise.
  void ShowChanges() noexcept;
  void TellSize();

  ULONG holds_ = 0;  ///< of hosts; a call keeps the control without one
  int dialogs_ = 0;
  IUnknown* outer_;
  std::shared_ptr<SharedParts> parts_;
  ControlSurroundings& inForce_;
  HostServices services_;
  std::unique_ptr<Host> host_;
  std::shared_ptr<Element> element_;
  std::vector<std::shared_ptr<Element>> former_;  ///< which a call may still be in
  std::unique_ptr<Faces> faces_;
  std::unique_ptr<ConnectionPoints> points_;
  std::unique_ptr<InPlaceWindow> place_;
  ComPointer<IOleClientSite> site_;
  SIZEL extent_;
  float shownWidth_, shownHeight_;  ///< of the element's surface, twips; the container's size counts until they change
  Surface shown_;                   ///< as it was last drawn
  bool changed_ = false;
  bool isSeen_ = false;       ///< by a window or a sink
  bool hasToSettle_ = false;  ///< when the last call returns
};

}  // namespace plexel::activex
