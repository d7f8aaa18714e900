#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace plexel {

/// A drawing as the product's pictures hold it: figures of rectangles, circles and paths, filled and outlined. Of the
/// picture format this is the part that the pictures use; what else stands in a file is passed over.
struct VectorPicture {
  struct Point {
    float x = 0, y = 0;
  };
  /// A step of an outline. A curve has two points that pull it ahead of its end.
  struct Step {
    enum class Kind { Move, Line, Curve, Close };
    Kind kind = Kind::Move;
    Point end, pullOfStart = {}, pullOfEnd = {};
  };
  /// 0xAARRGGBB.
  using Colour = std::uint32_t;
  /// One colour, or two, of which the second stands at the lower edge.
  struct Paint {
    Colour colour = 0;
    std::optional<Colour> lower;
  };
  struct Figure {
    std::vector<Step> steps;
    std::optional<Paint> fill;
    std::optional<Colour> stroke;
    float strokeWidth = 1;
    bool roundCaps = false, roundJoins = false;
  };

  float width = 0, height = 0;
  std::vector<Figure> figures;
};

/// The picture of a file's text; one without size and figures when it is none.
VectorPicture ReadVectorPicture(std::string_view text);

}  // namespace plexel
