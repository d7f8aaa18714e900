#include "win32/vector_picture.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <string>

namespace plexel {

namespace {

using Attributes = std::map<std::string, std::string, std::less<>>;
using Point = VectorPicture::Point;
using Step = VectorPicture::Step;

constexpr float Pi = 3.14159265F;

struct Element {
  std::string name;
  Attributes attributes;
  bool opens = false, closes = false;
};

bool IsBlank(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

/// Takes the elements of a text one after the other.
class Elements {
 public:
  explicit Elements(std::string_view text) : text_(text) {}

  std::optional<Element> Next() {
    const std::size_t start = text_.find('<');
    const std::size_t end = text_.find('>', start == std::string_view::npos ? 0 : start);
    if (start == std::string_view::npos || end == std::string_view::npos) return std::nullopt;
    std::string_view inside = text_.substr(start + 1, end - start - 1);
    text_.remove_prefix(end + 1);
    Element element;
    element.closes = inside.starts_with('/');
    if (element.closes) inside.remove_prefix(1);
    element.opens = !element.closes && !inside.ends_with('/');
    const std::size_t nameEnd = std::min(inside.find_first_of(" \n\r\t/"), inside.size());
    element.name = inside.substr(0, nameEnd);
    inside.remove_prefix(nameEnd);
    for (std::size_t sign = inside.find('='); sign != std::string_view::npos; sign = inside.find('=')) {
      std::string_view name = inside.substr(0, sign);
      while (!name.empty() && IsBlank(name.front())) name.remove_prefix(1);
      const std::size_t from = inside.find('"', sign), to = inside.find('"', from + 1);
      if (from == std::string_view::npos || to == std::string_view::npos) break;
      element.attributes[std::string(name)] = inside.substr(from + 1, to - from - 1);
      inside.remove_prefix(to + 1);
    }
    return element;
  }

 private:
  std::string_view text_;
};

std::string_view Find(const Attributes& attributes, std::string_view name) {
  const auto found = attributes.find(name);
  return found == attributes.end() ? std::string_view() : std::string_view(found->second);
}

float Number(const Attributes& attributes, std::string_view name, float otherwise = 0) {
  const std::string text(Find(attributes, name));
  return text.empty() ? otherwise : std::strtof(text.c_str(), nullptr);
}

/// Draws an outline.
class Outline {
 public:
  void MoveTo(Point to) { Add({Step::Kind::Move, to}); }
  void LineTo(Point to) { Add({Step::Kind::Line, to}); }
  void CurveTo(Point first, Point second, Point to) { Add({Step::Kind::Curve, to, first, second}); }
  void Close() { steps_.push_back({Step::Kind::Close, here_}); }
  /// An arc of a circle round a centre, from one angle to another, in pieces of a quarter at most.
  void Arc(Point centre, float radius, float from, float to) {
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(to - from) / (Pi / 2) - 0.001F)));
    const float step = (to - from) / static_cast<float>(pieces);
    const float pull = 4.0F / 3 * std::tan(step / 4) * radius;
    for (int piece = 0; piece < pieces; ++piece) {
      const float a = from + step * static_cast<float>(piece), b = a + step;
      const Point start = {centre.x + radius * std::cos(a), centre.y + radius * std::sin(a)};
      const Point end = {centre.x + radius * std::cos(b), centre.y + radius * std::sin(b)};
      CurveTo({start.x - pull * std::sin(a), start.y + pull * std::cos(a)},
              {end.x + pull * std::sin(b), end.y - pull * std::cos(b)}, end);
    }
  }
  Point Here() const { return here_; }
  std::vector<Step> Take() { return std::move(steps_); }

 private:
  void Add(const Step& step) {
    steps_.push_back(step);
    here_ = step.end;
  }

  std::vector<Step> steps_;
  Point here_;
};

std::vector<Step> Rectangle(const Attributes& attributes) {
  const float left = Number(attributes, "x"), top = Number(attributes, "y");
  const float right = left + Number(attributes, "width"), bottom = top + Number(attributes, "height");
  const float r = std::min({Number(attributes, "rx"), (right - left) / 2, (bottom - top) / 2});
  Outline outline;
  outline.MoveTo({left + r, top});
  outline.LineTo({right - r, top});
  if (r > 0) outline.Arc({right - r, top + r}, r, -Pi / 2, 0);
  outline.LineTo({right, bottom - r});
  if (r > 0) outline.Arc({right - r, bottom - r}, r, 0, Pi / 2);
  outline.LineTo({left + r, bottom});
  if (r > 0) outline.Arc({left + r, bottom - r}, r, Pi / 2, Pi);
  outline.LineTo({left, top + r});
  if (r > 0) outline.Arc({left + r, top + r}, r, Pi, Pi * 3 / 2);
  outline.Close();
  return outline.Take();
}

std::vector<Step> Circle(const Attributes& attributes) {
  const Point centre = {Number(attributes, "cx"), Number(attributes, "cy")};
  const float radius = Number(attributes, "r");
  Outline outline;
  outline.MoveTo({centre.x + radius, centre.y});
  outline.Arc(centre, radius, 0, 2 * Pi);
  outline.Close();
  return outline.Take();
}

/// An arc of a circle by its ends: of the four there are, the one that the two flags choose.
void ArcTo(Outline& outline, float radius, bool large, bool clockwise, Point to) {
  const Point from = outline.Here();
  const float dx = to.x - from.x, dy = to.y - from.y, chord = std::hypot(dx, dy);
  if (chord == 0) return;
  const float r = std::max(radius, chord / 2);
  const float away = std::sqrt(std::max(0.0F, r * r - chord * chord / 4)) * (large == clockwise ? 1.0F : -1.0F);
  const Point centre = {(from.x + to.x) / 2 + away * dy / chord, (from.y + to.y) / 2 - away * dx / chord};
  const float start = std::atan2(from.y - centre.y, from.x - centre.x);
  float end = std::atan2(to.y - centre.y, to.x - centre.x);
  if (clockwise && end < start) end += 2 * Pi;
  if (!clockwise && end > start) end -= 2 * Pi;
  outline.Arc(centre, r, start, end);
}

/// The commands M, L, H, V, C, A and Z with places that count from the corner.
std::vector<Step> Path(std::string_view data) {
  const std::string text(data);
  const char* place = text.c_str();
  Outline outline;
  char command = 0;
  const auto number = [&place] {
    while (IsBlank(*place) || *place == ',') ++place;
    char* end = nullptr;
    const float value = std::strtof(place, &end);
    place = end;
    return value;
  };
  const auto point = [&number] {
    const float x = number();
    return Point{x, number()};
  };
  while (true) {
    while (IsBlank(*place) || *place == ',') ++place;
    if (*place == 0) break;
    if (*place >= 'A' && *place <= 'Z') command = *place++;
    const char* const before = place;
    switch (command) {
      case 'M':
        outline.MoveTo(point());
        command = 'L';
        break;
      case 'L':
        outline.LineTo(point());
        break;
      case 'H':
        outline.LineTo({number(), outline.Here().y});
        break;
      case 'V':
        outline.LineTo({outline.Here().x, number()});
        break;
      case 'C': {
        const Point first = point(), second = point();
        outline.CurveTo(first, second, point());
        break;
      }
      case 'A': {
        const float radius = number();
        number();  // of a circle both radii are one, and it has no slope
        number();
        const bool large = number() != 0, clockwise = number() != 0;
        ArcTo(outline, radius, large, clockwise, point());
        break;
      }
      case 'Z':
        outline.Close();
        continue;
      default:
        return outline.Take();
    }
    if (place == before) break;
  }
  return outline.Take();
}

std::optional<VectorPicture::Colour> ColourIn(std::string_view text, float opacity) {
  constexpr std::size_t Length = 7;
  if (text.size() != Length || text.front() != '#') return std::nullopt;
  const auto rgb = static_cast<std::uint32_t>(std::strtoul(std::string(text.substr(1)).c_str(), nullptr, 16));
  return static_cast<std::uint32_t>(std::lround(opacity * 255)) << 24U | rgb;
}

/// Reads the elements into figures. What a group says holds for those in it.
class Reader {
 public:
  VectorPicture Read(std::string_view text) {
    Elements elements(text);
    while (const std::optional<Element> element = elements.Next()) Take(*element);
    return std::move(picture_);
  }

 private:
  void Take(const Element& element) {
    if (element.name == "g") return TakeGroup(element);
    if (element.closes) return;
    const Attributes& own = element.attributes;
    if (element.name == "svg") {
      picture_.width = Number(own, "width");
      picture_.height = Number(own, "height");
    } else if (element.name == "linearGradient") {
      gradient_ = Find(own, "id");
    } else if (element.name == "stop") {
      const auto colour = ColourIn(Find(own, "stop-color"), 1);
      VectorPicture::Paint& paint = gradients_[gradient_];
      if (Number(own, "offset") == 0) {
        paint.colour = colour.value_or(0);
      } else {
        paint.lower = colour;
      }
    } else if (element.name == "rect") {
      Add(own, Rectangle(own));
    } else if (element.name == "circle") {
      Add(own, Circle(own));
    } else if (element.name == "path") {
      Add(own, Path(Find(own, "d")));
    }
  }

  void TakeGroup(const Element& element) {
    if (element.closes && !groups_.empty()) groups_.pop_back();
    if (!element.opens) return;
    Attributes all = groups_.empty() ? Attributes() : groups_.back();
    for (const auto& [name, value] : element.attributes) all[name] = value;
    groups_.push_back(std::move(all));
  }

  void Add(const Attributes& own, std::vector<Step> steps) {
    Attributes all = own;
    if (!groups_.empty()) all.insert(groups_.back().begin(), groups_.back().end());
    VectorPicture::Figure figure;
    figure.steps = std::move(steps);
    const std::string_view fill = Find(all, "fill");
    constexpr std::string_view Reference = "url(#";
    if (fill.starts_with(Reference)) {
      figure.fill = gradients_[std::string(fill.substr(Reference.size(), fill.size() - Reference.size() - 1))];
    } else if (const auto colour = ColourIn(fill, Number(all, "fill-opacity", 1))) {
      figure.fill = VectorPicture::Paint{*colour, std::nullopt};
    }
    figure.stroke = ColourIn(Find(all, "stroke"), Number(all, "stroke-opacity", 1));
    figure.strokeWidth = Number(all, "stroke-width", 1);
    figure.roundCaps = Find(all, "stroke-linecap") == "round";
    figure.roundJoins = Find(all, "stroke-linejoin") == "round";
    picture_.figures.push_back(std::move(figure));
  }

  VectorPicture picture_;
  std::vector<Attributes> groups_;
  std::map<std::string, VectorPicture::Paint, std::less<>> gradients_;
  std::string gradient_;
};

}  // namespace

VectorPicture ReadVectorPicture(std::string_view text) { return Reader().Read(text); }

}  // namespace plexel
