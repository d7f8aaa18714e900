#include "scancodes/frmNonStandardScancodes.h"

namespace plexel {

frmNonStandardScancodes::frmNonStandardScancodes()
    : ListDialog({.form = "frmNonStandardScancodes",
                  .caption = "@10815",
                  .title = "labTitle",
                  .titleCaption = "@10816",
                  .list = "cmbNonStandardScancodes",
                  .helpTopic = HelpTopic}) {}

}  // namespace plexel
