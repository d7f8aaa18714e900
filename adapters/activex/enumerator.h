#pragma once

#include <ole2.h>
#include <windows.h>

#include <cstddef>
#include <utility>
#include <vector>

#include "activex/com_pointer.h"
#include "activex/module.h"

namespace plexel::activex {

/// Gives a list out, piece by piece. `Copy` makes of an entry what callers get, with a hold of their own on it.
template <typename Interface, typename Entry, typename Given, Given (*Copy)(const Entry&)>
class Enumerator final : public Interface, private module::Use {
 public:
  explicit Enumerator(std::vector<Entry> entries, std::size_t place = 0)
      : entries_(std::move(entries)), place_(place) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(Interface);
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++holds_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG holds = --holds_;
    if (holds == 0) delete this;
    return holds;
  }

  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, Given* given, ULONG* count) override {
    if (given == nullptr || (count == nullptr && wanted != 1)) return E_POINTER;
    ULONG fetched = 0;
    while (fetched < wanted && place_ < entries_.size()) given[fetched++] = Copy(entries_[place_++]);
    if (count != nullptr) *count = fetched;
    return fetched == wanted ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    const std::size_t left = entries_.size() - place_;
    place_ += count < left ? count : left;
    return count <= left ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() override {
    place_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(Interface** copy) override {
    if (copy == nullptr) return E_POINTER;
    *copy = ComPointer<Interface>(new Enumerator(entries_, place_)).HandOn();
    return S_OK;
  }

 private:
  ~Enumerator() = default;

  std::vector<Entry> entries_;
  std::size_t place_;
  ULONG holds_ = 0;
};

}  // namespace plexel::activex
