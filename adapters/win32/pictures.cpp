#include "win32/pictures.h"

#include <objidl.h>

#include <algorithm>
#include <map>

// The headers of the drawing library take these two from the global namespace.
using std::max;
using std::min;
#include <gdiplus.h>

#include "files/data_directory.h"
#include "files/file_error.h"
#include "files/system_files.h"
#include "win32/scale.h"
#include "win32/vector_picture.h"

namespace plexel {

namespace {

constexpr std::size_t Limit = std::size_t{1} << 20U;

/// The drawing library, as long as something draws.
class Drawing {
 public:
  Drawing() {
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token_, &input, nullptr);
  }
  ~Drawing() { Gdiplus::GdiplusShutdown(token_); }
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;

 private:
  ULONG_PTR token_ = 0;
};

const VectorPicture& PictureOf(const std::string& name) {
  static std::map<std::string, VectorPicture> pictures;
  const auto known = pictures.find(name);
  if (known != pictures.end()) return known->second;
  VectorPicture& picture = pictures[name];
  if (name.empty()) return picture;
  try {
    picture = ReadVectorPicture(ReadWholeFile(DataDirectory() / "pictures" / (name + ".svg"), Limit));
  } catch (const FileError&) {  // a dialog without its picture is as good
  }
  return picture;
}

void AddTo(Gdiplus::GraphicsPath& path, const std::vector<VectorPicture::Step>& steps) {
  using Kind = VectorPicture::Step::Kind;
  VectorPicture::Point here;
  for (const VectorPicture::Step& step : steps) {
    switch (step.kind) {
      case Kind::Move:
        path.StartFigure();
        break;
      case Kind::Line:
        path.AddLine(here.x, here.y, step.end.x, step.end.y);
        break;
      case Kind::Curve:
        path.AddBezier(here.x, here.y, step.pullOfStart.x, step.pullOfStart.y, step.pullOfEnd.x, step.pullOfEnd.y,
                       step.end.x, step.end.y);
        break;
      case Kind::Close:
        path.CloseFigure();
        break;
    }
    here = step.end;
  }
}

void Draw(Gdiplus::Graphics& graphics, const VectorPicture::Figure& figure, float height) {
  Gdiplus::GraphicsPath path;
  AddTo(path, figure.steps);
  if (figure.fill && figure.fill->lower) {
    const Gdiplus::LinearGradientBrush brush(Gdiplus::PointF(0, -1), Gdiplus::PointF(0, height + 1),
                                             Gdiplus::Color(figure.fill->colour), Gdiplus::Color(*figure.fill->lower));
    graphics.FillPath(&brush, &path);
  } else if (figure.fill) {
    const Gdiplus::SolidBrush brush(Gdiplus::Color(figure.fill->colour));
    graphics.FillPath(&brush, &path);
  }
  if (!figure.stroke) return;
  Gdiplus::Pen pen(Gdiplus::Color(*figure.stroke), figure.strokeWidth);
  if (figure.roundCaps) pen.SetLineCap(Gdiplus::LineCapRound, Gdiplus::LineCapRound, Gdiplus::DashCapRound);
  if (figure.roundJoins) pen.SetLineJoin(Gdiplus::LineJoinRound);
  graphics.DrawPath(&pen, &path);
}

void Draw(Gdiplus::Graphics& graphics, const VectorPicture& picture, const RECT& target) {
  if (picture.width <= 0 || picture.height <= 0) return;
  graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  graphics.TranslateTransform(static_cast<float>(target.left), static_cast<float>(target.top));
  graphics.ScaleTransform(static_cast<float>(WidthOf(target)) / picture.width,
                          static_cast<float>(HeightOf(target)) / picture.height);
  for (const VectorPicture::Figure& figure : picture.figures) Draw(graphics, figure, picture.height);
}

RECT Fitting(const VectorPicture& picture, const RECT& area) {
  if (picture.width <= 0 || picture.height <= 0) return {};
  const float ratio =
      std::min(static_cast<float>(WidthOf(area)) / picture.width, static_cast<float>(HeightOf(area)) / picture.height);
  const int width = static_cast<int>(picture.width * ratio), height = static_cast<int>(picture.height * ratio);
  const int left = area.left + (WidthOf(area) - width) / 2, top = area.top + (HeightOf(area) - height) / 2;
  return {left, top, left + width, top + height};
}

}  // namespace

RECT FittingRect(const std::string& name, const RECT& area) { return Fitting(PictureOf(name), area); }

void DrawPicture(HDC context, const std::string& name, const RECT& target) {
  const Drawing drawing;
  Gdiplus::Graphics graphics(context);
  Draw(graphics, PictureOf(name), target);
}

HICON PictureIcon(const std::string& name, int side) {
  const VectorPicture& picture = PictureOf(name);
  if (picture.figures.empty() || side <= 0) return nullptr;
  const Drawing drawing;
  Gdiplus::Bitmap bitmap(side, side, PixelFormat32bppARGB);
  {
    Gdiplus::Graphics graphics(&bitmap);
    Draw(graphics, picture, Fitting(picture, {0, 0, side, side}));
  }
  HICON icon = nullptr;
  bitmap.GetHICON(&icon);
  return icon;
}

}  // namespace plexel
