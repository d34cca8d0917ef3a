// What is true of every dialog of the program: keyboard access, labels before their controls, nothing clipped
// or overlapping.

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <map>
#include <string>
#include <vector>

#include "tests/window/support/Boxes.h"
#include "tests/window/support/Text.h"
#include "window/Control.h"

namespace lindrel::testing {
namespace {

INT_PTR CALLBACK EmptyProcedure(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

class DialogTemplatesTest : public ::testing::Test {
  protected:
    DialogTemplatesTest() {
        EnumResourceNamesW(
            nullptr, RT_DIALOG,
            [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR list) {
                const HWND dialog =
                    CreateDialogParamW(GetModuleHandleW(nullptr), name, nullptr, &EmptyProcedure, 0);
                reinterpret_cast<std::vector<HWND>*>(list)->push_back(dialog);
                return TRUE;
            },
            reinterpret_cast<LONG_PTR>(&dialogs));
    }
    ~DialogTemplatesTest() override {
        for (const HWND dialog : dialogs) EXPECT_TRUE(DestroyWindow(dialog));
    }

    static std::vector<HWND> ChildrenOf(HWND dialog) {
        std::vector<HWND> children;
        for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT))
            children.push_back(child);
        return children;
    }
    static LONG_PTR StyleOf(HWND window) { return GetWindowLongPtrW(window, GWL_STYLE); }
    static bool IsFrame(HWND window) {
        return ClassOf(window) == L"Button" && (StyleOf(window) & BS_TYPEMASK) == BS_GROUPBOX;
    }
    // The lower-case letter after a single "&", or 0.
    static wchar_t AccessKeyOf(HWND window) {
        const std::wstring text = TextOf(window);
        for (std::size_t i = 0; i + 1 < text.size(); ++i) {
            if (text[i] != L'&') continue;
            if (text[i + 1] != L'&')
                return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(text[i + 1])));
            ++i;
        }
        return 0;
    }
    static RECT BoundsOf(HWND window, HWND dialog) {
        RECT bounds{};
        EXPECT_TRUE(GetWindowRect(window, &bounds));
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&bounds), 2);
        return bounds;
    }
    static std::string NameOf(HWND dialog, HWND control) {
        return Narrow(TextOf(dialog)) + " / " + Narrow(TextOf(control)) + " (" +
               std::to_string(GetDlgCtrlID(control)) + ")";
    }

    std::vector<HWND> dialogs;
};

TEST_F(DialogTemplatesTest, EachIsMadeAndHasACaption) {
    EXPECT_GE(dialogs.size(), 10u);
    for (const HWND dialog : dialogs) {
        ASSERT_NE(dialog, nullptr);
        EXPECT_NE(TextOf(dialog), L"");
    }
}

TEST_F(DialogTemplatesTest, AccessKeysAreUniqueInEachDialog) {
    for (const HWND dialog : dialogs) {
        std::map<wchar_t, HWND> keys;
        for (const HWND child : ChildrenOf(dialog)) {
            const wchar_t key = AccessKeyOf(child);
            if (key == 0 || ClassOf(child) == L"Edit") continue;
            EXPECT_TRUE(keys.emplace(key, child).second)
                << NameOf(dialog, child) << " has the key of " << NameOf(dialog, keys.at(key));
        }
    }
}

TEST_F(DialogTemplatesTest, ALabelWithAKeyIsJustBeforeTheControlThatItNames) {
    for (const HWND dialog : dialogs)
        for (const HWND child : ChildrenOf(dialog)) {
            if (ClassOf(child) != L"Static" || AccessKeyOf(child) == 0) continue;
            const HWND next = GetWindow(child, GW_HWNDNEXT);
            ASSERT_NE(next, nullptr) << NameOf(dialog, child);
            EXPECT_NE(StyleOf(next) & WS_TABSTOP, 0) << NameOf(dialog, child);
        }
}

TEST_F(DialogTemplatesTest, EveryTextBoxListAndComboHasALabelBeforeIt) {
    for (const HWND dialog : dialogs)
        for (const HWND child : ChildrenOf(dialog)) {
            const std::wstring kind = ClassOf(child);
            if (kind != L"Edit" && kind != L"ComboBox" && kind != L"ListBox" && kind != L"SysTreeView32" &&
                kind != L"SysListView32")
                continue;
            const HWND before = GetWindow(child, GW_HWNDPREV);
            ASSERT_NE(before, nullptr) << NameOf(dialog, child);
            EXPECT_EQ(ClassOf(before), L"Static") << NameOf(dialog, child);
            EXPECT_NE(TextOf(before), L"") << NameOf(dialog, child);
        }
}

TEST_F(DialogTemplatesTest, NothingSticksOutOrOverlaps) {
    for (const HWND dialog : dialogs) {
        RECT client{};
        ASSERT_TRUE(GetClientRect(dialog, &client));
        const std::vector<HWND> children = ChildrenOf(dialog);
        for (const HWND child : children) {
            const RECT bounds = BoundsOf(child, dialog);
            EXPECT_TRUE(bounds.left >= 0 && bounds.top >= 0 && bounds.right <= client.right &&
                        (bounds.bottom <= client.bottom || ClassOf(child) == L"ComboBox"))
                << NameOf(dialog, child);
            if (IsFrame(child) || (StyleOf(child) & WS_VISIBLE) == 0) continue;
            for (const HWND other : children) {
                RECT common{};
                const RECT others = BoundsOf(other, dialog);
                const bool counted = other != child && !IsFrame(other) && (StyleOf(other) & WS_VISIBLE) != 0;
                EXPECT_FALSE(counted && IntersectRect(&common, &bounds, &others))
                    << NameOf(dialog, child) << " and " << NameOf(dialog, other);
            }
        }
    }
}

TEST_F(DialogTemplatesTest, TheMarginsOnBothSidesAreEqual) {
    for (const HWND dialog : dialogs) {
        RECT client{};
        ASSERT_TRUE(GetClientRect(dialog, &client));
        LONG left = client.right;
        LONG right = client.right;
        for (const HWND child : ChildrenOf(dialog)) {
            const RECT bounds = BoundsOf(child, dialog);
            left = std::min(left, bounds.left);
            right = std::min(right, client.right - bounds.right);
        }
        // Left edge and width of a control are rounded to pixels one by one.
        EXPECT_NEAR(left, right, 2) << Narrow(TextOf(dialog));
    }
}

TEST_F(DialogTemplatesTest, EveryTextBoxHasTheUsualHeight) {
    for (const HWND dialog : dialogs) {
        RECT usual{0, 0, 0, 14};
        ASSERT_TRUE(MapDialogRect(dialog, &usual));
        for (const HWND child : ChildrenOf(dialog)) {
            if (ClassOf(child) != L"Edit") continue;
            const RECT bounds = BoundsOf(child, dialog);
            EXPECT_NEAR(bounds.bottom - bounds.top, usual.bottom, 1) << NameOf(dialog, child);
        }
    }
}

TEST_F(DialogTemplatesTest, NoTextIsWiderThanItsControl) {
    for (const HWND dialog : dialogs) {
        const HDC dc = GetDC(dialog);
        const HGDIOBJ before =
            SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0)));
        for (const HWND child : ChildrenOf(dialog)) {
            const bool label = ClassOf(child) == L"Static" && (StyleOf(child) & SS_TYPEMASK) <= SS_RIGHT;
            const bool button = ClassOf(child) == L"Button" && (StyleOf(child) & BS_ICON) == 0;
            if (!label && !button) continue;
            const std::wstring text = TextOf(child);
            RECT needed{0, 0, 0, 0};
            RECT bounds{};
            ASSERT_TRUE(GetClientRect(child, &bounds));
            if (label) needed.right = bounds.right;
            DrawTextW(dc, text.c_str(), -1, &needed, DT_CALCRECT | (label ? DT_WORDBREAK : DT_SINGLELINE));
            EXPECT_LE(needed.right, bounds.right) << NameOf(dialog, child);
            // The leading of the last line may reach one pixel below the label.
            if (label) {
                EXPECT_LE(needed.bottom, bounds.bottom + 1) << NameOf(dialog, child);
            }
        }
        SelectObject(dc, before);
        ReleaseDC(dialog, dc);
    }
}

}  // namespace
}  // namespace lindrel::testing
