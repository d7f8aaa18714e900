#include "editor/sprites.h"

#include <gtest/gtest.h>

#include <QImage>

namespace plexel::testing {
namespace {

/// A ring, drawn by hand and by way of sprites onto pictures of their own.
class SpritesTest : public ::testing::Test {
 protected:
  static constexpr QRectF Bounds{-1, -1, 32, 32};

  void Ring(QPainter& painter, const QColor& colour) {
    ++drawn;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 3));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(2, 2, 26, 26));
  }
  static QImage Paper(qreal ratio = 1) {
    QImage paper(300, 300, QImage::Format_ARGB32_Premultiplied);
    paper.setDevicePixelRatio(ratio);
    paper.fill(QColor(240, 240, 230));
    return paper;
  }
  QImage ByHand(const QPointF& place, qreal scale, qreal ratio = 1, const QColor& colour = Qt::blue) {
    QImage paper = Paper(ratio);
    QPainter painter(&paper);
    painter.translate(place);
    painter.scale(scale, scale);
    Ring(painter, colour);
    return paper;
  }
  QImage BySprites(const QPointF& place, qreal scale, qreal ratio = 1, const QColor& colour = Qt::blue) {
    QImage paper = Paper(ratio);
    QPainter painter(&paper);
    painter.setRenderHint(QPainter::Antialiasing);
    sprites.Draw(painter, {1, static_cast<std::int32_t>(colour.rgb())}, place, scale, Bounds,
                 [&](QPainter& onto) { Ring(onto, colour); });
    return paper;
  }
  /// The largest difference of any colour of a pixel.
  static int Difference(const QImage& a, const QImage& b) {
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
      for (int x = 0; x < a.width(); ++x) {
        const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
        for (const int difference : {qRed(one) - qRed(other), qGreen(one) - qGreen(other), qBlue(one) - qBlue(other)}) {
          largest = std::max(largest, std::abs(difference));
        }
      }
    }
    return largest;
  }

  Sprites sprites;
  int drawn = 0;
};

TEST_F(SpritesTest, LookAsWhatIsDrawnByHandWhereverTheyStand) {
  constexpr int rounding = 2;
  for (const qreal scale : {0.25, 1.0, 1.5}) {
    for (const QPointF place : {QPointF(20, 30), QPointF(20.25, 30.5), QPointF(-3.75, 30.0625)}) {
      for (const qreal ratio : {1.0, 2.0}) {
        EXPECT_LE(Difference(ByHand(place, scale, ratio), BySprites(place, scale, ratio)), rounding)
            << scale << " at " << place.x() << ", ratio " << ratio;
      }
    }
  }
  EXPECT_GT(Difference(ByHand({20, 30}, 1), BySprites({20.5, 30}, 1)), 20) << "half a pixel is to be seen";
}

TEST_F(SpritesTest, AreDrawnOnceForAllPlacesThatLieAlikeWithinAPixel) {
  BySprites({20, 30}, 1);
  BySprites({57, 93}, 1);
  BySprites({-7, 93}, 1);
  EXPECT_EQ(drawn, 1);
  BySprites({57.5, 93}, 1);
  EXPECT_EQ(drawn, 2);
  BySprites({20, 30}, 2);
  EXPECT_EQ(drawn, 3);
  BySprites({20, 30}, 1, 2);
  EXPECT_EQ(drawn, 4);
}

TEST_F(SpritesTest, OtherLooksAreOtherSprites) {
  BySprites({20, 30}, 1);
  EXPECT_EQ(Difference(ByHand({20, 30}, 1, 1, Qt::red), BySprites({20, 30}, 1, 1, Qt::red)), 0);
}

TEST_F(SpritesTest, WhatIsLargeIsDrawnByHandEachTime) {
  const QImage first = BySprites({20, 30}, 9);
  EXPECT_EQ(Difference(first, BySprites({20, 30}, 9)), 0);
  EXPECT_EQ(drawn, 2);
  EXPECT_EQ(Difference(first, ByHand({20, 30}, 9)), 0);
}

TEST_F(SpritesTest, GoOnWhenThereAreTooManyToKeepThemAll) {
  for (int colour = 0; colour < 300; ++colour) BySprites({20, 30}, 8, 1, QColor(colour % 256, colour / 256, 0));
  EXPECT_EQ(Difference(ByHand({20, 30}, 8), BySprites({20, 30}, 8)), 0);
}

}  // namespace
}  // namespace plexel::testing
