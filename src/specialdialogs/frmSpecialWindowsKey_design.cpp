#include "specialdialogs/frmSpecialWindowsKey.h"

namespace plexel {

frmSpecialWindowsKey::frmSpecialWindowsKey()
    : ListDialog({.form = "frmSpecialWindowsKey",
                  .caption = "@2015",
                  .title = "labTitel",
                  .titleCaption = "@2016",
                  .list = "cmbSpecialFunction",
                  .helpTopic = HelpTopic}) {
  PlacePicture(imgSpecialFunction, "windows-key");
}

}  // namespace plexel
