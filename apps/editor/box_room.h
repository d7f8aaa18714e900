#pragma once

class QMessageBox;

namespace plexel {

/// Gives the second text of a box, which must have been set, room for whole lines: by itself it becomes no wider than
/// the first text and the buttons.
void GiveRoom(QMessageBox& box);

}  // namespace plexel
