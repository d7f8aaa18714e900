#include "services/shared_services.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "forms/form.h"
#include "platform/clean_up.h"
#include "platform/platform.h"
#include "services/failure_styles.h"
#include "services/led_functions.h"
#include "services/module_state.h"

namespace plexel {

namespace {

/// The order in which a text is compared: that of the text numbers.
constexpr auto comparingOrder = [] {
  std::array<enumLedType, LedFunctions.size()> order{};
  std::ranges::transform(LedFunctions, order.begin(), &LedFunction::type);
  std::ranges::sort(order, {}, [](enumLedType type) { return LedFunctions[type].textId; });
  return order;
}();

SettingsService& Settings() { return Surroundings::Current().Settings(); }

/// The number behind the prefix at the beginning of a text, -1 without one.
std::int32_t MarkedNumber(std::string_view text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return -1;
  text.remove_prefix(prefix.size());
  std::int32_t number = -1;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

template <typename Assign>
void Translate(std::string_view text, std::string_view prefix, Assign&& assign) {
  const std::int32_t number = MarkedNumber(text, prefix);
  if (number < 0) return;
  std::string translated = GetText(number);
  if (!translated.empty()) assign(std::move(translated));
}

}  // namespace

std::string GetText(std::int32_t number) {
  std::string text;
  Surroundings::Current().Language().GetText(number, text);
  return text;
}

void TranslateForm(Form& form, std::string_view prefix) {
  Translate(form.Caption(), prefix, [&](std::string text) { form.Caption(std::move(text)); });
  for (Control* control : form.Controls()) {
    for (const TextSlot& slot : control->Texts()) Translate(slot.current, prefix, slot.assign);
  }
}

Boolean GetOption(std::int32_t number) {
  Boolean value = False;
  Settings().GetOption(number, value);
  return value;
}

std::string GetParameter(std::int32_t number) {
  std::string text;
  Settings().GetParameter(number, text);
  return text;
}

std::string GetWindowPosition(std::int32_t number) {
  std::string text;
  Settings().GetWindowPosition(number, text);
  return text;
}

std::string GetBasePath() {
  std::string text;
  Settings().GetBasePath(text);
  return text;
}

std::string GetLanguageName() {
  std::string text;
  Settings().GetLanguageName(text);
  return text;
}

bool TargetHas(Capability query, std::string_view targetSystem) {
  return Surroundings::Current().Capabilities().Ask(query, targetSystem) == 1;
}

void DetermineOsFamily() {
  OsVersionRecord record;
  record.size = 148;
  Platform::Current().Version().Get(record);
  Module().lngOsFamily = record.platformId == 1 ? 0 : 1;
}

std::int32_t GetScreenLogPixels() {
  Screen& screen = Platform::Current().TheScreen();
  const std::intptr_t context = screen.CreateInformationContext();
  std::int32_t pixels = 0;
  AndThen([&] { pixels = screen.DeviceCapability(context, Screen::LogicalPixelsX); },
          [&] { PassOver([&] { screen.DeleteContext(context); }); });
  return pixels;
}

double GetDpiScaleFactor() { return GetScreenLogPixels() / 96.0; }

std::string HelpFileName() {
  const std::string basePath = GetBasePath();
  return basePath + "\\Help" + "\\Plexel" + GetLanguageName() + ".chm";
}

void ShowHelpTopic(std::intptr_t, std::int32_t topic) {
  const std::string file = HelpFileName();
  Platform::Current().Help().Show(0, file, HelpViewer::HelpContext, topic);
}

enumLedType LedTextToType(std::string_view text) {
  for (const enumLedType type : comparingOrder) {
    if (GetText(LedFunctions[type].textId) == text) return type;
  }
  return LedNotEnabled;
}

std::string LedTypeToText(std::int32_t type) {
  const auto place = static_cast<std::size_t>(type);  // far behind the last for a negative one
  return place >= LedFunctions.size() ? std::string() : GetText(LedFunctions[place].textId);
}

void StorePositions(std::initializer_list<StoredPosition> positions) {
  const auto registry = []() -> Registry& { return Platform::Current().UserRegistry(); };
  std::intptr_t key = 0;
  registry().OpenKey(Registry::CurrentUser, PositionKey, 0, Registry::AccessSetValue, key);
  const auto store = [&] {
    for (const auto& [position, text] : positions) {
      const auto length = static_cast<std::int32_t>(text.size());
      registry().SetValue(key, PositionName(position), 0, Registry::TypeText, text, length);
    }
  };
  AndThen(store, [&] { registry().CloseKey(key); });
}

}  // namespace plexel
