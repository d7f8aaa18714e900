#pragma once

#include <cstdint>

namespace plexel {

/// The transfer of a finished dialog into the element. Unless told otherwise, a procedure ends quietly at its first
/// failure.

void ApplyDialogResult(std::int32_t lngTarget);
void ApplyConfigurationDialog();
/// The grid and combo readers have no guard.
void ReadGridIntoElement();
void ReadLedCombosIntoElement();
void ApplyWizardPages();
void ApplyWizardNormalKey();
void ApplyWizardTipKey();
void ApplyWizardIPCFunction();
void ApplyWizardWindowsShortCut();

}  // namespace plexel
