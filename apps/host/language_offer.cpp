#include "host/language_offer.h"

#include <array>
#include <exception>
#include <string>

#include "win32/bstr.h"

namespace plexel::host {

namespace {

constexpr std::array members = {NamedMember{L"GetText", 1}};

}  // namespace

void* LanguageOffer::Find(REFIID iid) {
  if (iid == __uuidof(IDispatch)) return static_cast<IPlexelLanguage*>(this);
  return ComObject::Find(iid);
}

std::span<const NamedMember> LanguageOffer::Members() const { return members; }

HRESULT LanguageOffer::GetText(LONG number, BSTR* text) {
  if (text == nullptr) return E_POINTER;
  *text = nullptr;
  try {
    std::string given;
    texts_.GetText(number, given);
    *text = NewBstr(given);
    return S_OK;
  } catch (const std::exception&) {
    return E_FAIL;
  }
}

HRESULT LanguageOffer::Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* answer, EXCEPINFO*,
                              UINT*) {
  if (arguments == nullptr) return E_POINTER;
  if (number != members.front().number) return DISP_E_MEMBERNOTFOUND;
  if (arguments->cArgs != 1) return DISP_E_BADPARAMCOUNT;
  LONG wanted = 0;
  HRESULT result = TakeNumber(arguments->rgvarg[0], wanted);
  if (FAILED(result)) return result;
  Bstr text;
  result = GetText(wanted, text.Out());
  if (FAILED(result) || answer == nullptr) return result;
  V_BSTR(answer) = NewBstr(ContentOf(text.Get()));
  V_VT(answer) = VT_BSTR;
  return S_OK;
}

}  // namespace plexel::host
