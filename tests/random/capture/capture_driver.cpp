// Plays random key streams into the component's capture and prints, for each, the text and a checksum of all code
// buffers. check.py plays the same streams into the second telling and compares.

#include "scancodes/capture.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "scancodes/dialog_access.h"
#include "scancodes/keyboard_hook.h"
#include "services/dialogs.h"
#include "world/world.h"

namespace {

using namespace plexel;

/// splitmix64, the same as in check.py.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}
  std::uint32_t Below(std::uint32_t bound) {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    z ^= z >> 31;
    return static_cast<std::uint32_t>(z % bound);
  }

 private:
  std::uint64_t state_;
};

struct Key {
  std::int32_t virtualKey, scanCode, extended;
};

// The keys and the characters stand in check.py in the same order.
constexpr Key keys[] = {
    {0x11, 0x1D, 0}, {0x11, 0x1D, 1}, {0x10, 0x2A, 0}, {0x10, 0x36, 0}, {0x12, 0x38, 0}, {0x12, 0x38, 1},
    {0x41, 0x1E, 0}, {0x42, 0x30, 0}, {0x31, 0x02, 0}, {0x0D, 0x1C, 0}, {0x0D, 0x1C, 1}, {0x2C, 0x37, 1},
    {0x2C, 0x54, 0}, {0x13, 0x45, 0}, {0x03, 0x46, 1}, {0x90, 0x45, 1}, {0x91, 0x46, 0}, {0x24, 0x47, 1},
    {0x67, 0x47, 0}, {0x26, 0x48, 1}, {0x21, 0x49, 1}, {0x25, 0x4B, 1}, {0x64, 0x4B, 0}, {0x27, 0x4D, 1},
    {0x66, 0x4D, 0}, {0x23, 0x4F, 1}, {0x28, 0x50, 1}, {0x22, 0x51, 1}, {0x2D, 0x52, 1}, {0x2E, 0x53, 1},
    {0x6E, 0x53, 0}, {0x6F, 0x35, 1}, {0xBF, 0x35, 0}, {0x6A, 0x37, 0}, {0x6B, 0x4E, 0}, {0x6D, 0x4A, 0},
    {0x5B, 0x5B, 1}, {0x5C, 0x5C, 1}, {0x5D, 0x5D, 1}, {0x70, 0x3B, 0}, {0x7C, 0x64, 0}, {0x87, 0x76, 0},
    {0xDB, 0x1A, 0}, {0xDD, 0x1B, 0}, {0xDC, 0x29, 0}, {0xBA, 0x27, 0}, {0xE2, 0x56, 0}, {0xAD, 0x20, 1},
    {0x88, 0x5E, 0}, {0xFF, 0x54, 0}, {0x00, 0x00, 0}, {0x00, 0x1E, 1}, {0x41, 0x77, 0}, {0x1B, 0x01, 0},
    {0x09, 0x0F, 0}, {0x08, 0x0E, 0}, {0x20, 0x39, 0}, {0x0C, 0x4C, 0}, {0x65, 0x4C, 0}, {0x43, 0xFF, 1}};
constexpr std::uint32_t KeyCount = sizeof keys / sizeof keys[0];

struct Character {
  std::int32_t virtualKey, count;
  const char16_t* text;
};
constexpr Character characters[] = {{0x41, 1, u"a"},      {0x42, 1, u"b"}, {0x43, 1, u"c"}, {0x31, 1, u"1"},
                                    {0xBF, 1, u"/"},      {0xDB, 1, u"["}, {0xDD, 1, u"]"}, {0xDC, -1, u"^"},
                                    {0xBA, 1, u"\u00FC"}, {0xE2, 1, u"<"}, {0x6E, 1, u"."}, {0x88, 0, u""},
                                    {0xFF, -2, u""},      {0xAD, 0, u""},  {0x00, 0, u""},  {0x03, 0, u""}};

constexpr std::array<std::int32_t, 4> modifiers = {0x10, 0x90, 0x12, 0x11};

std::uint32_t Checksum(const udtTactisBaseElement_ScanCodeInfo& record) {
  std::uint32_t sum = 0xFFFFFFFFU;
  const auto take = [&sum](std::uint32_t byte) {
    sum ^= byte;
    for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1) ^ (0xEDB88320U & (0U - (sum & 1U)));
  };
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    for (const auto* buffer : {PressBuffer(record, layer), ReleaseBuffer(record, layer)}) {
      for (const std::uint8_t byte : buffer->Value) take(byte);
      take(static_cast<std::uint32_t>(buffer->NextValue) & 0xFFU);
    }
  }
  return ~sum;
}

void Send(const Key& key, bool up) {
  std::int32_t flags = 1 | (key.scanCode << 16) | (key.extended << 24);
  if (up) flags |= static_cast<std::int32_t>(0xC0000000U);
  KeyboardHookProc(0, key.virtualKey, flags);
}

void PlayEvents(Random& random, HeadlessPlatform& platform) {
  std::array<std::uint32_t, 12> pool{};
  const std::uint32_t poolSize = 1 + random.Below(12);
  for (std::uint32_t i = 0; i < poolSize; ++i) pool[i] = random.Below(KeyCount);
  const std::uint32_t events = 1 + random.Below(48);
  for (std::uint32_t i = 0; i < events; ++i) {
    if (random.Below(8) == 0) {
      const std::int32_t modifier = modifiers[random.Below(4)];
      platform.Keys().IsDown(modifier) ? platform.Keys().Free(modifier) : platform.Keys().Hold(modifier);
    }
    const Key& key = keys[pool[random.Below(poolSize)]];
    Send(key, random.Below(2) == 1);
  }
  if (random.Below(4) != 0)
    for (std::uint32_t i = 0; i < poolSize; ++i) Send(keys[pool[i]], true);
  for (const std::int32_t modifier : modifiers) platform.Keys().Free(modifier);
}

udtTactisBaseElement_ScanCodeInfo FreshRecord(ctlPlexelBaseElement& element) {
  udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
  ZeroAllBuffers(record);
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer)
    for (auto* buffer : {PressBuffer(record, layer), ReleaseBuffer(record, layer)})
      std::fill_n(buffer->Value.begin(), 45, std::uint8_t{0xFF});
  return record;
}

void PlayStreams(std::int32_t target, std::uint32_t first, std::uint32_t last, std::uint64_t seed,
                 ctlPlexelBaseElement& element, HeadlessPlatform& platform) {
  for (std::uint32_t stream = first; stream < last; ++stream) {
    Random random(seed * 1000003U + stream);
    const std::uint32_t choice = random.Below(target == 0 ? 3 : 4);
    const auto column = static_cast<int>(1 + random.Below(2)), row = static_cast<int>(1 + random.Below(4));
    const std::int32_t limit = random.Below(2) == 0 ? 43 : 22;
    if (target == 0) {
      ConfigurationDialogAccess& dialog = OpenConfigurationDialogAccess();
      dialog.CodeTypeOption(static_cast<int>(choice)).Value(true);
      dialog.ScanCodeGrid().Current(row, column);
      dialog.ScanCodeGrid().Text("");
    } else {
      OpenWizardPageAccess().KeyTypeOption(static_cast<int>(choice)).Value(true);
      OpenWizardPageAccess().ScanCodeBox().Text("");
    }
    Module().lngMaxScanCodes = limit;
    element.TactisBaseElementScanCodeBuffer(FreshRecord(element));
    SetDirectInput(True, target);
    PlayEvents(random, platform);
    SetDirectInput(False, target);
    const std::string& text = target == 0 ? OpenConfigurationDialogAccess().ScanCodeGrid().Text()
                                          : OpenWizardPageAccess().ScanCodeBox().Text();
    std::printf("%08X %s\n", Checksum(element.TactisBaseElementScanCodeBuffer()), text.c_str());
  }
}

}  // namespace

int main(int count, char** words) {
  if (count != 3) {
    std::fprintf(stderr, "usage: capture_driver SEED STREAMS\n");
    return 2;
  }
  const std::uint64_t seed = std::strtoull(words[1], nullptr, 10);
  const auto streams = static_cast<std::uint32_t>(std::strtoul(words[2], nullptr, 10));

  World world;
  HeadlessPlatform& platform = world.platform;
  for (const Character& character : characters)
    platform.Layout().KeyText(character.virtualKey, character.count, character.text);

  const auto element = world.component.Create("F1", world.host);
  element->ElementType(Oval);
  platform.Modal().onRun = [&](Form& form) {
    const bool wizard = form.Name() != dialogs::frmConfigurationDialog;
    PlayStreams(wizard ? 2 : 0, wizard ? streams / 2 : 0, wizard ? streams : streams / 2, seed, *element, platform);
    form.Unload();
  };
  element->OpenConfigurationDialog();
  world.host.Forget();
  element->WizardOn(True);
  element->WizardOptions(NormalKey);
  element->OpenConfigurationDialog();
  return 0;
}
