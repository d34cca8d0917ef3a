#include "tests/window/support/FavoritesFolder.h"

#include <shlobj.h>

#include <stdexcept>

#include "system/Shell.h"

namespace lindrel::testing {

FavoritesFolder::FavoritesFolder() {
    std::filesystem::create_directories(Path() / L"Alsó");
}

FavoritesFolder::~FavoritesFolder() {
    std::error_code gone;  // a test may have removed it
    std::filesystem::remove_all(Path(), gone);
}

std::filesystem::path FavoritesFolder::Start() {
    return ShellFolder(CSIDL_FAVORITES).value();
}

std::wstring SelectedItemText(HWND tree) {
    wchar_t text[MAX_PATH] = L"";
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.hItem = reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return text;
}

void DescendTo(const Program& program, HWND tree, const std::wstring& name) {
    constexpr int kMostSteps = 20;
    program.PressKey(tree, VK_RIGHT);  // opens the folder, or goes into the open one
    for (int step = 0; step < kMostSteps; ++step) {
        if (SelectedItemText(tree) == name) return;
        program.PressKey(tree, VK_DOWN);
    }
    throw std::runtime_error("the folder is not in the tree");
}

}  // namespace lindrel::testing
