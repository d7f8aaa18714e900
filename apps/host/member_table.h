#pragma once

#include <PlexelBaseElement.h>

#include <span>
#include <string>
#include <variant>

namespace plexel::host {

/// The value of a member of the control, apart from its type.
using MemberValue = std::variant<LONG, double, std::wstring>;

/// One property of the control as it is reached by its interface.
struct EarlyMember {
  const char* name;
  HRESULT (*put)(_ctlPlexelBaseElement& element, const MemberValue& value);
  HRESULT (*get)(_ctlPlexelBaseElement& element, MemberValue& value);
};

/// All properties but the parent window and the record.
std::span<const EarlyMember> EarlyMembers();

/// The same by name.
HRESULT PutLate(IDispatch& element, const std::string& name, const MemberValue& value);
HRESULT GetLate(IDispatch& element, const std::string& name, MemberValue& value);

}  // namespace plexel::host
