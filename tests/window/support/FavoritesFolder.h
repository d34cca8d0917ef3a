// A folder among the user's favourites, where the dialogs that choose a folder start, and the way to it in
// their tree of folders.
#pragma once

#include <shlobj.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "system/Shell.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {

// Made with a folder "Alsó" in it, removed with everything in it in the end.
class FavoritesFolder {
  public:
    FavoritesFolder() { std::filesystem::create_directories(Path() / L"Alsó"); }
    ~FavoritesFolder() {
        std::error_code ignored;  // a test may have removed it
        std::filesystem::remove_all(Path(), ignored);
    }
    FavoritesFolder(const FavoritesFolder&) = delete;
    FavoritesFolder& operator=(const FavoritesFolder&) = delete;
    static std::filesystem::path Start() { return ShellFolder(CSIDL_FAVORITES).value(); }
    static std::filesystem::path Path() { return Start() / L"Lindrel próba"; }
};

// The text of the item that is selected in a tree of folders.
inline std::wstring SelectedItemText(HWND tree) {
    wchar_t text[MAX_PATH] = L"";
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.hItem = TreeView_GetSelection(tree);
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    TreeView_GetItem(tree, &item);
    return text;
}

// Goes from the folder that is selected to one in it, by the keyboard. Throws std::runtime_error if it is not
// there.
inline void DescendTo(const Program& program, HWND tree, const std::wstring& name) {
    constexpr int kMostSteps = 20;
    program.PressKey(tree, VK_RIGHT);  // opens the folder, or goes into the open one
    for (int step = 0; step < kMostSteps; ++step) {
        if (SelectedItemText(tree) == name) return;
        program.PressKey(tree, VK_DOWN);
    }
    throw std::runtime_error("the folder is not in the tree");
}

}  // namespace lindrel::testing
