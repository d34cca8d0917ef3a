#include "controls/DirList.h"

#include <shellapi.h>

#include <algorithm>
#include <new>
#include <vector>

namespace lindrel {

namespace {

// What an item's lParam says about its children.
constexpr LPARAM kNotFilled = 0;
constexpr LPARAM kFilled = 1;

bool SameName(const std::wstring& one, const std::wstring& other) {
    return CompareStringOrdinal(one.c_str(), static_cast<int>(one.size()), other.c_str(),
                                static_cast<int>(other.size()), TRUE) == CSTR_EQUAL;
}

// Names of the folders in a folder, as the user sorts names. A folder that may not be read has none.
std::vector<std::wstring> FoldersIn(const std::wstring& path) {
    std::vector<std::wstring> names;
    const std::wstring pattern = path + (path.ends_with(L'\\') ? L"*" : L"\\*");
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        const std::wstring name = found.cFileName;
        const bool folder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        const bool hidden = (found.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
        if (folder && !hidden && name != L"." && name != L"..") names.push_back(name);
    } while (FindNextFileW(search, &found));
    static_cast<void>(FindClose(search));  // fails only for a handle that is none
    std::sort(names.begin(), names.end(), [](const std::wstring& a, const std::wstring& b) {
        return lstrcmpiW(a.c_str(), b.c_str()) < 0;
    });
    return names;
}

// Index of the system's picture of a folder, closed or open.
int FolderPicture(bool open) {
    SHFILEINFOW info{};
    const UINT flags =
        SHGFI_SYSICONINDEX | SHGFI_SMALLICON | SHGFI_USEFILEATTRIBUTES | (open ? SHGFI_OPENICON : 0);
    // Without an answer the first picture is shown.
    static_cast<void>(SHGetFileInfoW(L"folder", FILE_ATTRIBUTE_DIRECTORY, &info, sizeof info, flags));
    return info.iIcon;
}

HIMAGELIST SystemPictures() {
    SHFILEINFOW info{};
    return reinterpret_cast<HIMAGELIST>(
        SHGetFileInfoW(L"folder", FILE_ATTRIBUTE_DIRECTORY, &info, sizeof info,
                       SHGFI_SYSICONINDEX | SHGFI_SMALLICON | SHGFI_USEFILEATTRIBUTES));
}

}  // namespace

void DirList::Attach(HWND tree) {
    static_cast<Control&>(*this) = Control(tree);
    // The system's own list, which the control never frees.
    static_cast<void>(TreeView_SetImageList(tree, SystemPictures(), TVSIL_NORMAL));
    const DWORD drives = GetLogicalDrives();
    for (int drive = 0; drive < 26; ++drive)
        if ((drives >> drive & 1) != 0)
            static_cast<void>(Add(TVI_ROOT, {static_cast<wchar_t>(L'A' + drive), L':', L'\\'}));
}

HTREEITEM DirList::Add(HTREEITEM parent, const std::wstring& name) const {
    std::wstring text = name;
    TVINSERTSTRUCTW item{};
    item.hParent = parent;
    item.hInsertAfter = TVI_LAST;
    item.item.mask = TVIF_TEXT | TVIF_CHILDREN | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.item.pszText = text.data();
    item.item.cChildren = 1;  // looked at only when the user opens it
    item.item.lParam = kNotFilled;
    item.item.iImage = FolderPicture(false);
    item.item.iSelectedImage = FolderPicture(true);
    const HTREEITEM added = TreeView_InsertItem(Handle(), &item);
    if (added == nullptr) throw std::bad_alloc();
    return added;
}

void DirList::FillFolder(HTREEITEM folder) const {
    TVITEMW item{};
    item.mask = TVIF_PARAM;
    item.hItem = folder;
    if (!TreeView_GetItem(Handle(), &item) || item.lParam == kFilled) return;
    const std::vector<std::wstring> names = FoldersIn(PathOf(folder));
    for (const std::wstring& name : names) static_cast<void>(Add(folder, name));
    item.mask = TVIF_PARAM | TVIF_CHILDREN;
    item.lParam = kFilled;
    item.cChildren = names.empty() ? 0 : 1;
    static_cast<void>(TreeView_SetItem(Handle(), &item));  // a plus sign too many does no harm
}

std::wstring DirList::NameOf(HTREEITEM folder) const {
    std::wstring name(MAX_PATH, L'\0');
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.hItem = folder;
    item.pszText = name.data();
    item.cchTextMax = static_cast<int>(name.size());
    if (!TreeView_GetItem(Handle(), &item)) return {};
    return item.pszText;
}

std::wstring DirList::PathOf(HTREEITEM item) const {
    std::wstring path = NameOf(item);
    for (HTREEITEM parent = TreeView_GetParent(Handle(), item); parent != nullptr;
         parent = TreeView_GetParent(Handle(), parent)) {
        const std::wstring folder = NameOf(parent);
        path.insert(0, folder.ends_with(L'\\') ? folder : folder + L"\\");
    }
    return path;
}

HTREEITEM DirList::ChildNamed(HTREEITEM parent, const std::wstring& name) const {
    for (HTREEITEM child = TreeView_GetChild(Handle(), parent); child != nullptr;
         child = TreeView_GetNextSibling(Handle(), child))
        if (SameName(NameOf(child), name)) return child;
    return nullptr;
}

std::wstring DirList::Path() const {
    const HTREEITEM selected = TreeView_GetSelection(Handle());
    return selected == nullptr ? std::wstring() : PathOf(selected);
}

void DirList::SetPath(const std::wstring& path) const {
    HTREEITEM reached = nullptr;
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t end = std::min(path.find(L'\\', start), path.size());
        std::wstring name = path.substr(start, end - start);
        start = end + 1;
        if (name.empty()) continue;
        if (reached == nullptr) name += L'\\';
        const HTREEITEM next = ChildNamed(reached == nullptr ? TVI_ROOT : reached, name);
        if (next == nullptr) break;
        FillFolder(next);
        reached = next;
    }
    if (reached == nullptr) return;
    static_cast<void>(TreeView_SelectItem(Handle(), reached));
    static_cast<void>(
        TreeView_Expand(Handle(), reached, TVE_EXPAND));  // fails where there is nothing to open
    static_cast<void>(TreeView_EnsureVisible(Handle(), reached));
}

LRESULT DirList::Notify(const NMHDR& header) const {
    if (header.code == TVN_ITEMEXPANDINGW) {
        const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
        if (change.action == TVE_EXPAND) FillFolder(change.itemNew.hItem);
    }
    return 0;
}

}  // namespace lindrel
