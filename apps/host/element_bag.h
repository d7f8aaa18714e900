#pragma once

#include <ocidl.h>

#include <string>
#include <utility>

#include "files/flat_bag.h"
#include "host/com_object.h"

namespace plexel::host {

/// The bag by which a control is loaded and saved, over what a project keeps of it.
class ElementBag : public ComObject<IPropertyBag> {
 public:
  explicit ElementBag(FlatBag values = {}) : values_(std::move(values)) {}

  /// E_INVALIDARG for a name that is not kept, as containers answer. A value comes in its own type, or in the one that
  /// is asked for.
  HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override;
  /// DISP_E_TYPEMISMATCH for a value of a type that projects do not know.
  HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override;

  const FlatBag& Values() const { return values_; }
  /// The name that was asked for last.
  const std::string& LastAsked() const { return lastAsked_; }

 private:
  FlatBag values_;
  std::string lastAsked_;
};

}  // namespace plexel::host
