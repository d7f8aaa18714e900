#include "specialdialogs/frmSpecialIPCKey.h"

#include "services/dialogs.h"

namespace plexel {

frmSpecialIPCKey::frmSpecialIPCKey()
    : ListDialog({.form = dialogs::frmSpecialIPCKey,
                  .caption = "@2009",
                  .title = "labTitel",
                  .titleCaption = "@2013",
                  .list = "cmbSpecialFunction",
                  .helpTopic = HelpTopic}) {
  PlacePicture(imgSpecialFunction, "special-function");
}

}  // namespace plexel
