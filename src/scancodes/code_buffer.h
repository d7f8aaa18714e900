#pragma once

#include <cstdint>
#include <string_view>

#include "scancodes/key_translation.h"
#include "services/element_types.h"

namespace plexel {

/// Code types: make and break, make only, break only, taken from the dialog.
enum CodeType : std::int32_t { MakeAndBreak = 0, MakeOnly = 1, BreakOnly = 2, FromDialog = 3 };

/// Targets of codes and of capture.
inline constexpr std::int32_t TargetConfigurationDialog = 0;
inline constexpr std::int32_t TargetWizard = 2;

/// 0 if optCodeType 0 of the configuration dialog is set, 1 if 1 is, otherwise 2. No guard.
std::int32_t GetSelectedCodeType();

/// Bytes 0xFF at the indices 0 to NextValue of press and release buffer of a layer; 0 for a layer outside 1 to 4.
/// Failure (Index) for a NextValue above the last index.
std::int32_t CountGroupEnds(std::int32_t lngLayer, const udtTactisBaseElement_ScanCodeInfo& udtBuffer);

/// Whether `lngNewCodes` more code bytes fit the layer.
bool HasRoomForCodes(std::int32_t lngLayer, const udtTactisBaseElement_ScanCodeInfo& udtBuffer,
                     std::int32_t lngNewCodes);

/// Appends one group; a code type that is none appends nothing. Failure (Index) when a byte would land above the last
/// index or a length reaches beyond its sequence, Failure (Overflow) for a code that is no byte; what was written
/// stays.
void AppendCodeGroup(udtTactisBaseElement_TACTIS_SCANCODE& udtCode, const CodeArray& lngMake,
                     std::int32_t lngMakeLength, const CodeArray& lngBreak, std::int32_t lngBreakLength,
                     std::int32_t lngCodeType, std::int32_t lngUnused);

/// Brings one group into the current element: 0 stored, 1 no room. No guard.
std::int32_t StoreScanCodes(const CodeArray& lngMake, std::int32_t lngMakeLength, const CodeArray& lngBreak,
                            std::int32_t lngBreakLength, std::int32_t lngCodeType, std::int32_t lngUnused,
                            std::int32_t lngTarget);

/// Takes one group out of a buffer; false when there was none. Failure (Index) for a NextValue outside the buffer.
bool RemoveFirstCodeGroup(udtTactisBaseElement_TACTIS_SCANCODE& udtCode);
void RemoveLastCodeGroup(udtTactisBaseElement_TACTIS_SCANCODE& udtCode);

/// The same on the buffer of the grid's current cell, inside the current element. No guard.
void DeleteFirstCodeGroup();
void DeleteLastCodeGroup();

/// Sequences of a Windows shortcut, 0 to 18; any other index changes nothing.
void GetWindowsShortCutCodes(CodeArray& lngMake, std::int32_t& lngMakeLength, CodeArray& lngBreak,
                             std::int32_t& lngBreakLength, std::int32_t lngIndex);

/// The one code of a panel function; for any other index only the break length is set, to 0 as always.
void GetSpecialFunctionCode(CodeArray& lngMake, std::int32_t& lngMakeLength, CodeArray& lngBreak,
                            std::int32_t& lngBreakLength, std::int32_t lngIndex);

/// Set 2 code of a digit of the number pad; 0 for anything else.
std::int32_t DigitToKeypadCode(std::string_view strDigit);

}  // namespace plexel
