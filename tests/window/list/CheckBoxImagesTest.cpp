// Check boxes with air around them.

#include "list/CheckBoxImages.h"

#include "resources/resource.h"
#include "tests/window/find/FindSession.h"
#include "tests/window/support/Drawn.h"

namespace lindrel::testing {
namespace {

class CheckBoxImagesTest : public FindSession {
  protected:
    // A picture on a ground of one colour, line by line.
    static std::vector<COLORREF> Seen(HIMAGELIST pictures, int index, COLORREF ground, int top, int side) {
        return Drawn(side, [&](HDC canvas) {
            const RECT all{0, 0, side, side};
            const HBRUSH brush = CreateSolidBrush(ground);
            FillRect(canvas, &all, brush);
            DeleteObject(brush);
            EXPECT_TRUE(ImageList_Draw(pictures, index, canvas, 0, top, ILD_TRANSPARENT));
        });
    }
};

TEST_F(CheckBoxImagesTest, ThePicturesStandInTheMiddleAsTheyWere) {
    const auto boxes = [this](frmStart&) {
        // The system's own, as the list had them first.
        const HWND list = program.Control(ID_frmStart_ListURLs);
        ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, 0);
        ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
        const HIMAGELIST own = ListView_GetImageList(list, LVSIL_STATE);
        int width = 0;
        int height = 0;
        ASSERT_TRUE(ImageList_GetIconSize(own, &width, &height));
        for (const int air : {0, 1, 7, 20}) {
            const Owned<HIMAGELIST> higher = InMiddleOf(own, height + air);
            int same_width = 0;
            int new_height = 0;
            ASSERT_TRUE(ImageList_GetIconSize(higher.get(), &same_width, &new_height));
            EXPECT_EQ(same_width, width);
            EXPECT_EQ(new_height, height + air);
            ASSERT_EQ(ImageList_GetImageCount(higher.get()), 2);
            for (const int index : {0, 1})
                for (const COLORREF ground : {RGB(255, 255, 255), RGB(0, 0, 0), RGB(0, 120, 215)})
                    EXPECT_EQ(Seen(higher.get(), index, ground, 0, height + air),
                              Seen(own, index, ground, air / 2, height + air))
                        << index << " with " << air;
        }
        EXPECT_NE(Seen(own, 0, RGB(255, 255, 255), 0, height), Seen(own, 1, RGB(255, 255, 255), 0, height));
    };
    program.OnUi(boxes);
}

TEST_F(CheckBoxImagesTest, RowsOfBothListsHaveAirBetweenTheirBoxes) {
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
        EXPECT_GE(row, PixelsOf(300, DpiOf(list)));
        // The lowest and the highest line of a box are blank.
        const HIMAGELIST boxes = ListView_GetImageList(list, LVSIL_STATE);
        int width = 0;
        int height = 0;
        ASSERT_TRUE(ImageList_GetIconSize(boxes, &width, &height));
        EXPECT_LE(height, row);
        constexpr COLORREF kGround = RGB(1, 2, 3);
        const std::vector<COLORREF> seen = Seen(boxes, 1, kGround, 0, height);
        const auto side = static_cast<std::size_t>(height);
        for (std::size_t x = 0; x < side; ++x) {
            EXPECT_EQ(seen[x], kGround);
            EXPECT_EQ(seen[(side - 1) * side + x], kGround);
        }
    }
    dialog.Close();
}

}  // namespace
}  // namespace lindrel::testing
