#include "specialdialogs/frmSpecialWindowsKey.h"

#include "services/dialogs.h"

namespace plexel {

frmSpecialWindowsKey::frmSpecialWindowsKey()
    : ListDialog({.form = dialogs::frmSpecialWindowsKey,
                  .caption = "@2015",
                  .title = "labTitel",
                  .titleCaption = "@2016",
                  .list = "cmbSpecialFunction",
                  .helpTopic = HelpTopic}) {
  PlacePicture(imgSpecialFunction, "windows-key");
}

}  // namespace plexel
