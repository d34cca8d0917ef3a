// The pictures in the resources: all there, in every size, drawn and not blank.

#include "controls/Picture.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <new>
#include <set>
#include <utility>
#include <vector>

#include "resources/resource.h"
#include "tests/window/support/Drawn.h"

namespace lindrel::testing {
namespace {

HINSTANCE Instance() {
    return GetModuleHandleW(nullptr);
}

std::vector<int> Ids(int first, int last) {
    std::vector<int> ids;
    for (int id = first; id <= last; ++id) ids.push_back(id);
    return ids;
}

// Sides of the pictures that an icon of the resources holds.
std::vector<int> SizesIn(int id) {
    const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(id), RT_GROUP_ICON);
    if (found == nullptr) return {};
    const auto* const bytes = static_cast<const BYTE*>(LockResource(LoadResource(nullptr, found)));
    constexpr std::size_t kHeader = 6;
    constexpr std::size_t kEntry = 14;
    WORD count = 0;
    std::memcpy(&count, bytes + 4, sizeof count);
    std::vector<int> sizes;
    for (std::size_t i = 0; i < count; ++i) {
        const int width = bytes[kHeader + i * kEntry];
        EXPECT_EQ(width, bytes[kHeader + i * kEntry + 1]);
        sizes.push_back(width == 0 ? 256 : width);
    }
    return sizes;
}

// What an icon looks like on a white ground.
std::vector<COLORREF> Painted(HICON icon, int size) {
    return Drawn(size, [&](HDC canvas) {
        EXPECT_TRUE(DrawIconEx(canvas, 0, 0, icon, size, size, 0,
                               static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)), DI_NORMAL));
    });
}

TEST(PictureTest, EveryPictureIsThereInTheSizesOfItsPlace) {
    EXPECT_EQ(SizesIn(IDI_frmStart), (std::vector<int>{16, 20, 24, 32, 40, 48, 64, 256}));
    for (const int id : {IDI_TrayArea, IDI_Image1})
        EXPECT_EQ(SizesIn(id), (std::vector<int>{16, 20, 24, 32})) << id;
    std::vector<int> larger = Ids(IDI_ImageList1_1, IDI_ImageList1_10);
    larger.push_back(IDI_picGo);
    for (const int id : larger) EXPECT_EQ(SizesIn(id), (std::vector<int>{24, 30, 36, 48})) << id;
}

TEST(PictureTest, HasTheSizeThatWasAskedForAlsoOneThatWasNotDrawn) {
    for (const int size : {16, 20, 24, 28, 32, 36, 40, 48, 64}) {
        const Picture picture(Instance(), IDI_frmStart, size);
        ICONINFO parts{};
        ASSERT_TRUE(GetIconInfo(picture.Handle(), &parts));
        BITMAP bitmap{};
        ASSERT_NE(GetObjectW(parts.hbmColor, sizeof bitmap, &bitmap), 0);
        EXPECT_EQ(bitmap.bmWidth, size);
        EXPECT_EQ(bitmap.bmHeight, size);
        EXPECT_TRUE(DeleteObject(parts.hbmColor));
        EXPECT_TRUE(DeleteObject(parts.hbmMask));
    }
}

TEST(PictureTest, NoTwoPicturesLookAlikeAndNoneIsBlank) {
    std::vector<int> ids{IDI_frmStart, IDI_TrayArea, IDI_picGo, IDI_Image1};
    for (const int id : Ids(IDI_ImageList1_1, IDI_ImageList1_10)) ids.push_back(id);
    for (const int size : {16, 24, 32}) {
        std::set<std::vector<COLORREF>> looks{
            std::vector<COLORREF>(static_cast<std::size_t>(size * size), RGB(255, 255, 255))};
        for (const int id : ids) looks.insert(Painted(Picture(Instance(), id, size).Handle(), size));
        EXPECT_EQ(looks.size(), ids.size() + 1) << size;
    }
}

// What a list shows of its picture at a position (0-based) on a white ground.
std::vector<COLORREF> PaintedFrom(const PictureList& list, int position, int size) {
    return Drawn(size, [&](HDC canvas) {
        const RECT all{0, 0, size, size};
        FillRect(canvas, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        EXPECT_TRUE(ImageList_Draw(list.Handle(), position, canvas, 0, 0, ILD_TRANSPARENT));
    });
}

TEST(PictureTest, DisabledLooksAreGreyAndFaintAndLookLikeTheirPictures) {
    constexpr int kSize = 24;
    const std::vector<int> ids = Ids(IDI_ImageList1_1, IDI_ImageList1_10);
    const PictureList enabled(Instance(), ids, kSize, PictureLook::Enabled);
    const PictureList disabled(Instance(), ids, kSize, PictureLook::Disabled);
    ASSERT_EQ(ImageList_GetImageCount(disabled.Handle()), 10);
    for (int i = 0; i < 10; ++i) {
        const std::vector<COLORREF> bright = PaintedFrom(enabled, i, kSize);
        const std::vector<COLORREF> faint = PaintedFrom(disabled, i, kSize);
        for (std::size_t at = 0; at < faint.size(); ++at) {
            // On white, four tenths of a colour's darkness are left.
            const double brightness =
                (GetRValue(bright[at]) * 54 + GetGValue(bright[at]) * 183 + GetBValue(bright[at]) * 19) /
                256.0;
            EXPECT_NEAR(GetRValue(faint[at]), 255 - (255 - brightness) * 0.4, 3) << i << " at " << at;
            EXPECT_EQ(GetRValue(faint[at]), GetGValue(faint[at])) << i;
            EXPECT_EQ(GetGValue(faint[at]), GetBValue(faint[at])) << i;
        }
    }
}

TEST(PictureTest, WhatIsNotInTheResourcesIsAnError) {
    constexpr int kNoIcon = 9999;
    EXPECT_THROW(Picture(Instance(), kNoIcon, 16), std::bad_alloc);
    constexpr std::array<int, 2> kIds{IDI_frmStart, kNoIcon};
    EXPECT_THROW(PictureList(Instance(), kIds, 16, PictureLook::Enabled), std::bad_alloc);
}

TEST(PictureTest, MovesTheIconAlong) {
    Picture first(Instance(), IDI_frmStart, 16);
    const HICON icon = first.Handle();
    Picture second(std::move(first));
    EXPECT_EQ(second.Handle(), icon);
    Picture third;
    third = std::move(second);
    EXPECT_EQ(third.Handle(), icon);
}

TEST(PictureTest, AListHoldsThePicturesInTheirOrder) {
    constexpr std::array<int, 2> kIds{IDI_ImageList1_1, IDI_ImageList1_2};
    const PictureList list(Instance(), kIds, 24, PictureLook::Enabled);
    ASSERT_EQ(ImageList_GetImageCount(list.Handle()), 2);
    for (int i = 0; i < 2; ++i) {
        const HICON icon = ImageList_GetIcon(list.Handle(), i, ILD_NORMAL);
        EXPECT_EQ(Painted(icon, 24),
                  Painted(Picture(Instance(), kIds.at(static_cast<std::size_t>(i)), 24).Handle(), 24));
        EXPECT_TRUE(DestroyIcon(icon));
    }
}

}  // namespace
}  // namespace lindrel::testing
