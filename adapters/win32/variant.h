#pragma once

#include <ole2.h>
#include <windows.h>

namespace plexel {

/// A value of automation that is let go of at the end.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT& Get() { return value_; }
  const VARIANT& Get() const { return value_; }

 private:
  VARIANT value_;
};

}  // namespace plexel
