// Folders that tests import from and export to.
#pragma once

#include <gtest/gtest.h>
#include <shlobj.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "files/Files.h"
#include "files/Folder.h"
#include "files/Path.h"
#include "system/Shell.h"
#include "tests/window/support/Program.h"
#include "window/Windows.h"

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

class DeepFolder {
  public:
    explicit DeepFolder(const std::filesystem::path& parent) {
        path_ = parent;
        for (const std::wstring& name : Names()) {
            path_ /= name;
            EXPECT_TRUE(CreateDirectoryW(ExactPath(path_).c_str(), nullptr));
        }
    }
    ~DeepFolder() {
        for (const auto& file : FilesIn(path_))
            EXPECT_TRUE(DeleteFileW(Joined(ExactPath(path_), file).c_str())) << file;
        for (std::size_t left = Names().size(); left > 0; --left, path_ = path_.parent_path())
            EXPECT_TRUE(RemoveDirectoryW(ExactPath(path_).c_str())) << path_;
    }
    DeepFolder(const DeepFolder&) = delete;
    DeepFolder& operator=(const DeepFolder&) = delete;

    static std::vector<std::wstring> Names() {
        constexpr std::size_t kLong = 90;
        return {std::wstring(kLong, L'a'), std::wstring(kLong, L'b'), std::wstring(kLong, L'c'), L"vége."};
    }
    const std::filesystem::path& Path() const { return path_; }
    void Write(const std::wstring& name, const std::string& bytes) const {
        WriteFileBytes(Joined(ExactPath(path_), name), bytes);
    }

  private:
    std::filesystem::path path_;
};

}  // namespace lindrel::testing
