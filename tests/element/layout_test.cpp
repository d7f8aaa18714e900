#include <cmath>
#include <limits>

#include "element_fixture.h"

namespace plexel {
namespace {

class NewElementSurface : public ElementTest {};

class ElementLayout : public ElementTest {
 protected:
  ElementLayout() { element->FocusWidth(1); }
};

void ExpectShape(const SurfaceShape& shape, float left, float top, float width, float height) {
  EXPECT_EQ(shape.Left, left);
  EXPECT_EQ(shape.Top, top);
  EXPECT_EQ(shape.Width, width);
  EXPECT_EQ(shape.Height, height);
}

void ExpectLine(const SurfaceLine& line, float x1, float y1, float x2, float y2) {
  EXPECT_EQ(line.X1, x1);
  EXPECT_EQ(line.Y1, y1);
  EXPECT_EQ(line.X2, x2);
  EXPECT_EQ(line.Y2, y2);
}

TEST_F(NewElementSurface, IsFilledByBothShapes) {
  EXPECT_FALSE(Shown().Picture);
  EXPECT_EQ(Shown().Width, 495);
  EXPECT_EQ(Shown().Height, 495);
  ExpectShape(Shown().shpOval, 0, 0, 495, 495);
  ExpectShape(Shown().shpRect, 0, 0, 495, 495);
}

TEST_F(NewElementSurface, KeepsTheShapesOfTheDesignOnAScreenWithoutAFiniteMeasure) {
  platform.TheScreen().TwipsPerPixel(HUGE_VALF, 15);
  const auto broken = component.Create("Broken", host);
  ExpectShape(broken->SurfaceObjects().shpOval, 2280, 120, 495, 495);
  ExpectShape(broken->SurfaceObjects().shpRect, 1680, 120, 495, 495);
}

TEST_F(NewElementSurface, HasTheLinesOfTheDesign) {
  ExpectLine(Shown().linX1, 1080, 120, 1080, 600);
  ExpectLine(Shown().linX2, 840, 120, 840, 600);
  ExpectLine(Shown().linOK1, 1320, 120, 1320, 600);
  ExpectLine(Shown().linOK2, 1560, 120, 1560, 600);
}

TEST_F(NewElementSurface, ShowsNothing) {
  for (const auto* shape : {&Shown().shpOval, &Shown().shpRect}) {
    EXPECT_FALSE(shape->Visible);
    EXPECT_EQ(shape->BorderColor, 255);
    EXPECT_EQ(shape->BorderWidth, 1);
  }
  for (const auto* line : {&Shown().linX1, &Shown().linX2, &Shown().linOK1, &Shown().linOK2}) {
    EXPECT_FALSE(line->Visible);
    EXPECT_EQ(line->BorderColor, 255);
    EXPECT_EQ(line->BorderWidth, 2);
  }
}

TEST_F(ElementLayout, TwentyPixelsWideIs300TwipsWithAFrameOf285) {
  element->ZoomFactor(100);
  element->XElementSize(XSizeMedium);
  element->SizeX(20);
  EXPECT_EQ(Shown().Width, 300);
  for (const auto* shape : {&Shown().shpOval, &Shown().shpRect}) {
    EXPECT_EQ(shape->Left, 15);
    EXPECT_EQ(shape->Width, 285);
  }
  EXPECT_EQ(Shown().linX1.X1, 115);
  EXPECT_EQ(Shown().linX1.X2, 200);
}

TEST_F(ElementLayout, TheXIsMirroredHorizontallyOnly) {
  element->ZoomFactor(100);
  element->XElementSize(XSizeMedium);
  element->SizeX(20);
  element->SizeY(40);
  ExpectLine(Shown().linX1, 115, 115, 200, 500);
  ExpectLine(Shown().linX2, 200, 115, 115, 500);
}

TEST_F(ElementLayout, TheTickMeetsAtHalfTheWidthAndThreeQuartersOfTheHeight) {
  element->ZoomFactor(100);
  element->SizeX(20);
  element->SizeY(40);
  ExpectLine(Shown().linOK1, 100, 300, 150, 450);
  ExpectLine(Shown().linOK2, 150, 450, 225, 150);
}

TEST_F(ElementLayout, TheFractionsOfTheTickAreNotRounded) {
  platform.TheScreen().TwipsPerPixel(1, 1);
  element->ZoomFactor(100);
  element->SizeX(101);
  element->SizeY(101);
  EXPECT_EQ(Shown().linOK1.X1, 101.0F / 3);
  EXPECT_EQ(Shown().linOK1.X2, 50.5F);
  EXPECT_EQ(Shown().linOK2.X2, 75.75F);
  EXPECT_EQ(Shown().linOK2.Y2, 25.25F);
}

TEST_F(ElementLayout, ABigXRunsFromCornerToCornerOfTheFrame) {
  element->ZoomFactor(100);
  element->SizeX(20);
  element->SizeY(20);
  ExpectLine(Shown().linX1, 15, 15, 300, 300);
}

TEST_F(ElementLayout, ASmallXIsInsetByTwiceTheZoom) {
  element->XElementSize(XSizeSmall);
  element->ZoomFactor(50);
  element->SizeX(40);
  EXPECT_EQ(Shown().linX1.X1, 115);
}

TEST_F(ElementLayout, TiesAreRoundedToTheEvenNumber) {
  platform.TheScreen().TwipsPerPixel(15, 15);
  element->FocusWidth(0);
  element->ZoomFactor(10);
  element->SizeX(3);
  EXPECT_EQ(Shown().Width, 4);
  element->SizeX(1);
  EXPECT_EQ(Shown().Width, 2);
  element->SizeX(7);
  EXPECT_EQ(Shown().Width, 10);
}

TEST_F(ElementLayout, TheFontScaleAppliesToSurfaceAndFrameButNotToItsPlaceAndTheInset) {
  element->DPIFontScaleFactor(2);
  element->XElementSize(XSizeMedium);
  element->ZoomFactor(100);
  element->SizeX(20);
  EXPECT_EQ(Shown().Width, 600);
  EXPECT_EQ(Shown().shpRect.Left, 15);
  EXPECT_EQ(Shown().shpRect.Width, 570);
  EXPECT_EQ(Shown().linX1.X1, 115);
  EXPECT_EQ(Shown().linX1.X2, 485);
}

TEST_F(ElementLayout, TheFontScaleWaitsForTheNextSize) {
  element->ZoomFactor(100);
  element->SizeX(20);
  element->DPIFontScaleFactor(2);
  EXPECT_EQ(Shown().Width, 300);
  element->SizeX(20);
  EXPECT_EQ(Shown().Width, 600);
}

TEST_F(ElementLayout, AtZoomZeroTheSizesAreOnlyStored) {
  element->SizeX(20);
  element->SizeY(30);
  EXPECT_EQ(Shown().Width, 495);
  EXPECT_EQ(Shown().Height, 495);
  element->ZoomFactor(100);
  EXPECT_EQ(Shown().Width, 300);
  EXPECT_EQ(Shown().Height, 450);
}

TEST_F(ElementLayout, ASizeOfZeroKeepsTheLayout) {
  element->ZoomFactor(100);
  element->SizeX(20);
  element->SizeX(0);
  EXPECT_EQ(element->SizeX(), 0);
  EXPECT_EQ(Shown().Width, 300);
}

TEST_F(ElementLayout, TheSameSizeLaysOutAgain) {
  element->ZoomFactor(100);
  element->SizeX(20);
  platform.TheScreen().TwipsPerPixel(12, 12);
  element->SizeX(20);
  EXPECT_EQ(Shown().Width, 240);
}

TEST_F(ElementLayout, WidthAndHeightDoNotFollowEachOther) {
  element->ZoomFactor(100);
  element->SizeX(20);
  EXPECT_EQ(Shown().Height, 495);
  EXPECT_EQ(Shown().shpRect.Height, 495);
  EXPECT_EQ(Shown().linX1.Y2, 600);
}

TEST_F(ElementLayout, EachDirectionHasItsOwnPixelSize) {
  platform.TheScreen().TwipsPerPixel(15, 12);
  element->ZoomFactor(100);
  element->SizeX(20);
  element->SizeY(20);
  EXPECT_EQ(Shown().Width, 300);
  EXPECT_EQ(Shown().Height, 240);
  EXPECT_EQ(Shown().shpRect.Left, 15);
  EXPECT_EQ(Shown().shpRect.Top, 12);
}

TEST_F(ElementLayout, AFrameThatIsTooSmallIsFiveTwipsWide) {
  element->ZoomFactor(100);
  element->XElementSize(XSizeMedium);
  element->SizeX(1);
  EXPECT_EQ(Shown().shpRect.Width, 5);
  EXPECT_EQ(Shown().shpOval.Width, 5);
  EXPECT_EQ(Shown().linX1.X1, 115);
  EXPECT_EQ(Shown().linX1.X2, -80);
}

TEST_F(ElementLayout, AFrameOfOneTwipStays) {
  platform.TheScreen().TwipsPerPixel(1, 1);
  element->ZoomFactor(100);
  element->SizeX(2);
  EXPECT_EQ(Shown().shpRect.Width, 1);
}

TEST_F(ElementLayout, TheFocusWidthSetsFrameAndXButNotTheTick) {
  element->FocusWidth(4);
  EXPECT_EQ(Shown().shpOval.BorderWidth, 4);
  EXPECT_EQ(Shown().shpRect.BorderWidth, 4);
  EXPECT_EQ(Shown().linX1.BorderWidth, 4);
  EXPECT_EQ(Shown().linX2.BorderWidth, 4);
  EXPECT_EQ(Shown().linOK1.BorderWidth, 2);
  EXPECT_EQ(Shown().linOK2.BorderWidth, 2);
}

TEST_F(ElementLayout, AFocusWidthOfZeroKeepsTheLineWidths) {
  element->FocusWidth(4);
  element->FocusWidth(0);
  EXPECT_EQ(element->FocusWidth(), 0);
  EXPECT_EQ(Shown().shpOval.BorderWidth, 4);
}

TEST_F(ElementLayout, TheFocusColourIsThatOfFrameAndX) {
  element->FocusColor(0x123456);
  EXPECT_EQ(Shown().shpOval.BorderColor, 0x123456);
  EXPECT_EQ(Shown().shpRect.BorderColor, 0x123456);
  EXPECT_EQ(Shown().linX1.BorderColor, 0x123456);
  EXPECT_EQ(Shown().linX2.BorderColor, 0x123456);
  EXPECT_EQ(Shown().linOK1.BorderColor, 255);
}

TEST_F(ElementLayout, TheDefinedColourIsThatOfTheTick) {
  element->KeyDefinedColor(0x8000);
  EXPECT_EQ(Shown().linOK1.BorderColor, 0x8000);
  EXPECT_EQ(Shown().linOK2.BorderColor, 0x8000);
  EXPECT_EQ(Shown().linX1.BorderColor, 255);
}

TEST_F(ElementLayout, AWidthPast32BitsFailsWithTheSizeStoredAndNothingMoved) {
  element->ZoomFactor(100);
  element->DPIFontScaleFactor(1e9);
  EXPECT_EQ(KindOf([&] { element->SizeX(20); }), FailureKind::Overflow);
  EXPECT_EQ(element->SizeX(), 20);
  EXPECT_EQ(Shown().Width, 495);
  EXPECT_EQ(Shown().shpRect.Left, 0);
}

TEST_F(ElementLayout, AScaleThatIsNoNumberFails) {
  element->ZoomFactor(100);
  for (const double scale : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    element->DPIFontScaleFactor(scale);
    EXPECT_EQ(KindOf([&] { element->SizeY(20); }), FailureKind::Overflow) << scale;
    EXPECT_EQ(Shown().Height, 495);
  }
}

TEST_F(ElementLayout, AFocusPlacePast32BitsFailsBehindTheWidth) {
  platform.TheScreen().TwipsPerPixel(1e8F, 15);
  element->FocusWidth(255);
  element->ZoomFactor(1);
  EXPECT_EQ(KindOf([&] { element->SizeX(1); }), FailureKind::Overflow);
  EXPECT_EQ(Shown().Width, 1e6F);
  EXPECT_EQ(Shown().shpRect.Left, 0);
}

TEST_F(ElementLayout, AnInsetPast32BitsFailsBehindTheShapes) {
  element->ZoomFactor(100);
  EXPECT_NO_THROW(element->XElementSize(static_cast<enumXSize>(INT32_MAX / 100 + 1)));
  EXPECT_EQ(KindOf([&] { element->SizeX(20); }), FailureKind::Overflow);
  EXPECT_EQ(Shown().Width, 300);
  EXPECT_EQ(Shown().shpOval.Width, 285);
  EXPECT_EQ(Shown().linX1.X1, 1080);
  EXPECT_EQ(Shown().linOK1.X1, 1320);
}

TEST_F(ElementLayout, TheLargestInsetThatFitsIsDrawn) {
  element->ZoomFactor(1);
  element->XElementSize(static_cast<enumXSize>(INT32_MAX));
  EXPECT_NO_THROW(element->SizeX(20));
}

TEST_F(ElementLayout, AScreenThatFailsPartWayKeepsWhatWasMoved) {
  element->ZoomFactor(100);
  platform.faults.Arm(Fault::Screen, 2);
  EXPECT_EQ(KindOf([&] { element->SizeX(20); }), FailureKind::Platform);
  EXPECT_EQ(Shown().Width, 300);
  EXPECT_EQ(Shown().shpRect.Left, 0);
}

TEST_F(ElementLayout, TheScreenIsAskedAtEachUse) {
  element->ZoomFactor(100);
  const auto before = platform.faults.Calls(Fault::Screen);
  element->SizeX(20);
  EXPECT_EQ(platform.faults.Calls(Fault::Screen) - before, 4);
}

TEST_F(ElementLayout, AFailingWidthKeepsTheHeightOfAZoom) {
  element->SizeX(20);
  element->SizeY(20);
  element->DPIFontScaleFactor(1e9);
  EXPECT_EQ(KindOf([&] { element->ZoomFactor(100); }), FailureKind::Overflow);
  EXPECT_EQ(element->ZoomFactor(), 100);
  EXPECT_EQ(Shown().Height, 495);
}

}  // namespace
}  // namespace plexel
