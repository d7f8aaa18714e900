#pragma once

#include <windows.h>

namespace plexel::activex {

/// For whom the control is registered.
enum class RegisteredFor { Machine, User };

/// Whether this process may register for the machine.
bool MayRegisterForMachine();

/// Writes what programs need to find the control: its class, its names, its type library and its interfaces. A result
/// of the system.
HRESULT Register(RegisteredFor whom);
/// Takes all of it away. What others have written under the same keys stays.
HRESULT Unregister(RegisteredFor whom);

}  // namespace plexel::activex
