#pragma once

#include <windows.h>

#include <filesystem>

namespace plexel {

/// Writes what a window shows on the screen into a picture file. False when it cannot.
bool WritePicture(HWND window, const std::filesystem::path& file);

}  // namespace plexel
