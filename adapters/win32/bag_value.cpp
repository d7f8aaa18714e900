#include "win32/bag_value.h"

#include <string>

#include "win32/bstr.h"

namespace plexel {

namespace {

struct Put {
  VARIANT& value;
  void operator()(std::int16_t kept) const {
    V_VT(&value) = VT_I2;
    V_I2(&value) = kept;
  }
  void operator()(std::int32_t kept) const {
    V_VT(&value) = VT_I4;
    V_I4(&value) = kept;
  }
  void operator()(std::uint8_t kept) const {
    V_VT(&value) = VT_UI1;
    V_UI1(&value) = kept;
  }
  void operator()(Boolean kept) const {
    V_VT(&value) = VT_BOOL;
    V_BOOL(&value) = kept.Value();
  }
  void operator()(double kept) const {
    V_VT(&value) = VT_R8;
    V_R8(&value) = kept;
  }
  void operator()(const std::string& kept) const {
    V_BSTR(&value) = NewBstr(kept);
    V_VT(&value) = VT_BSTR;
  }
};

}  // namespace

std::optional<BagValue> BagValueOf(const VARIANT& value) {
  switch (V_VT(&value)) {
    case VT_I2:
      return V_I2(&value);
    case VT_I4:
      return static_cast<std::int32_t>(V_I4(&value));
    case VT_UI1:
      return V_UI1(&value);
    case VT_BOOL:
      return Boolean::Raw(V_BOOL(&value));
    case VT_R8:
      return V_R8(&value);
    case VT_BSTR:
      return NarrowOf(V_BSTR(&value));
    default:
      return std::nullopt;
  }
}

void PutBagValue(const BagValue& kept, VARIANT& value) { std::visit(Put{value}, kept); }

}  // namespace plexel
