#pragma once

#include <windows.h>

#include <string>

namespace plexel {

/// The vector pictures of the product, by name: "pictures/NAME.svg" in the data directory.

/// The largest rectangle of a picture's own shape in the middle of another; empty when there is no such picture.
RECT FittingRect(const std::string& name, const RECT& area);
/// Draws a picture into a rectangle. A picture that is missing leaves it as it is.
void DrawPicture(HDC context, const std::string& name, const RECT& target);
/// A picture as an icon of a size in pixels, which the caller destroys; null for no picture.
HICON PictureIcon(const std::string& name, int side);

}  // namespace plexel
