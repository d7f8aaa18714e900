#pragma once

#include <ole2.h>
#include <windows.h>

#include <utility>

namespace plexel::activex {

/// Holds an object of COM by an interface of it.
template <typename Interface>
class ComPointer {
 public:
  ComPointer() = default;
  ComPointer(std::nullptr_t) {}
  /// Holds an object besides whoever else does.
  explicit ComPointer(Interface* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  ComPointer(const ComPointer& other) : ComPointer(other.object_) {}
  ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPointer() {
    if (object_ != nullptr) object_->Release();
  }

  Interface* Get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  /// Where a call puts an object that this then holds; what was held is let go.
  Interface** Out() {
    *this = nullptr;
    return &object_;
  }
  void** OutVoid() { return reinterpret_cast<void**>(Out()); }
  /// Hands the object on with the hold on it.
  Interface* HandOn() { return std::exchange(object_, nullptr); }
  /// Another hold on the object, for a result.
  Interface* Shared() const { return ComPointer(*this).HandOn(); }

 private:
  Interface* object_ = nullptr;
};

/// An interface of an object; null when there is no object, when it has no such interface, and when it says that it has
/// one and gives none.
template <typename Interface>
ComPointer<Interface> As(IUnknown* object) {
  ComPointer<Interface> found;
  if (object != nullptr && FAILED(object->QueryInterface(__uuidof(Interface), found.OutVoid()))) (void)found.HandOn();
  return found;
}

template <typename Interface, typename Other>
ComPointer<Interface> As(const ComPointer<Other>& object) {
  return As<Interface>(object.Get());
}

}  // namespace plexel::activex
