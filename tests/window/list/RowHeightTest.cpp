// The height of the rows of both lists, and how it changes.

#include "list/CheckBoxImages.h"
#include "resources/resource.h"
#include "tests/window/find/FindSession.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/OtherScreen.h"
#include "tests/window/support/Painted.h"
#include "window/Subclass.h"

namespace lindrel::testing {
namespace {

static_assert(RowHeight(13, 96) == 20 && RowHeight(20, 96) == 20 && RowHeight(21, 96) == 21);
static_assert(RowHeight(16, 120) == 25 && RowHeight(26, 120) == 26);
static_assert(RowHeight(20, 144) == 30 && RowHeight(31, 144) == 31);
static_assert(RowHeight(26, 192) == 40 && RowHeight(41, 192) == 41);

// The messages that decide how high rows are and what a list shows, as they come to it.
class RecordedMessages {
  public:
    explicit RecordedMessages(HWND list) : list_(list) {
        recorder_.Attach(list, [this](UINT message, WPARAM wparam, LPARAM lparam) -> std::optional<LRESULT> {
            Record(message, wparam, lparam);
            return std::nullopt;
        });
    }
    const std::vector<std::string>& All() const { return messages_; }

  private:
    void Record(UINT message, WPARAM wparam, LPARAM lparam) {
        const auto add = [&](const std::string& name, auto... values) {
            std::string text = name;
            ((text += " " + std::to_string(values)), ...);
            messages_.push_back(text);
        };
        if (message == WM_SETREDRAW) add("redraw", wparam);
        if (message == WM_SETFONT) add(IsOwnFont(wparam) ? "own font" : "font", LOWORD(lparam));
        if (message == LVM_ENSUREVISIBLE) add("show row", wparam);
        if (message == LVM_SETEXTENDEDLISTVIEWSTYLE) add("style", wparam, lparam);
        if (message == LVM_SETIMAGELIST) {
            int width = 0;
            int height = 0;
            EXPECT_TRUE(ImageList_GetIconSize(reinterpret_cast<HIMAGELIST>(lparam), &width, &height));
            const int count = ImageList_GetImageCount(reinterpret_cast<HIMAGELIST>(lparam));
            if (wparam == LVSIL_STATE) add("boxes", count, count == 0 ? width : 0, height);
            if (wparam == LVSIL_SMALL) add("small", count, width, height);
        }
    }
    bool IsOwnFont(WPARAM font) const {
        return font == static_cast<WPARAM>(SendMessageW(list_, WM_GETFONT, 0, 0));
    }

    HWND list_;
    Subclass recorder_;
    std::vector<std::string> messages_;
};

class RowHeightTest : public FindSession {
  protected:
    static int RowsOf(HWND list) {
        RECT bounds{};
        EXPECT_TRUE(ListView_GetItemRect(list, 0, &bounds, LVIR_BOUNDS));
        return bounds.bottom - bounds.top;
    }
    static int HeightOf(HWND list, int kind) {
        int width = 0;
        int height = 0;
        EXPECT_TRUE(ImageList_GetIconSize(ListView_GetImageList(list, kind), &width, &height));
        return height;
    }
    // Of the check boxes as the control draws them.
    static int BoxHeight() {
        const HWND list = CreateWindowExW(0, WC_LISTVIEWW, L"", LVS_REPORT, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                          nullptr, nullptr);
        ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES);
        const int height = HeightOf(list, LVSIL_STATE);
        EXPECT_TRUE(DestroyWindow(list));
        return height;
    }
    void AddRows(int count) const {
        std::vector<Row> rows;
        for (int i = 1; i <= count; ++i) rows.emplace_back(L"x" + std::to_wstring(i), L"http://x.hu");
        program.Add(1, rows);
    }
    // Scrolls the list so that a row (0-based) is its first.
    void ScrollTo(int row) const {
        program.OnUi([&](frmStart&) {
            ListView_EnsureVisible(list, ListView_GetItemCount(list) - 1, FALSE);
            ListView_EnsureVisible(list, row, FALSE);
        });
        ASSERT_EQ(ListView_GetTopIndex(list), row);
    }
    // What a list gets when its check boxes are made anew, and before and after it; `top` is its first row.
    static std::vector<std::string> MadeAnew(int height, int last, int top) {
        const std::string boxes = std::to_string(LVS_EX_CHECKBOXES);
        const std::string high = " " + std::to_string(height);
        return {"redraw 0",
                "show row 0",
                "boxes 0 1 1",
                "small 0 1 1",
                "style " + boxes + " 0",
                "style " + boxes + " " + boxes,
                "boxes 2 0" + high,
                "small 0 1" + high,
                "own font 0",
                "show row " + std::to_string(last),
                "show row " + std::to_string(top),
                "redraw 1"};
    }

    const HWND list = program.Control(ID_frmStart_ListURLs);
};

TEST_F(RowHeightTest, IsTheSameInBothListsAtEveryResolution) {
    AddSixEntries();
    program.ClickTab(2);
    const OtherScreen screen(program);
    const FindDialog dialog = Open();
    dialog.Search(L"x");
    constexpr int kLineOfTheControl = 1;  // Wine's list leaves it between two rows
    const int box_height = BoxHeight();
    for (const UINT dpi : {144U, 192U, 120U, 96U}) {
        screen.Move(dpi);
        ChangeResolution(program, dialog, static_cast<int>(dpi));
        const int height = RowHeight(box_height, dpi);
        for (const HWND rows : {list, dialog.List().Handle()}) {
            EXPECT_EQ(RowsOf(rows), height + kLineOfTheControl) << dpi;
            EXPECT_EQ(HeightOf(rows, LVSIL_STATE), height) << dpi;
            EXPECT_EQ(HeightOf(rows, LVSIL_SMALL), height) << dpi;
        }
    }
    dialog.Close();
}

TEST_F(RowHeightTest, ChangesInTheOrderThatWindowsNeeds) {
    AddRows(100);
    ScrollTo(50);
    const int box_height = BoxHeight();
    program.OnUi([&](frmStart& form) {
        for (const UINT dpi : {144U, 96U}) {
            const RecordedMessages recorded(list);
            form.View().ApplyResolution(dpi);
            EXPECT_EQ(recorded.All(), MadeAnew(RowHeight(box_height, dpi), 99, 50)) << dpi;
        }
    });
    const FindDialog dialog = Open();
    dialog.Search(L"x");
    const HWND hits = dialog.List().Handle();
    program.OnUi([&](frmStart&) {
        const RecordedMessages recorded(hits);
        SendMessageW(hits, WM_SYSCOLORCHANGE, 0, 0);
        EXPECT_EQ(recorded.All(), MadeAnew(RowHeight(box_height, 96), 99, 0));
    });
    dialog.Close();
}

TEST_F(RowHeightTest, AFontComesToAListThatIsNotScrolled) {
    AddRows(100);
    ScrollTo(50);
    program.OnUi([&](frmStart&) {
        const RecordedMessages recorded(list);
        const auto font = reinterpret_cast<WPARAM>(GetStockObject(SYSTEM_FONT));
        const auto before = static_cast<WPARAM>(SendMessageW(list, WM_GETFONT, 0, 0));
        SendMessageW(list, WM_SETFONT, font, TRUE);
        EXPECT_EQ(recorded.All(), (std::vector<std::string>{"font 1", "redraw 0", "show row 0", "show row 99",
                                                            "show row 50", "redraw 1"}));
        SendMessageW(list, WM_SETFONT, before, TRUE);
    });
}

TEST_F(RowHeightTest, AScrolledListKeepsItsFirstRowAndIsPaintedRight) {
    AddRows(100);
    ScrollTo(50);
    program.OnUi([](frmStart& form) { form.View().SetAllChecks(true); });
    const MainState before = program.State();
    const OtherScreen screen(program);
    for (const UINT dpi : {192U, 96U, 144U, 96U}) {
        screen.Move(dpi);
        EXPECT_EQ(ListView_GetTopIndex(list), 50) << dpi;
        const RECT stale = StalePart(program, list);
        EXPECT_TRUE(IsRectEmpty(&stale)) << dpi;
        EXPECT_EQ(program.State(), before) << dpi;
    }
}

TEST_F(RowHeightTest, TheSmallPictureTakesOnePixelFromTheText) {
    AddRows(3);
    program.OnUi([&](frmStart&) {
        const auto left = [this] {
            RECT label{};
            EXPECT_TRUE(ListView_GetItemRect(list, 0, &label, LVIR_LABEL));
            return label.left;
        };
        const LONG with_it = left();
        const HIMAGELIST small = ListView_SetImageList(list, nullptr, LVSIL_SMALL);
        const LONG without = left();
        EXPECT_EQ(ListView_SetImageList(list, small, LVSIL_SMALL), nullptr);
        EXPECT_EQ(with_it, without + 1);

        LVITEMW item{};
        item.mask = LVIF_IMAGE;
        item.iImage = 0;
        EXPECT_TRUE(ListView_GetItem(list, &item));
        EXPECT_EQ(item.iImage, I_IMAGENONE);
    });
}

}  // namespace
}  // namespace lindrel::testing
