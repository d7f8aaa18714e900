#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "services/element_types.h"
#include "services/saved_positions.h"
#include "services/surroundings.h"

namespace plexel {

class Form;

/// Language text of a number, from the current language service. Failures of the service pass to the caller.
std::string GetText(std::int32_t number);
/// Replaces every caption and text of the form and its controls that begins with the prefix and a number by the
/// language text of that number; what follows the number goes with it. A number without a text leaves all as it stands.
void TranslateForm(Form& form, std::string_view prefix);

/// Settings of the host. Failures of the service pass to the caller.
Boolean GetOption(std::int32_t number);
std::string GetParameter(std::int32_t number);
std::string GetWindowPosition(std::int32_t number);
std::string GetBasePath();
std::string GetLanguageName();

/// Whether the capability service answers 1.
bool TargetHas(Capability query, std::string_view targetSystem);

/// Sets lngOsFamily: 0 for platform id 1, otherwise 1.
void DetermineOsFamily();
/// Logical pixels of an inch, horizontally.
std::int32_t GetScreenLogPixels();
/// 1.0 at 96 pixels an inch, else pixels / 96.
double GetDpiScaleFactor();

/// The name of the help file of the current language.
std::string HelpFileName();
/// Opens a topic of it. The owner is accepted and not used.
void ShowHelpTopic(std::intptr_t owner, std::int32_t topic);

/// The enumLedType of a text of the current language; LedNotEnabled for a text that is none.
enumLedType LedTextToType(std::string_view text);
/// The text of an enumLedType; empty outside 0 to 14.
std::string LedTypeToText(std::int32_t type);

inline constexpr std::string_view PositionKey = "SOFTWARE\\TALVEN\\PLEXEL\\PARAMETERS";
struct StoredPosition {
  SavedPosition position;
  std::string text;
};
/// Stores values of a dialog's position under the component's registry key, in their order, and closes the key in any
/// case. Results of the registry are not looked at.
void StorePositions(std::initializer_list<StoredPosition> positions);

}  // namespace plexel
