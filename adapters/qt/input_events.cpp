#include "qt/input_events.h"

#include <QKeyEvent>
#include <array>

#include "forms/control.h"

namespace plexel {

namespace {

struct ButtonNumber {
  Qt::MouseButton button;
  std::int16_t number;
};
constexpr std::array buttons = {ButtonNumber{Qt::LeftButton, 1}, ButtonNumber{Qt::RightButton, 2},
                                ButtonNumber{Qt::MiddleButton, 4}};

struct NamedKey {
  int key;
  int evdev;
};
constexpr std::array namedKeys = {
    NamedKey{Qt::Key_Escape, 1},      NamedKey{Qt::Key_Minus, 12},     NamedKey{Qt::Key_Equal, 13},
    NamedKey{Qt::Key_Backspace, 14},  NamedKey{Qt::Key_Tab, 15},       NamedKey{Qt::Key_Backtab, 15},
    NamedKey{Qt::Key_Return, 28},     NamedKey{Qt::Key_Control, 29},   NamedKey{Qt::Key_Semicolon, 39},
    NamedKey{Qt::Key_Shift, 42},      NamedKey{Qt::Key_Comma, 51},     NamedKey{Qt::Key_Period, 52},
    NamedKey{Qt::Key_Slash, 53},      NamedKey{Qt::Key_Alt, 56},       NamedKey{Qt::Key_Space, 57},
    NamedKey{Qt::Key_CapsLock, 58},   NamedKey{Qt::Key_F1, 59},        NamedKey{Qt::Key_F2, 60},
    NamedKey{Qt::Key_F3, 61},         NamedKey{Qt::Key_F4, 62},        NamedKey{Qt::Key_F5, 63},
    NamedKey{Qt::Key_F6, 64},         NamedKey{Qt::Key_F7, 65},        NamedKey{Qt::Key_F8, 66},
    NamedKey{Qt::Key_F9, 67},         NamedKey{Qt::Key_F10, 68},       NamedKey{Qt::Key_NumLock, 69},
    NamedKey{Qt::Key_ScrollLock, 70}, NamedKey{Qt::Key_F11, 87},       NamedKey{Qt::Key_F12, 88},
    NamedKey{Qt::Key_Enter, 96},      NamedKey{Qt::Key_Print, 99},     NamedKey{Qt::Key_AltGr, 100},
    NamedKey{Qt::Key_Home, 102},      NamedKey{Qt::Key_Up, 103},       NamedKey{Qt::Key_PageUp, 104},
    NamedKey{Qt::Key_Left, 105},      NamedKey{Qt::Key_Right, 106},    NamedKey{Qt::Key_End, 107},
    NamedKey{Qt::Key_Down, 108},      NamedKey{Qt::Key_PageDown, 109}, NamedKey{Qt::Key_Insert, 110},
    NamedKey{Qt::Key_Delete, 111},    NamedKey{Qt::Key_Pause, 119},    NamedKey{Qt::Key_Meta, 125},
    NamedKey{Qt::Key_Super_L, 125},   NamedKey{Qt::Key_Super_R, 126},  NamedKey{Qt::Key_Menu, 127},
};

/// The letters and digits in the order of their places on a US keyboard.
struct KeyRow {
  int firstEvdev;
  const char* keys;
};
constexpr std::array keyRows = {KeyRow{2, "1234567890"}, KeyRow{16, "QWERTYUIOP"}, KeyRow{30, "ASDFGHJKL"},
                                KeyRow{44, "ZXCVBNM"}};

int EvdevOfName(int key) {
  for (const NamedKey& named : namedKeys) {
    if (named.key == key) return named.evdev;
  }
  for (const KeyRow& row : keyRows) {
    for (int place = 0; row.keys[place] != 0; ++place) {
      if (row.keys[place] == key) return row.firstEvdev + place;
    }
  }
  return 0;
}

}  // namespace

std::int16_t ButtonOf(Qt::MouseButton button) {
  for (const ButtonNumber& one : buttons) {
    if (one.button == button) return one.number;
  }
  return 0;
}

std::int16_t ShiftOf(Qt::KeyboardModifiers modifiers) {
  int shift = 0;
  if (modifiers.testFlag(Qt::ShiftModifier)) shift |= key::ShiftBit;
  if (modifiers.testFlag(Qt::ControlModifier)) shift |= key::ControlBit;
  if (modifiers.testFlag(Qt::AltModifier)) shift |= key::AltBit;
  return static_cast<std::int16_t>(shift);
}

int EvdevOf(const QKeyEvent& event) {
  constexpr quint32 FirstKeycode = 8, LastKeycode = 255;
  const quint32 keycode = event.nativeScanCode();
  if (keycode > FirstKeycode && keycode <= LastKeycode) return static_cast<int>(keycode - FirstKeycode);
  return EvdevOfName(event.key());
}

bool NumLockOn(const QKeyEvent& event) {
  constexpr quint32 NumLockModifier = 0x10;
  return (event.nativeModifiers() & NumLockModifier) != 0;
}

char32_t CharacterOf(const QKeyEvent& event) {
  const QList<uint> characters = event.text().toUcs4();
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  const bool altAlone = modifiers.testFlag(Qt::AltModifier) && !modifiers.testFlag(Qt::ControlModifier);
  if (characters.size() != 1 || altAlone || event.key() == Qt::Key_Delete || event.key() == Qt::Key_Tab) return 0;
  return characters.front();
}

}  // namespace plexel
