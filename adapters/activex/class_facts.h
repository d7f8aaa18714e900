#pragma once

#include <ole2.h>
#include <windows.h>

namespace plexel::activex::class_facts {

/// What the system is told of the control's class, in the registry and by the control itself.

inline constexpr wchar_t Name[] = L"Key or LED of an operator panel";
/// The name by which programs and scripts create the control, of any version and of this one.
inline constexpr const wchar_t* AnyProgId = L"PlexelBaseElement.ctlPlexelBaseElement";
inline constexpr const wchar_t* ProgId = L"PlexelBaseElement.ctlPlexelBaseElement.1";
inline constexpr const wchar_t* Version = L"1.0";
/// Active whenever it is visible, with the site set before anything is loaded, laid out anew when its size changes.
inline constexpr DWORD MiscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                                    OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

}  // namespace plexel::activex::class_facts
