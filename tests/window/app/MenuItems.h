// What the user sees of a menu.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel::testing {

struct MenuItem {
    std::wstring Caption;  // with its shortcut; empty for a separator
    int Id = 0;            // 0 for a separator or a menu
    bool Enabled = true;
    bool Default = false;
    bool operator==(const MenuItem&) const = default;
};

inline void PrintTo(const MenuItem& item, std::ostream* out) {
    *out << ::testing::PrintToString(item.Caption) << " " << item.Id << (item.Enabled ? "" : " disabled")
         << (item.Default ? " default" : "");
}

inline std::vector<MenuItem> ItemsOf(HMENU menu) {
    std::vector<MenuItem> items;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t caption[80] = L"";
        MENUITEMINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STATE | MIIM_STRING | MIIM_SUBMENU;
        info.dwTypeData = caption;
        info.cch = 80;
        EXPECT_TRUE(GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info));
        const bool separator = (info.fType & MFT_SEPARATOR) != 0;
        items.push_back({caption, separator || info.hSubMenu != nullptr ? 0 : static_cast<int>(info.wID),
                         separator || (info.fState & MFS_DISABLED) == 0, (info.fState & MFS_DEFAULT) != 0});
    }
    return items;
}

}  // namespace lindrel::testing
