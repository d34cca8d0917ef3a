// The folder tree, on real drives and folders.

#include "system/DirList.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "tests/window/support/Program.h"
#include "tests/window/support/Text.h"

namespace lindrel::testing {
namespace {

// A tree in a window of its own that passes the notifications on, as a dialog does.
class DirListTest : public ::testing::Test {
  protected:
    DirListTest() {
        WNDCLASSW description{};
        description.lpfnWndProc = &DirListTest::Procedure;
        description.hInstance = GetModuleHandleW(nullptr);
        description.lpszClassName = L"DirListTest";
        static_cast<void>(RegisterClassW(&description));  // fails when an earlier test has made it
        parent_ = CreateWindowExW(0, L"DirListTest", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                                  nullptr, description.hInstance, nullptr);
        SetWindowLongPtrW(parent_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&list));
        tree = CreateWindowExW(0, WC_TREEVIEWW, L"",
                               WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS,
                               0, 0, 300, 200, parent_, nullptr, description.hInstance, nullptr);
        list.Attach(tree);
    }
    ~DirListTest() override { DestroyWindow(parent_); }

    std::wstring NameOf(HTREEITEM item) const {
        wchar_t text[MAX_PATH] = L"";
        TVITEMW asked{};
        asked.mask = TVIF_TEXT;
        asked.hItem = item;
        asked.pszText = text;
        asked.cchTextMax = MAX_PATH;
        EXPECT_TRUE(TreeView_GetItem(tree, &asked));
        return text;
    }
    // Names of an item and its later siblings.
    std::vector<std::wstring> NamesFrom(HTREEITEM item) const {
        std::vector<std::wstring> names;
        for (; item != nullptr; item = TreeView_GetNextSibling(tree, item)) names.push_back(NameOf(item));
        return names;
    }
    std::vector<std::wstring> NamesIn(HTREEITEM parent) const {
        return NamesFrom(TreeView_GetChild(tree, parent));
    }
    HTREEITEM Selected() const { return TreeView_GetSelection(tree); }
    bool CanBeOpened(HTREEITEM item) const {
        TVITEMW asked{};
        asked.mask = TVIF_CHILDREN;
        asked.hItem = item;
        EXPECT_TRUE(TreeView_GetItem(tree, &asked));
        return asked.cChildren != 0;
    }
    void Press(WPARAM key) const { SendMessageW(tree, WM_KEYDOWN, key, 1); }
    void MakeFolders(const std::vector<std::wstring>& names) const {
        for (const std::wstring& name : names) std::filesystem::create_directories(folder.File(name));
    }

    TemporaryFolder folder;
    DirList list;
    HWND tree = nullptr;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
        const auto* const notified =
            reinterpret_cast<const DirList*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message == WM_NOTIFY && notified != nullptr)
            return notified->Notify(*reinterpret_cast<const NMHDR*>(lparam));
        return DefWindowProcW(window, message, wparam, lparam);
    }
    HWND parent_ = nullptr;
};

TEST_F(DirListTest, ShowsTheDrivesAndSelectsNothing) {
    std::vector<std::wstring> drives;
    for (int drive = 0; drive < 26; ++drive)
        if ((GetLogicalDrives() >> drive & 1) != 0)
            drives.push_back({static_cast<wchar_t>(L'A' + drive), L':', L'\\'});
    EXPECT_EQ(NamesFrom(TreeView_GetRoot(tree)), drives);
    EXPECT_EQ(list.Path(), L"");
}

TEST_F(DirListTest, OpensTheTreeDownToAFolderAndShowsIt) {
    MakeFolders({L"start\\b", L"start\\A", L"start\\\xC1rv\xEDz", L"start\\a\\x"});
    folder.Write(L"start\\file.txt", "");
    list.SetPath(folder.File(L"start"));
    EXPECT_EQ(list.Path(), folder.File(L"start"));
    EXPECT_EQ(NamesIn(Selected()), (std::vector<std::wstring>{L"A", L"\xC1rv\xEDz", L"b"}));
    EXPECT_NE(TreeView_GetItemState(tree, Selected(), TVIS_EXPANDED) & TVIS_EXPANDED, 0u);
    RECT place{};
    RECT client{};
    RECT both{};
    ASSERT_TRUE(TreeView_GetItemRect(tree, Selected(), &place, TRUE));
    GetClientRect(tree, &client);
    IntersectRect(&both, &place, &client);
    EXPECT_EQ(both.top, place.top);
    EXPECT_EQ(both.bottom, place.bottom);
}

TEST_F(DirListTest, LetterCaseAndBackslashesAtTheEndDoNoHarm) {
    MakeFolders({L"start"});
    std::wstring path = folder.File(L"START") + L"\\\\";
    path[0] = L'c';
    list.SetPath(path);
    EXPECT_EQ(list.Path(), folder.File(L"start"));
}

TEST_F(DirListTest, ADriveEndsInABackslash) {
    list.SetPath(L"C:\\");
    EXPECT_EQ(list.Path(), L"C:\\");
    list.SetPath(L"C:");
    EXPECT_EQ(list.Path(), L"C:\\");
    Press(VK_RIGHT);  // goes into the open drive
    EXPECT_EQ(list.Path(), L"C:\\" + NameOf(Selected()));
}

TEST_F(DirListTest, AFolderThatIsGoneShowsTheOneAboveIt) {
    MakeFolders({L"start"});
    list.SetPath(folder.File(L"start\\gone\\deeper"));
    EXPECT_EQ(list.Path(), folder.File(L"start"));
}

TEST_F(DirListTest, WithoutAnythingOfThePathTheFirstDriveIsSelected) {
    const std::wstring first = NameOf(TreeView_GetRoot(tree));
    for (const wchar_t* path : {L"?:\\x", L"", L"\\\\nobody\\nothing\\x", L"relative"}) {
        list.SetPath(path);
        EXPECT_EQ(list.Path(), first);
    }
}

TEST_F(DirListTest, HiddenFoldersAreShownOnTheWayOnly) {
    MakeFolders({L"start\\hidden\\in", L"start\\other", L"start\\z"});
    for (const wchar_t* name : {L"start\\hidden", L"start\\other"})
        ASSERT_TRUE(SetFileAttributesW(folder.File(name).c_str(), FILE_ATTRIBUTE_HIDDEN));
    list.SetPath(folder.File(L"start"));
    const HTREEITEM start = Selected();
    EXPECT_EQ(NamesIn(start), std::vector<std::wstring>{L"z"});
    list.SetPath(folder.File(L"start\\hidden\\in"));
    EXPECT_EQ(list.Path(), folder.File(L"start\\hidden\\in"));
    EXPECT_EQ(NamesIn(start), (std::vector<std::wstring>{L"hidden", L"z"}));
}

TEST_F(DirListTest, AShareOfTheNetworkIsShownWhenItIsTheStart) {
    // Wine looks for shares in the folder of its settings.
    std::wstring shares(MAX_PATH, L'\0');
    shares.resize(GetEnvironmentVariableW(L"WINECONFIGDIR", shares.data(), MAX_PATH));
    constexpr std::wstring_view kMark = L"\\??\\";
    ASSERT_TRUE(shares.starts_with(kMark)) << Narrow(shares);
    shares = shares.substr(kMark.size()) + L"\\dosdevices\\unc";
    std::filesystem::create_directories(shares + L"\\gep\\kozos\\Kedvencek\\in");
    list.SetPath(L"\\\\gep\\kozos\\Kedvencek");
    EXPECT_EQ(list.Path(), L"\\\\gep\\kozos\\Kedvencek");
    EXPECT_EQ(NamesIn(Selected()), std::vector<std::wstring>{L"in"});
    EXPECT_EQ(NameOf(TreeView_GetParent(tree, Selected())), L"\\\\gep\\kozos");
    list.SetPath(L"\\\\gep\\kozos");
    EXPECT_EQ(list.Path(), L"\\\\gep\\kozos");
    std::filesystem::remove_all(shares);
}

TEST_F(DirListTest, ASignToOpenStandsWhereThereAreFolders) {
    MakeFolders({L"start\\empty", L"start\\full\\in"});
    folder.Write(L"start\\empty\\file.txt", "");
    list.SetPath(folder.File(L"start"));
    const HTREEITEM empty = TreeView_GetChild(tree, Selected());
    EXPECT_FALSE(CanBeOpened(empty));
    EXPECT_TRUE(CanBeOpened(TreeView_GetNextSibling(tree, empty)));
}

TEST_F(DirListTest, TheKeyboardWalksAndOpens) {
    MakeFolders({L"start\\a\\deep", L"start\\b"});
    list.SetPath(folder.File(L"start"));
    Press(VK_DOWN);
    EXPECT_EQ(list.Path(), folder.File(L"start\\a"));
    Press(VK_RIGHT);  // opens it
    EXPECT_EQ(list.Path(), folder.File(L"start\\a"));
    Press(VK_RIGHT);  // and goes in
    EXPECT_EQ(list.Path(), folder.File(L"start\\a\\deep"));
    Press(VK_DOWN);
    EXPECT_EQ(list.Path(), folder.File(L"start\\b"));
    Press(VK_LEFT);
    EXPECT_EQ(list.Path(), folder.File(L"start"));
    SendMessageW(tree, WM_CHAR, L'b', 1);  // by the first letters
    EXPECT_EQ(list.Path(), folder.File(L"start\\b"));
}

}  // namespace
}  // namespace lindrel::testing
