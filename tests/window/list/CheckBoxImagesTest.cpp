// Check boxes with space above and below them.

#include "list/CheckBoxImages.h"

#include <algorithm>

#include "resources/resource.h"
#include "tests/window/find/FindSession.h"
#include "tests/window/support/Drawn.h"

namespace lindrel::testing {
namespace {

class CheckBoxImagesTest : public FindSession {
  protected:
    static SIZE SizeOf(HIMAGELIST pictures) {
        int width = 0;
        int height = 0;
        EXPECT_TRUE(ImageList_GetIconSize(pictures, &width, &height));
        return {width, height};
    }
    // A picture on a background of one colour, line by line.
    static std::vector<COLORREF> Seen(HIMAGELIST pictures, int index, COLORREF background, int top,
                                      int side) {
        return Drawn(side, [&](HDC dc) {
            SetDCBrushColor(dc, background);
            const RECT all{0, 0, side, side};
            FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
            EXPECT_TRUE(ImageList_Draw(pictures, index, dc, 0, top, ILD_TRANSPARENT));
        });
    }
};

TEST_F(CheckBoxImagesTest, ThePicturesStandInTheMiddleAsTheyWere) {
    program.OnUi([this](frmStart&) {
        // Those of Windows, as the list had them first.
        const HWND list = program.Control(ID_frmStart_ListURLs);
        ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, 0);
        ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
        const HIMAGELIST own = ListView_GetImageList(list, LVSIL_STATE);
        const SIZE size = SizeOf(own);
        for (const int air : {0, 1, 7, 20}) {
            const int height = size.cy + air;
            const Owned<HIMAGELIST> higher = InMiddleOf(own, height);
            EXPECT_EQ(SizeOf(higher.get()).cx, size.cx);
            EXPECT_EQ(SizeOf(higher.get()).cy, height);
            ASSERT_EQ(ImageList_GetImageCount(higher.get()), 2);
            for (const int index : {0, 1})
                for (const COLORREF background : {RGB(255, 255, 255), RGB(0, 0, 0), RGB(0, 120, 215)})
                    EXPECT_EQ(Seen(higher.get(), index, background, 0, height),
                              Seen(own, index, background, air / 2, height))
                        << index << " with " << air;
        }
        EXPECT_NE(Seen(own, 0, RGB(255, 255, 255), 0, size.cy), Seen(own, 1, RGB(255, 255, 255), 0, size.cy));
    });
}

TEST_F(CheckBoxImagesTest, RowsOfBothListsHaveSpaceBetweenTheirBoxes) {
    AddSixEntries();
    program.ClickTab(2);
    const FindDialog dialog = Open();
    dialog.Search(L"x");
    for (const HWND list : {program.Control(ID_frmStart_ListURLs), dialog.List().Handle()}) {
        RECT first{};
        RECT second{};
        ListView_GetItemRect(list, 0, &first, LVIR_BOUNDS);
        ListView_GetItemRect(list, 1, &second, LVIR_BOUNDS);
        const int row = second.top - first.top;
        EXPECT_GE(row, 20);
        // The lowest and the highest line of a box are blank.
        const HIMAGELIST boxes = ListView_GetImageList(list, LVSIL_STATE);
        const int height = SizeOf(boxes).cy;
        EXPECT_LE(height, row);
        constexpr COLORREF kBackground = RGB(1, 2, 3);
        const std::vector<COLORREF> seen = Seen(boxes, 1, kBackground, 0, height);
        const std::vector<COLORREF> blank(static_cast<std::size_t>(height), kBackground);
        EXPECT_TRUE(std::equal(blank.begin(), blank.end(), seen.begin()));
        EXPECT_TRUE(std::equal(blank.begin(), blank.end(), seen.end() - height));
    }
    dialog.Close();
}

}  // namespace
}  // namespace lindrel::testing
