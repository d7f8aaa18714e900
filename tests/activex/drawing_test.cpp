#include <gtest/gtest.h>

#include <vector>

#include "activex/container.h"
#include "activex/library.h"

namespace plexel::activex {

namespace {

constexpr COLORREF White = RGB(255, 255, 255), Red = RGB(255, 0, 0), Green = RGB(0, 255, 0);

/// A white picture in memory.
class Picture {
 public:
  Picture(int width, int height) : width_(width), height_(height), device_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    bitmap_ = CreateDIBSection(device_, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
    before_ = SelectObject(device_, bitmap_);
    const RECT all = {0, 0, width, height};
    FillRect(device_, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  }
  ~Picture() {
    SelectObject(device_, before_);
    DeleteObject(bitmap_);
    DeleteDC(device_);
  }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;
  HDC Device() const { return device_; }
  COLORREF At(int x, int y) const { return GetPixel(device_, x, y); }
  std::vector<COLORREF> All() const {
    std::vector<COLORREF> pixels;
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) pixels.push_back(At(x, y));
    }
    return pixels;
  }

 private:
  int width_, height_;
  HDC device_;
  HBITMAP bitmap_ = nullptr;
  void* bits_ = nullptr;
  HGDIOBJ before_ = nullptr;
};

struct Drawing : testing::Test {
  Drawing() {
    container.place = {10, 20, 50, 50};
    EXPECT_EQ(container.Place(control.Get()), S_OK);
    control->put_ElementType(::Rect);
    control->put_ZoomFactor(100);
    control->put_FocusColor(Red);
    control->put_KeyDefinedColor(Green);
    control->put_FocusWidth(1);
    control->put_SizeX(40);
    control->put_SizeY(30);
  }
  void Draw(const Picture& picture, RECTL bounds) {
    EXPECT_EQ(As<IViewObject2>(control)->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, picture.Device(),
                                              &bounds, nullptr, nullptr, 0),
              S_OK);
  }
  Container container;
  ComPointer<_ctlPlexelBaseElement> control = Library::Instance().Create();
};

}  // namespace

TEST_F(Drawing, TheControlTakesTheSizeOfItsSurface) {
  EXPECT_EQ(container.place.right - container.place.left, 40);
  EXPECT_EQ(container.place.bottom - container.place.top, 30);
  SIZEL extent{};
  EXPECT_EQ(container.Object()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
  EXPECT_EQ(extent.cx, 1058);  // 600 twips
  EXPECT_EQ(extent.cy, 794);
  EXPECT_EQ(As<IViewObject2>(control)->GetExtent(DVASPECT_CONTENT, -1, nullptr, &extent), S_OK);
  EXPECT_EQ(extent.cx, 1058);
  control->put_ZoomFactor(200);
  EXPECT_EQ(container.place.right - container.place.left, 80);
  EXPECT_EQ(container.place.bottom - container.place.top, 60);
}

TEST_F(Drawing, ShowsNothingUntilAMarkIsShown) {
  const Picture picture(40, 30);
  Draw(picture, {0, 0, 40, 30});
  for (const COLORREF pixel : picture.All()) ASSERT_EQ(pixel, White);
}

TEST_F(Drawing, ShowsTheFrameTheCrossAndTheTick) {
  control->put_FocusVisible(VARIANT_TRUE);
  control->put_ShowX(VARIANT_TRUE);
  control->put_ShowDefined(VARIANT_TRUE);
  control->ShowDefinedObject(VARIANT_TRUE);
  control->UpdateFocus();
  const Picture picture(40, 30);
  Draw(picture, {0, 0, 40, 30});
  EXPECT_EQ(picture.At(1, 15), Red);  // the frame
  EXPECT_EQ(picture.At(20, 1), Red);
  EXPECT_EQ(picture.At(20, 15), Red);    // where the cross meets
  EXPECT_EQ(picture.At(25, 15), Green);  // the tick's long stroke
  EXPECT_EQ(picture.At(6, 15), White);
}

TEST_F(Drawing, PrintsAsOnTheScreen) {
  control->put_FocusVisible(VARIANT_TRUE);
  control->put_ShowX(VARIANT_TRUE);
  control->UpdateFocus();
  const Picture drawn(40, 30), shown(40, 30);
  Draw(drawn, {0, 0, 40, 30});
  SendMessageW(container.ControlWindow(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(shown.Device()), PRF_CLIENT);
  EXPECT_EQ(drawn.All(), shown.All());
}

TEST_F(Drawing, IsDrawnInAnyPlaceAtAnySize) {
  control->put_FocusVisible(VARIANT_TRUE);
  control->put_FocusWidth(2);
  control->put_SizeX(40);
  control->UpdateFocus();
  const Picture picture(200, 200);
  Draw(picture, {50, 60, 170, 150});  // three times as large
  EXPECT_EQ(picture.At(57, 100), Red);
  EXPECT_EQ(picture.At(60, 100), Red);
  EXPECT_EQ(picture.At(63, 100), White);
  EXPECT_EQ(picture.At(49, 100), White);
  EXPECT_EQ(picture.At(100, 59), White);
}

TEST_F(Drawing, IsNotRepeatedWhileNothingChanges) {
  Container::Pump();
  short size = 0;
  control->get_SizeX(&size);
  control->put_ButtonNotes(nullptr);
  EXPECT_EQ(GetUpdateRect(container.ControlWindow(), nullptr, FALSE), FALSE);
  control->put_ShowXPermanent(VARIANT_TRUE);
  EXPECT_NE(GetUpdateRect(container.ControlWindow(), nullptr, FALSE), FALSE);
  Container::Pump();
  EXPECT_EQ(GetUpdateRect(container.ControlWindow(), nullptr, FALSE), FALSE);
}

TEST_F(Drawing, WhoeverLooksIsToldOfChanges) {
  struct : TestObject<IAdviseSink> {
    void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {}
    void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override { ++changes; }
    void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
    void STDMETHODCALLTYPE OnSave() override {}
    void STDMETHODCALLTYPE OnClose() override {}
    int changes = 0;
  } sink;
  const auto view = As<IViewObject2>(control);
  ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, &sink), S_OK);
  control->put_ShowXPermanent(VARIANT_TRUE);
  control->put_ButtonNotes(nullptr);
  EXPECT_EQ(sink.changes, 1);
  ComPointer<IAdviseSink> found;
  EXPECT_EQ(view->GetAdvise(nullptr, nullptr, found.Out()), S_OK);
  EXPECT_EQ(found.Get(), &sink);
  found = nullptr;
  EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, nullptr), S_OK);
  EXPECT_EQ(sink.holds, 0U);
}

}  // namespace plexel::activex
