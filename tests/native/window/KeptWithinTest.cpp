// Places of windows on screens of all kinds.

#include "window/KeptWithin.h"

#include <gtest/gtest.h>

#include <ostream>

namespace lindrel {
namespace {

struct Area {
    long left, top, right, bottom;
    bool operator==(const Area&) const = default;
};
void PrintTo(const Area& area, std::ostream* out) {
    *out << "(" << area.left << ", " << area.top << ")-(" << area.right << ", " << area.bottom << ")";
}

// Work areas, without the taskbar.
constexpr Area kFullHd{0, 0, 1920, 1040};
constexpr Area kFullHdAt200{0, 0, 1920, 984};
constexpr Area kLaptopAt125{0, 0, 1366, 708};
constexpr Area kBarAtTheLeft{62, 0, 1366, 768};
constexpr Area kBarAtTheTop{0, 48, 1366, 768};
constexpr Area kLeftOfTheFirst{-1280, 200, 0, 872};
constexpr Area kAboveTheFirst{300, -768, 1666, -60};
constexpr Area kSmall{0, 0, 1024, 552};

TEST(KeptWithinTest, AWindowIsMovedIntoTheWorkAreaAndShrunkIfItIsLarger) {
    constexpr struct {
        const char* What;
        Area Work, Bounds, Kept;
    } kCases[] = {
        {"one inside stays", kFullHd, {26, 26, 786, 526}, {26, 26, 786, 526}},
        {"one as large as the area stays", kFullHd, kFullHd, kFullHd},
        {"the first start of the main window, far down",
         kLaptopAt125,
         {182, 182, 1132, 807},
         {182, 83, 1132, 708}},
        {"the find dialog at 200 %", kFullHdAt200, {300, -60, 1620, 1052}, {300, 0, 1620, 984}},
        {"under a taskbar at the left", kBarAtTheLeft, {0, 100, 500, 400}, {62, 100, 562, 400}},
        {"under a taskbar at the top", kBarAtTheTop, {100, 0, 600, 300}, {100, 48, 600, 348}},
        {"on a screen left of the first", kLeftOfTheFirst, {-1400, 100, -900, 500}, {-1280, 200, -780, 600}},
        {"across the edge of that screen", kLeftOfTheFirst, {-300, 700, 200, 900}, {-500, 672, 0, 872}},
        {"on a screen above the first", kAboveTheFirst, {1500, -200, 1900, 100}, {1266, -360, 1666, -60}},
        {"larger than a screen above the first", kAboveTheFirst, {0, -900, 2000, 0}, kAboveTheFirst},
        {"wider than the area only", kSmall, {-100, 40, 1200, 300}, {0, 40, 1024, 300}},
        {"higher than the area only", kSmall, {30, 40, 600, 900}, {30, 0, 600, 552}},
        // Such a frame counts as part of the window.
        {"the invisible frame of a window that is snapped", kFullHd, {-7, 0, 967, 1047}, {0, 0, 974, 1040}},
        {"the frame of a window that is maximised", kFullHd, {-8, -8, 1928, 1048}, kFullHd},
        {"an empty area", {10, 10, 10, 10}, {0, 0, 5, 5}, {10, 10, 10, 10}},
    };
    for (const auto& [what, work, bounds, kept] : kCases) {
        EXPECT_EQ(KeptWithin(bounds, work), kept) << what;
        EXPECT_EQ(KeptWithin(kept, work), kept) << what << ", once more";
    }
}

TEST(KeptWithinTest, ADialogStandsOverTheMiddleOfItsOwner) {
    constexpr struct {
        const char* What;
        Area Bounds, Owner, Centred;
    } kCases[] = {
        {"smaller", {0, 0, 400, 300}, {100, 100, 900, 700}, {300, 250, 700, 550}},
        {"larger", {5, 6, 1005, 806}, {100, 100, 900, 700}, {0, 0, 1000, 800}},
        {"odd sizes", {0, 0, 401, 301}, {0, 0, 800, 600}, {200, 150, 601, 451}},
        {"an owner that is maximised", {0, 0, 400, 300}, {-8, -8, 1928, 1048}, {760, 370, 1160, 670}},
        {"an owner on a screen left of the first",
         {0, 0, 400, 300},
         {-1200, 300, -400, 800},
         {-1000, 400, -600, 700}},
    };
    for (const auto& [what, bounds, owner, centred] : kCases)
        EXPECT_EQ(CentredOver(bounds, owner), centred) << what;
}

TEST(KeptWithinTest, OverAnOwnerHalfBeyondTheEdgeADialogIsWhole) {
    const auto place = [](const Area& owner) {
        return KeptWithin(CentredOver(Area{0, 0, 500, 300}, owner), kLaptopAt125);
    };
    EXPECT_EQ(place({-400, 100, 400, 600}), (Area{0, 200, 500, 500}));
    EXPECT_EQ(place({1000, 100, 1800, 600}), (Area{866, 200, 1366, 500}));
    EXPECT_EQ(place({100, 500, 900, 1000}), (Area{250, 408, 750, 708}));
    EXPECT_EQ(place({100, -400, 900, 100}), (Area{250, 0, 750, 300}));
}

}  // namespace
}  // namespace lindrel
