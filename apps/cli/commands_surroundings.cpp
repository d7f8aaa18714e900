#include "cli/commands.h"

#include <algorithm>
#include <array>

#include "cli/command_error.h"
#include "cli/record_json.h"
#include "files/text_lines.h"

namespace plexel {

namespace {

Capability QueryNamed(const std::string& name) {
  const std::optional<Capability> query = CapabilityNamed(name);
  if (!query) throw CommandError("the capability service has no query " + Excerpt(name));
  return *query;
}

Fault FaultNamed(const std::string& name) {
  const std::optional<Fault> fault = Faults::Named(name);
  if (!fault) throw CommandError("no fault is named " + Excerpt(name));
  return *fault;
}

void SetOption(Workbench& bench, Arguments& arguments, Json&) {
  const std::int32_t number = arguments.Int32();
  bench.surroundings.Settings().Option(number, Boolean::Raw(arguments.Int16()));
}

void SetParameter(Workbench& bench, Arguments& arguments, Json&) {
  const std::int32_t number = arguments.Int32();
  bench.surroundings.Settings().Parameter(number, arguments.Text());
}

void SetPosition(Workbench& bench, Arguments& arguments, Json&) {
  const std::int32_t number = arguments.Int32();
  bench.surroundings.Settings().Position(number, arguments.Text());
}

void SetLanguage(Workbench& bench, Arguments& arguments, Json&) { bench.UseLanguage(arguments.Text()); }

void SetBase(Workbench& bench, Arguments& arguments, Json&) {
  bench.surroundings.Settings().BasePath(arguments.Text());
}

void SetText(Workbench& bench, Arguments& arguments, Json&) {
  const std::int32_t number = arguments.Int32();
  bench.surroundings.Language().Set(number, arguments.Text());
}

void SetCapability(Workbench& bench, Arguments& arguments, Json&) {
  const std::string target = arguments.Text();
  const Capability query = QueryNamed(arguments.Text());
  bench.surroundings.Capabilities().Set(target, query, arguments.Int32());
}

void SetLed(Workbench& bench, Arguments& arguments, Json&) {
  if (arguments.Left() == 1) {
    const std::string word = arguments.Text();
    if (word != "missing") throw CommandError("usage: led TYPE LAYER VALUE, or led missing");
    bench.host.TakeMemberAway();
    return;
  }
  const std::int32_t type = arguments.Int32();
  const std::int32_t layer = arguments.Int32();
  bench.host.LedDefined(type, layer, Boolean::Raw(arguments.Int16()));
}

void SetScreen(Workbench& bench, Arguments& arguments, Json&) {
  const float x = arguments.Single();
  bench.platform.TheScreen().TwipsPerPixel(x, arguments.Single());
}

void SetDpi(Workbench& bench, Arguments& arguments, Json&) {
  bench.platform.TheScreen().LogicalPixels(arguments.Int32());
}

void SetPlatform(Workbench& bench, Arguments& arguments, Json&) {
  bench.platform.Version().PlatformId(arguments.Int32());
}

void SetLayout(Workbench& bench, Arguments& arguments, Json&) { bench.UseLayout(arguments.Text()); }

void SetKeyText(Workbench& bench, Arguments& arguments, Json&) {
  constexpr std::size_t MostBytes = 200;
  const std::int32_t virtualKey = arguments.Int32();
  const std::int32_t result = arguments.Int32();
  const std::vector<std::uint8_t> bytes = TextToBytes(arguments.Text(), MostBytes);
  if (bytes.size() % 2 != 0) throw CommandError("a 16-bit character has two bytes");
  std::u16string text;
  for (std::size_t i = 0; i < bytes.size(); i += 2) text += static_cast<char16_t>(bytes[i] + 256 * bytes[i + 1]);
  bench.platform.Layout().KeyText(virtualKey, result, std::move(text));
}

void HoldKey(Workbench& bench, Arguments& arguments, Json&) {
  bench.platform.Keys().Hold(arguments.UpTo(KeyRoad::LastVirtualKey, "virtual key"));
}

void FreeKey(Workbench& bench, Arguments& arguments, Json&) {
  bench.platform.Keys().Free(arguments.UpTo(KeyRoad::LastVirtualKey, "virtual key"));
}

void SetFault(Workbench& bench, Arguments& arguments, Json&) {
  const Fault fault = FaultNamed(arguments.Text());
  bench.platform.faults.Turn(fault, arguments.Choice("on", "off"));
}

void Trace(Workbench& bench, Arguments& arguments, Json&) {
  if (arguments.Text() != "notices") throw CommandError("usage: trace notices on, or trace notices off");
  bench.host.TraceNotices(arguments.Choice("on", "off"));
}

constexpr auto commands = std::to_array<Command>({{"option", "N VALUE", 2, 2, SetOption},
                                                  {"parameter", "N TEXT", 2, 2, SetParameter},
                                                  {"position", "N TEXT", 2, 2, SetPosition},
                                                  {"language", "NAME", 1, 1, SetLanguage},
                                                  {"base", "DIR", 1, 1, SetBase},
                                                  {"text", "N TEXT", 2, 2, SetText},
                                                  {"capability", "TARGET QUERY VALUE", 3, 3, SetCapability},
                                                  {"led", "TYPE LAYER VALUE | missing", 1, 3, SetLed},
                                                  {"screen", "X Y", 2, 2, SetScreen},
                                                  {"dpi", "N", 1, 1, SetDpi},
                                                  {"platform", "N", 1, 1, SetPlatform},
                                                  {"layout", "NAME", 1, 1, SetLayout},
                                                  {"keytext", "VK RESULT \"BYTES\"", 3, 3, SetKeyText},
                                                  {"hold", "VK", 1, 1, HoldKey},
                                                  {"free", "VK", 1, 1, FreeKey},
                                                  {"fault", "NAME on|off", 2, 2, SetFault},
                                                  {"trace", "notices on|off", 2, 2, Trace}});

}  // namespace

std::span<const Command> SurroundingsCommands() { return commands; }

}  // namespace plexel
