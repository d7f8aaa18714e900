#include "project/panel_svg.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <vector>

#include "forms/ascii.h"
#include "project/plain_text.h"

namespace plexel {

namespace {

std::string Number(double value) {
  char digits[32];
  return std::string(digits, std::to_chars(digits, digits + sizeof(digits), value, std::chars_format::fixed, 2).ptr);
}

std::string Attribute(std::string_view name, const std::string& value) {
  return ' ' + std::string(name) + "=\"" + value + '"';
}
std::string Attribute(std::string_view name, double value) { return Attribute(name, Number(value)); }

/// A colour 0x00BBGGRR as "#RRGGBB", made lighter by a factor.
std::string Colour(std::int32_t colour, double factor = 1) {
  std::string text = "#";
  for (const unsigned shift : {0U, 8U, 16U}) {
    const auto part = static_cast<double>((static_cast<std::uint32_t>(colour) >> shift) & 0xFFU);
    const auto lit = static_cast<unsigned>(std::clamp(part * factor + 0.5, 0.0, 255.0));
    text += ascii::HexDigits[lit >> 4U];
    text += ascii::HexDigits[lit & 0xFU];
  }
  return text;
}

class Picture {
 public:
  explicit Picture(PanelPlaces places) : places_(places) {}

  std::string Draw(const Panel& panel) {
    for (const PanelPart& part : panel.parts) Put(part);
    const std::string size = std::to_string(panel.width) + ' ' + std::to_string(panel.height);
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("viewBox", "0 0 " + size) +
                      Attribute("width", std::to_string(panel.width)) +
                      Attribute("height", std::to_string(panel.height)) +
                      " role=\"img\" font-family=\"Liberation Sans, Arial, Helvetica, sans-serif\">\n<title>" +
                      MarkupText(panel.title) + "</title>\n";
    if (!lights_.empty()) svg += "<defs>\n" + lights_ + "</defs>\n";
    return svg + body_ + "</svg>\n";
  }

 private:
  struct Drawing {
    PanelPartKind kind;
    void (Picture::*draw)(const PanelPart&);
  };

  void Put(const PanelPart& part) {
    static constexpr std::array drawings = {Drawing{PanelPartKind::Housing, &Picture::DrawHousing},
                                            Drawing{PanelPartKind::Screen, &Picture::DrawScreen},
                                            Drawing{PanelPartKind::Key, &Picture::DrawKey},
                                            Drawing{PanelPartKind::RoundKey, &Picture::DrawRoundKey},
                                            Drawing{PanelPartKind::KeySwitch, &Picture::DrawKeySwitch},
                                            Drawing{PanelPartKind::Led, &Picture::DrawLed}};
    body_ += part.element ? "<g><title>" + MarkupText(part.element->id) + "</title>\n" : "";
    for (const Drawing& one : drawings) {
      if (one.kind == part.kind) (this->*one.draw)(part);
    }
    DrawLegend(part);
    if (part.element && places_ == PanelPlaces::Shown && part.legend != part.element->id) DrawPlace(part);
    body_ += part.element ? "</g>\n" : "";
  }

  static double Middle(std::int32_t start, std::int32_t length) { return start + length / 2.0; }

  /// The name of a light on a colour: `depth` in percent brighter at the top, as much darker at the bottom.
  std::string Lit(std::int32_t colour, int depth) {
    const double factor = 1 + depth / 100.0;
    return Light("linearGradient x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\"", "linearGradient", Colour(colour, factor),
                 Colour(colour, 1 / factor));
  }
  std::string Light(const std::string& open, std::string_view close, const std::string& from, const std::string& to) {
    const std::size_t blank = open.find(' ');
    const auto [known, isNew] = names_.emplace(open + from + to, "light" + std::to_string(names_.size() + 1));
    if (isNew) {
      lights_ += '<' + open.substr(0, blank) + Attribute("id", known->second) + open.substr(blank) +
                 "><stop offset=\"0\"" + Attribute("stop-color", from) + "/><stop offset=\"1\"" +
                 Attribute("stop-color", to) + "/></" + std::string(close) + ">\n";
    }
    return "url(#" + known->second + ')';
  }

  void Rectangle(const PanelPart& part, const std::string& fill) {
    body_ += "<rect" + Attribute("x", part.box.left + 0.5) + Attribute("y", part.box.top + 0.5) +
             Attribute("width", std::max(part.box.width - 1, 0)) +
             Attribute("height", std::max(part.box.height - 1, 0)) +
             (part.cornerRadius > 0 ? Attribute("rx", part.cornerRadius) : "") + Attribute("fill", fill) +
             Attribute("stroke", Colour(part.lineColor)) + "/>\n";
  }
  void Ellipse(const PanelPart& part, double width, double height, const std::string& fill) {
    body_ += "<ellipse" + Attribute("cx", Middle(part.box.left, part.box.width)) +
             Attribute("cy", Middle(part.box.top, part.box.height)) + Attribute("rx", std::max(width, 0.0) / 2) +
             Attribute("ry", std::max(height, 0.0) / 2) + Attribute("fill", fill) +
             Attribute("stroke", Colour(part.lineColor)) + "/>\n";
  }

  void DrawHousing(const PanelPart& part) { Rectangle(part, Lit(part.fillColor, 6)); }
  void DrawKey(const PanelPart& part) { Rectangle(part, Lit(part.fillColor, 7)); }
  void DrawRoundKey(const PanelPart& part) {
    Ellipse(part, part.box.width - 1, part.box.height - 1, Lit(part.fillColor, 7));
  }

  void DrawScreen(const PanelPart& part) {
    Rectangle(part, Colour(part.fillColor));
    const PanelBox& box = part.box;
    const double bottom = box.top + box.height;
    body_ += "<path" +
             Attribute("d", 'M' + Number(box.left) + ' ' + Number(box.top) + 'H' + Number(box.left + box.width * 0.55) +
                                'L' + Number(box.left + box.width * 0.3) + ' ' + Number(bottom) + 'H' +
                                Number(box.left) + 'Z') +
             " fill=\"#FFFFFF\" fill-opacity=\"0.055\"/>\n";
  }

  void DrawKeySwitch(const PanelPart& part) {
    DrawRoundKey(part);
    Ellipse(part, part.box.width * 0.5, part.box.height * 0.5, Colour(part.fillColor, 1 / 1.15));
    const double width = part.box.width * 0.08, height = part.box.height * 0.34;
    body_ += "<rect" + Attribute("x", Middle(part.box.left, part.box.width) - width / 2) +
             Attribute("y", Middle(part.box.top, part.box.height) - height / 2) + Attribute("width", width) +
             Attribute("height", height) + " rx=\"1\"" + Attribute("fill", Colour(part.lineColor, 1 / 1.2)) + "/>\n";
  }

  void DrawLed(const PanelPart& part) {
    const std::string fill = Light("radialGradient cx=\"0.35\" cy=\"0.3\" r=\"0.6\"", "radialGradient",
                                   Colour(part.fillColor, 1.5), Colour(part.fillColor));
    if (part.cornerRadius > 0 || part.box.width == part.box.height) {
      Ellipse(part, part.box.width - 1, part.box.height - 1, fill);
    } else {
      Rectangle(part, fill);
    }
  }

  void DrawLegend(const PanelPart& part) {
    if (part.legend.empty()) return;
    std::vector<std::string_view> lines;
    for (std::string_view left = part.legend;;) {
      const std::size_t end = left.find('\n');
      lines.push_back(left.substr(0, end));
      if (end == std::string_view::npos) break;
      left.remove_prefix(end + 1);
    }
    struct Anchor {
      const char* name;
      double x;
    };
    const PanelBox& box = part.box;
    const Anchor anchor = part.legendAlignment == LegendAlignment::Left ? Anchor{"start", double(box.left)}
                          : part.legendAlignment == LegendAlignment::Right
                              ? Anchor{"end", double(box.left + box.width)}
                              : Anchor{"middle", Middle(box.left, box.width)};
    constexpr double lineHeight = 1.17, capitals = 0.36;  // of the size of the letters
    double y = Middle(box.top, box.height) -
               (static_cast<double>(lines.size()) - 1) * lineHeight * part.legendSize / 2 + capitals * part.legendSize;
    for (const std::string_view line : lines) {
      body_ += "<text" + Attribute("x", anchor.x) + Attribute("y", y) +
               Attribute("font-size", std::to_string(part.legendSize)) + Attribute("text-anchor", anchor.name) +
               Attribute("fill", Colour(part.legendColor)) + '>' + MarkupText(line) + "</text>\n";
      y += lineHeight * part.legendSize;
    }
  }

  /// Above the part, or at the panel's upper edge.
  void DrawPlace(const PanelPart& part) {
    constexpr double size = 10, gap = 2;
    body_ += "<text" + Attribute("x", Middle(part.box.left, part.box.width)) +
             Attribute("y", std::max(part.box.top - gap, size)) + Attribute("font-size", size) +
             " text-anchor=\"middle\" fill=\"#4A5A69\">" + MarkupText(part.element->id) + "</text>\n";
  }

  const PanelPlaces places_;
  std::string lights_, body_;
  std::map<std::string, std::string> names_;
};

}  // namespace

std::string PanelSvg(const Panel& panel, PanelPlaces places) { return Picture(places).Draw(panel); }

}  // namespace plexel
