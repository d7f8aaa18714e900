#include "scancodes/list_dialog.h"

#include "services/failure_styles.h"
#include "services/shared_services.h"

namespace plexel {

void ListDialog::ShowFirstEntry() { list.Text(list.ListCount() == 0 ? std::string() : list.List(0)); }

void ListDialog::cmdCancel_Click() {
  EndQuietly([this] { Unload(); });
}

void ListDialog::cmdHelp_Click() {
  EndQuietly([this] { ShowHelpTopic(reinterpret_cast<std::intptr_t>(static_cast<Window*>(this)), HelpContextID()); });
}

}  // namespace plexel
