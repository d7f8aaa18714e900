#pragma once

#include <array>

#include "forms/form_name.h"

namespace plexel::dialogs {

/// The component's dialogs by name.
inline constexpr FormName frmConfigurationDialog{"frmConfigurationDialog"},
    frmButtonWizardPage1{"frmButtonWizardPage1"}, frmButtonWizardPage2{"frmButtonWizardPage2"},
    frmButtonWizardPage3{"frmButtonWizardPage3"}, frmPropertiesButton{"frmPropertiesButton"},
    frmSpecialIPCKey{"frmSpecialIPCKey"}, frmSpecialWindowsKey{"frmSpecialWindowsKey"},
    frmASCIICharacterTable{"frmASCIICharacterTable"}, frmNonStandardScancodes{"frmNonStandardScancodes"};

inline constexpr std::array All = {frmConfigurationDialog, frmButtonWizardPage1,   frmButtonWizardPage2,
                                   frmButtonWizardPage3,   frmPropertiesButton,    frmSpecialIPCKey,
                                   frmSpecialWindowsKey,   frmASCIICharacterTable, frmNonStandardScancodes};

}  // namespace plexel::dialogs
