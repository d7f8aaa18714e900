#include "editor/editor_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

namespace plexel::testing {
namespace {

TEST(EditorStyle, WhatOpensTheRestOfABarHasAPictureOfTheEditorsOwn) {
  const EditorStyle style;
  for (const QStyle::StandardPixmap which :
       {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_ToolBarVerticalExtensionButton}) {
    const QImage own = style.standardIcon(which, nullptr, nullptr).pixmap(16, 16).toImage();
    const QImage toolkits = QApplication::style()->standardIcon(which).pixmap(16, 16).toImage();
    EXPECT_EQ(own.size(), QSize(16, 16));
    EXPECT_NE(own, toolkits);
    int drawn = 0;
    for (int x = 0; x < own.width(); ++x) drawn += own.pixelColor(x, 8).alpha() > 0 ? 1 : 0;
    EXPECT_GT(drawn, 0);
  }
}

TEST(EditorStyle, ThePicturesOfDocksAreTheToolkitsAndMadeOnce) {
  const EditorStyle style;
  for (const QStyle::StandardPixmap which : {QStyle::SP_TitleBarNormalButton, QStyle::SP_TitleBarCloseButton}) {
    const QIcon first = style.standardIcon(which, nullptr, nullptr);
    EXPECT_FALSE(first.isNull());
    EXPECT_EQ(first.cacheKey(), style.standardIcon(which, nullptr, nullptr).cacheKey());
  }
  EXPECT_NE(style.standardIcon(QStyle::SP_TitleBarNormalButton, nullptr, nullptr).cacheKey(),
            style.standardIcon(QStyle::SP_TitleBarCloseButton, nullptr, nullptr).cacheKey());
}

}  // namespace
}  // namespace plexel::testing
