#include "win32/picture_file.h"

#include <objidl.h>

#include <algorithm>

using std::max;
using std::min;
#include <gdiplus.h>

namespace plexel {

bool WritePicture(HWND window, const std::filesystem::path& file) {
  RECT place;
  GetWindowRect(window, &place);
  const int width = place.right - place.left, height = place.bottom - place.top;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
  SelectObject(memory, before);
  ULONG_PTR token = 0;
  const Gdiplus::GdiplusStartupInput input;
  Gdiplus::GdiplusStartup(&token, &input, nullptr);
  bool written = false;
  {
    Gdiplus::Bitmap picture(bitmap, nullptr);
    constexpr CLSID Png = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    written = picture.Save(file.c_str(), &Png, nullptr) == Gdiplus::Ok;
  }
  Gdiplus::GdiplusShutdown(token);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return written;
}

}  // namespace plexel
