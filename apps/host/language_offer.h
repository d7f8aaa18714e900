#pragma once

#include <PlexelBaseElement.h>

#include "host/com_object.h"
#include "services/surroundings.h"

namespace plexel::host {

/// The host's texts as the service that controls ask for.
class LanguageOffer : public ComObject<DispatchPart<IPlexelLanguage>> {
 public:
  /// The texts outlive the last control.
  explicit LanguageOffer(LanguageService& texts) : texts_(texts) {}

  HRESULT STDMETHODCALLTYPE GetText(LONG number, BSTR* text) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD way, DISPPARAMS* arguments, VARIANT* answer,
                                   EXCEPINFO* error, UINT* wrong) override;

 protected:
  void* Find(REFIID iid) override;
  std::span<const NamedMember> Members() const override;

 private:
  LanguageService& texts_;
};

}  // namespace plexel::host
