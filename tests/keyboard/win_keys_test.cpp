#include "keyboard/win_keys.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "keyboard/key_table.h"

namespace plexel {
namespace {

/// A layout with the virtual keys of the US or the German column.
class ColumnLayout : public LayoutKeys {
 public:
  explicit ColumnLayout(bool german) : german_(german) {}
  std::int32_t VirtualKeyOf(int code) const override {
    const KeyPosition* position = FindKeyPosition(code);
    if (position == nullptr) return 0;
    return german_ ? position->virtualKeyGerman : position->virtualKeyUs;
  }
  bool HasAltGr() const override { return german_; }

 private:
  bool german_;
};

/// Keys pressed and released one after the other; the reported events as "+vk/scan/extended" and "-vk/scan/extended".
class Keyboard {
 public:
  explicit Keyboard(bool german = false, bool numLock = false) : layout_(german), numLock_(numLock) {}
  Keyboard& Down(int code) { return Send(code, true); }
  Keyboard& Up(int code) { return Send(code, false); }
  std::string Heard() const { return heard_.str(); }
  WinKeys& Keys() { return keys_; }

 private:
  Keyboard& Send(int code, bool down) {
    for (const KeyEvent& event : keys_.Translate({code, down, 7}, layout_, numLock_)) {
      heard_ << (heard_.tellp() > 0 ? " " : "") << (event.down ? '+' : '-') << std::hex << std::uppercase
             << event.virtualKey << '/' << event.scanCode << '/' << event.extended;
      EXPECT_EQ(event.time, 7U);
    }
    return *this;
  }

  WinKeys keys_;
  ColumnLayout layout_;
  bool numLock_;
  std::ostringstream heard_;
};

constexpr int Pad4 = 75, Pad7 = 71, LetterA = 30, LetterY = 21, Home = 102, F13 = 183, F24 = 194;

TEST(WinKeys, AltGrReportsAFalseLeftCtrlAheadOfItselfInBothDirections) {
  EXPECT_EQ(Keyboard(true).Down(evdev::RightAlt).Up(evdev::RightAlt).Heard(), "+11/1D/0 +12/38/1 -11/1D/0 -12/38/1");
}

TEST(WinKeys, AHeldAltGrRepeatsWithItsFalseCtrl) {
  EXPECT_EQ(Keyboard(true).Down(evdev::RightAlt).Down(evdev::RightAlt).Heard(), "+11/1D/0 +12/38/1 +11/1D/0 +12/38/1");
}

TEST(WinKeys, RightAltOfALayoutWithoutAltGrStandsAlone) {
  EXPECT_EQ(Keyboard().Down(evdev::RightAlt).Up(evdev::RightAlt).Heard(), "+12/38/1 -12/38/1");
}

TEST(WinKeys, PrintReportsItsReleaseOnly) {
  EXPECT_EQ(Keyboard().Down(evdev::Print).Up(evdev::Print).Heard(), "-2C/37/1");
}

TEST(WinKeys, PrintWhosePressIsKeptFromUsIsReportedAllTheSame) {
  EXPECT_EQ(Keyboard().Up(evdev::Print).Heard(), "-2C/37/1");
}

TEST(WinKeys, ScrollLockWithCtrlIsBreak) {
  EXPECT_EQ(Keyboard().Down(evdev::ScrollLock).Up(evdev::ScrollLock).Heard(), "+91/46/0 -91/46/0");
  EXPECT_EQ(Keyboard().Down(evdev::RightCtrl).Down(evdev::ScrollLock).Up(evdev::ScrollLock).Heard(),
            "+11/1D/1 +3/46/0 -3/46/0");
}

TEST(WinKeys, AHeldPadKeyRepeatsAsWhatItWasPressed) {
  EXPECT_EQ(Keyboard(false, true).Down(Pad4).Down(evdev::LeftShift).Down(Pad4).Up(Pad4).Heard(),
            "+64/4B/0 +10/2A/0 +64/4B/0 -64/4B/0");
  EXPECT_EQ(Keyboard(false, true).Down(evdev::LeftShift).Down(Pad7).Down(Pad7).Up(Pad7).Heard(),
            "+10/2A/0 -10/2A/0 +24/47/0 +24/47/0 -24/47/0 +10/2A/0");
}

TEST(WinKeys, TheShiftThatIsStillHeldComesBackBehindAPadKey) {
  EXPECT_EQ(Keyboard(false, true)
                .Down(evdev::LeftShift)
                .Down(Pad7)
                .Down(evdev::RightShift)
                .Up(evdev::LeftShift)
                .Up(Pad7)
                .Up(evdev::RightShift)
                .Heard(),
            "+10/2A/0 -10/2A/0 +24/47/0 +10/36/0 -24/47/0 +10/36/0 -10/36/0");
  EXPECT_EQ(Keyboard(false, true)
                .Down(evdev::LeftShift)
                .Down(Pad7)
                .Down(evdev::RightShift)
                .Up(evdev::RightShift)
                .Up(Pad7)
                .Heard(),
            "+10/2A/0 -10/2A/0 +24/47/0 +10/36/0 -24/47/0 +10/2A/0");
}

TEST(WinKeys, PrintWithAltHeldHasTheScanCodeOfSysRq) {
  EXPECT_EQ(Keyboard().Down(evdev::LeftAlt).Down(evdev::Print).Up(evdev::Print).Up(evdev::LeftAlt).Heard(),
            "+12/38/0 -2C/54/0 -12/38/0");
}

TEST(WinKeys, PauseIsReleasedAsItIsPressedAndDoesNotRepeat) {
  EXPECT_EQ(Keyboard().Down(evdev::Pause).Down(evdev::Pause).Up(evdev::Pause).Heard(), "+13/45/0 -13/45/0");
}

TEST(WinKeys, PauseWithCtrlIsBreak) {
  EXPECT_EQ(Keyboard().Down(evdev::LeftCtrl).Down(evdev::Pause).Up(evdev::Pause).Up(evdev::LeftCtrl).Heard(),
            "+11/1D/0 +3/46/1 -3/46/1 -11/1D/0");
}

TEST(WinKeys, NumLockIsExtended) {
  EXPECT_EQ(Keyboard().Down(evdev::NumLock).Up(evdev::NumLock).Heard(), "+90/45/1 -90/45/1");
}

TEST(WinKeys, NumLockWithCtrlIsPause) {
  EXPECT_EQ(Keyboard().Down(evdev::LeftCtrl).Down(evdev::NumLock).Up(evdev::NumLock).Heard(),
            "+11/1D/0 +13/45/1 -13/45/1");
}

TEST(WinKeys, APadDigitHasItsNavigationKeyWithoutNumLock) {
  EXPECT_EQ(Keyboard().Down(Pad4).Up(Pad4).Heard(), "+25/4B/0 -25/4B/0");
}

TEST(WinKeys, APadDigitHasItsDigitWithNumLock) {
  EXPECT_EQ(Keyboard(false, true).Down(Pad4).Up(Pad4).Heard(), "+64/4B/0 -64/4B/0");
}

TEST(WinKeys, ShiftTurnsNumLockOffForAPadKeyWithAFalseReleaseAroundIt) {
  EXPECT_EQ(Keyboard(false, true).Down(evdev::LeftShift).Down(Pad7).Up(Pad7).Up(evdev::LeftShift).Heard(),
            "+10/2A/0 -10/2A/0 +24/47/0 -24/47/0 +10/2A/0 -10/2A/0");
}

TEST(WinKeys, TheFalseReleaseCoversAllPadKeysHeldTogether) {
  EXPECT_EQ(Keyboard(false, true).Down(evdev::RightShift).Down(Pad7).Down(Pad4).Up(Pad7).Up(Pad4).Heard(),
            "+10/36/0 -10/36/0 +24/47/0 +25/4B/0 -24/47/0 -25/4B/0 +10/36/0");
}

TEST(WinKeys, AShiftReleasedUnderAPadKeyIsNotReleasedTwice) {
  EXPECT_EQ(Keyboard(false, true).Down(evdev::LeftShift).Down(Pad7).Up(evdev::LeftShift).Up(Pad7).Heard(),
            "+10/2A/0 -10/2A/0 +24/47/0 -24/47/0");
}

TEST(WinKeys, ShiftHasNoEffectOnThePadWithoutNumLock) {
  EXPECT_EQ(Keyboard().Down(evdev::LeftShift).Down(Pad7).Up(Pad7).Up(evdev::LeftShift).Heard(),
            "+10/2A/0 +24/47/0 -24/47/0 -10/2A/0");
}

TEST(WinKeys, TheCursorBlockIsExtendedAndThePadIsNot) {
  EXPECT_EQ(Keyboard().Down(Home).Up(Home).Down(Pad7).Up(Pad7).Heard(), "+24/47/1 -24/47/1 +24/47/0 -24/47/0");
}

TEST(WinKeys, TheFirstReleaseOfTwoShiftsIsNotReported) {
  EXPECT_EQ(
      Keyboard().Down(evdev::LeftShift).Down(evdev::RightShift).Up(evdev::RightShift).Up(evdev::LeftShift).Heard(),
      "+10/2A/0 +10/36/0 -10/2A/0");
}

TEST(WinKeys, LeftAndRightCtrlDifferByTheExtendedFlag) {
  EXPECT_EQ(Keyboard().Down(evdev::LeftCtrl).Up(evdev::LeftCtrl).Down(evdev::RightCtrl).Up(evdev::RightCtrl).Heard(),
            "+11/1D/0 -11/1D/0 +11/1D/1 -11/1D/1");
}

TEST(WinKeys, AHeldKeyRepeatsItsPress) {
  EXPECT_EQ(Keyboard().Down(LetterA).Down(LetterA).Up(LetterA).Heard(), "+41/1E/0 +41/1E/0 -41/1E/0");
}

TEST(WinKeys, ALetterHasTheVirtualKeyOfItsLayout) {
  EXPECT_EQ(Keyboard(true).Down(LetterY).Heard(), "+5A/15/0");
  EXPECT_EQ(Keyboard(false).Down(LetterY).Heard(), "+59/15/0");
}

TEST(WinKeys, F13AndF24HaveTheirOwnScanCodes) {
  EXPECT_EQ(Keyboard().Down(F13).Down(F24).Heard(), "+7C/64/0 +87/76/0");
}

TEST(WinKeys, AReleaseOfAKeyThatIsNotDownReportsNothing) { EXPECT_EQ(Keyboard().Up(LetterA).Heard(), ""); }

TEST(WinKeys, AKeyThatNoPcHasReportsNothing) { EXPECT_EQ(Keyboard().Down(255).Down(-1).Down(100000).Heard(), ""); }

TEST(WinKeys, ALostReleaseIsFoundInThePhysicalState) {
  Keyboard keyboard;
  keyboard.Down(LetterA).Down(evdev::LeftCtrl);
  WinKeys::KeySet really;
  really.set(evdev::LeftCtrl);
  EXPECT_EQ(keyboard.Keys().LostRelease(really), LetterA);
  keyboard.Up(LetterA);
  EXPECT_EQ(keyboard.Keys().LostRelease(really), -1);
}

TEST(WinKeys, ResetForgetsEveryKey) {
  Keyboard keyboard;
  keyboard.Down(LetterA).Keys().Reset();
  EXPECT_TRUE(keyboard.Keys().Down().none());
  EXPECT_EQ(keyboard.Up(LetterA).Heard(), "+41/1E/0");
}

}  // namespace
}  // namespace plexel
