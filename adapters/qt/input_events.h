#pragma once

#include <Qt>
#include <QtGlobal>
#include <cstdint>

class QKeyEvent;

namespace plexel {

/// Facts of the toolkit's input events, in the terms of the form model.

/// 1 left, 2 right, 4 middle, 0 for any other.
std::int16_t ButtonOf(Qt::MouseButton button);
std::int16_t ShiftOf(Qt::KeyboardModifiers modifiers);

/// The place of a key on the keyboard as a code of the kernel's input layer, 0 for an unknown one. It comes from the
/// native scan code where the platform tells it, else from the key's name on a US keyboard.
int EvdevOf(const QKeyEvent& event);
/// Whether Num Lock is on, as far as the platform tells it.
bool NumLockOn(const QKeyEvent& event);
/// The character that a key types; 0 for none, as with Alt, and for Delete.
char32_t CharacterOf(const QKeyEvent& event);

}  // namespace plexel
