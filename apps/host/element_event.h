#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>

namespace plexel::host {

/// What a control tells, by the numbers of its type library.
enum ElementEventNumber : DISPID {
  DirectInputStatusChanged = 1,
  SendKeyDefinition,
  MouseClicked,
  MouseDblClicked,
  ProjectModified
};

/// One event of a control.
struct ElementEvent {
  DISPID number = 0;
  std::string call;  ///< with its arguments, such as "MouseClicked(1, 0, 150, 90)"; UTF-8
};

/// The event of a call; what is no event has no text.
ElementEvent EventOf(DISPID number, const DISPPARAMS& arguments);

}  // namespace plexel::host
