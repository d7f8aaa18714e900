#include "scancodes/frmNonStandardScancodes.h"

#include "services/dialogs.h"

namespace plexel {

frmNonStandardScancodes::frmNonStandardScancodes()
    : ListDialog({.form = dialogs::frmNonStandardScancodes,
                  .caption = "@10815",
                  .title = "labTitle",
                  .titleCaption = "@10816",
                  .list = "cmbNonStandardScancodes",
                  .helpTopic = HelpTopic}) {}

}  // namespace plexel
