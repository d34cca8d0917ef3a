// The pictures in the resources: all there, in every size, and not blank.

#include "pictures/Picture.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <set>
#include <utility>
#include <vector>

#include "faults/Faults.h"
#include "resources/resource.h"
#include "tests/window/support/Drawn.h"

namespace lindrel::testing {
namespace {

HINSTANCE Instance() {
    return GetModuleHandleW(nullptr);
}

// The toolbar's.
constexpr std::array<PictureStrip, 4> kStrips{
    {{IDB_ImageList1_24, 24}, {IDB_ImageList1_30, 30}, {IDB_ImageList1_36, 36}, {IDB_ImageList1_48, 48}}};
constexpr int kPicturesOfToolbar = 10;

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

// Sides in pixels at 100 % of the places that show an icon. The first is in the frame, the task switcher and
// the about box.
struct Shown {
    int Id;
    std::set<int> Sides;
};
const std::array<Shown, 4> kIcons{
    {{IDI_frmStart, {16, 32, 48}}, {IDI_TrayArea, {16}}, {IDI_Image1, {16}}, {IDI_picGo, {24}}}};

// And at every scale that Windows offers, up to 350 %.
std::set<int> SizesOf(const Shown& icon) {
    std::set<int> sizes;
    for (const int percent : {100, 125, 150, 175, 200, 225, 250, 300, 350})
        for (const int side : icon.Sides) sizes.insert(side * percent / 100);
    return sizes;
}

TEST(PictureTest, EveryIconIsThereInTheSizesOfItsPlaces) {
    constexpr int kLargestOfTheShell = 256;
    for (const Shown& icon : kIcons) {
        std::set<int> sizes = SizesOf(icon);
        if (icon.Id == IDI_frmStart) sizes.insert(kLargestOfTheShell);
        EXPECT_EQ(SizesIn(icon.Id), (std::vector<int>{sizes.begin(), sizes.end()})) << icon.Id;
    }
}

TEST(PictureTest, EveryStripHoldsThePicturesOfTheToolbarInItsSize) {
    for (const PictureStrip& strip : kStrips) {
        const Owned<HBITMAP> loaded(static_cast<HBITMAP>(
            LoadImageW(Instance(), MAKEINTRESOURCEW(strip.Id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
        BITMAP bitmap{};
        ASSERT_NE(GetObjectW(loaded.get(), sizeof bitmap, &bitmap), 0);
        EXPECT_EQ(bitmap.bmWidth, kPicturesOfToolbar * strip.Size);
        EXPECT_EQ(bitmap.bmHeight, strip.Size);
        EXPECT_EQ(bitmap.bmBitsPixel, 32);
    }
}

TEST(PictureTest, AnIconHasTheSizeThatWasAskedForEvenIfNoneWasDrawnInIt) {
    for (const int size : {16, 20, 24, 28, 32, 36, 40, 48, 64}) {
        const Picture picture(Instance(), IDI_frmStart, size);
        ICONINFO parts{};
        ASSERT_TRUE(GetIconInfo(picture.Handle(), &parts));
        const Owned<HBITMAP> colours(parts.hbmColor);
        const Owned<HBITMAP> mask(parts.hbmMask);
        BITMAP bitmap{};
        ASSERT_NE(GetObjectW(colours.get(), sizeof bitmap, &bitmap), 0);
        EXPECT_EQ(bitmap.bmWidth, size);
        EXPECT_EQ(bitmap.bmHeight, size);
    }
}

TEST(PictureTest, AListHasTheSizeThatWasAskedForEvenIfNoneWasDrawnInIt) {
    for (const int size : {16, 24, 27, 30, 33, 36, 42, 48, 54, 72}) {
        const PictureList list(Instance(), kStrips, size);
        EXPECT_EQ(ImageList_GetImageCount(list.Handle()), kPicturesOfToolbar);
        int width = 0;
        int height = 0;
        EXPECT_TRUE(ImageList_GetIconSize(list.Handle(), &width, &height));
        EXPECT_EQ(width, size);
        EXPECT_EQ(height, size);
    }
}

// What an icon or the picture of a list at a 0-based position looks like on white.
std::vector<COLORREF> OnWhite(HICON icon, int size) {
    return Drawn(size, [&](HDC dc) {
        EXPECT_TRUE(DrawIconEx(dc, 0, 0, icon, size, size, 0,
                               static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)), DI_NORMAL));
    });
}
std::vector<COLORREF> OnWhite(const PictureList& list, int position, int size) {
    return Drawn(size, [&](HDC dc) {
        EXPECT_TRUE(PatBlt(dc, 0, 0, size, size, WHITENESS));
        EXPECT_TRUE(ImageList_Draw(list.Handle(), position, dc, 0, 0, ILD_TRANSPARENT));
    });
}

TEST(PictureTest, NoTwoPicturesLookAlikeAndNoneIsBlank) {
    // Drawn ones and, from 42 on, scaled ones.
    for (const int size : {24, 36, 42, 60}) {
        std::set<std::vector<COLORREF>> looks{
            std::vector<COLORREF>(static_cast<std::size_t>(size * size), RGB(255, 255, 255))};
        for (const int id : {IDI_frmStart, IDI_TrayArea, IDI_picGo, IDI_Image1})
            looks.insert(OnWhite(Picture(Instance(), id, size).Handle(), size));
        const PictureList list(Instance(), kStrips, size);
        for (int i = 0; i < kPicturesOfToolbar; ++i) looks.insert(OnWhite(list, i, size));
        EXPECT_EQ(looks.size(), 5U + kPicturesOfToolbar) << size;
    }
}

// The share of its square that a picture covers, weighted by how dark it is.
double Darkness(const std::vector<COLORREF>& pixels) {
    double darkness = 0;
    for (const COLORREF pixel : pixels)
        darkness += 765 - GetRValue(pixel) - GetGValue(pixel) - GetBValue(pixel);
    return darkness / (765.0 * static_cast<double>(pixels.size()));
}

TEST(PictureTest, AnIconLooksTheSameInEverySize) {
    constexpr int kMeasure = 48;
    for (const Shown& icon : kIcons) {
        const double expected = Darkness(OnWhite(Picture(Instance(), icon.Id, kMeasure).Handle(), kMeasure));
        for (const int size : SizesOf(icon))
            EXPECT_NEAR(Darkness(OnWhite(Picture(Instance(), icon.Id, size).Handle(), size)), expected, 0.03)
                << icon.Id << " at " << size;
    }
}

TEST(PictureTest, AScaledPictureLooksLikeTheDrawnOne) {
    const PictureList drawn(Instance(), kStrips, 48);
    for (const int size : {42, 72}) {
        const PictureList scaled(Instance(), kStrips, size);
        for (int i = 0; i < kPicturesOfToolbar; ++i)
            EXPECT_NEAR(Darkness(OnWhite(scaled, i, size)), Darkness(OnWhite(drawn, i, 48)), 0.02)
                << i << " at " << size;
    }
}

TEST(PictureTest, AFaultNamesWhatIsNotInTheResourcesAndTheSystemsError) {
    constexpr std::array<PictureStrip, 2> kMissing{{{9998, 16}, {IDB_ImageList1_24, 24}}};
    EXPECT_THROW(PictureList(Instance(), kMissing, 16), SystemFault);
    try {
        const Picture picture(Instance(), 9999, 16);
        FAIL();
    } catch (const SystemFault& fault) {
        EXPECT_EQ(fault.Meaning(), L"A Windows ezt nem tudta teljesíteni: ikon betöltése (9999)");
        // Wine gives the second.
        EXPECT_TRUE(fault.Number() == ERROR_RESOURCE_NAME_NOT_FOUND ||
                    fault.Number() == ERROR_RESOURCE_TYPE_NOT_FOUND)
            << fault.Number();
    }
}

TEST(PictureTest, MovesTheIconAlong) {
    Picture first(Instance(), IDI_frmStart, 16);
    const HICON icon = first.Handle();
    Picture second;
    second = Picture(std::move(first));
    EXPECT_EQ(second.Handle(), icon);
}

}  // namespace
}  // namespace lindrel::testing
