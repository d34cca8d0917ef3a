// A folder of the user's favourites, where the folder choices start, and walking to it in the tree of
// folders.
#pragma once

#include <filesystem>
#include <string>

#include "tests/window/support/Program.h"
#include "window/Windows.h"

namespace lindrel::testing {

// Made with a folder "Alsó" in it, removed with everything in it at the end.
class FavoritesFolder {
  public:
    FavoritesFolder();
    ~FavoritesFolder();
    FavoritesFolder(const FavoritesFolder&) = delete;
    FavoritesFolder& operator=(const FavoritesFolder&) = delete;
    static std::filesystem::path Start();
    static std::filesystem::path Path() { return Start() / L"Lindrel próba"; }
};

// Text of the item that is selected in a tree of folders.
std::wstring SelectedItemText(HWND tree);

// Walks down from the folder that is selected to one inside it, by the keyboard. Throws when it is not there.
void DescendTo(const Program& program, HWND tree, const std::wstring& name);

}  // namespace lindrel::testing
