#pragma once

struct xcb_connection_t;

namespace plexel {

/// The application's connection to an X server; null on any other desktop. It holds as long as the application object.
xcb_connection_t* XConnection();

}  // namespace plexel
