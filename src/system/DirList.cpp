#include "system/DirList.h"

#include <shellapi.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "faults/Faults.h"
#include "files/FileSearch.h"
#include "files/Folder.h"

namespace lindrel {

namespace {

// Values of an item's lParam: whether its folder has been read.
constexpr LPARAM kNotFilled = 0;
constexpr LPARAM kFilled = 1;

bool SameName(const std::wstring& one, const std::wstring& other) {
    return CompareStringOrdinal(one.c_str(), static_cast<int>(one.size()), other.c_str(),
                                static_cast<int>(other.size()), TRUE) == CSTR_EQUAL;
}

bool IsShown(const WIN32_FIND_DATAW& found) {
    const std::wstring_view name = found.cFileName;
    const bool hidden = (found.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    return IsFolder(found) && !hidden && name != L"." && name != L"..";
}

std::vector<std::wstring> FoldersIn(const std::wstring& path) {
    std::vector<std::wstring> names;
    // The tree shows as much of a folder as can be read.
    static_cast<void>(VisitMatches(Joined(path, L"*"), [&](const WIN32_FIND_DATAW& found) {
        if (IsShown(found)) names.emplace_back(found.cFileName);
        return true;
    }));
    SortNames(names);
    return names;
}

bool HasFolders(const std::wstring& path) {
    bool has = false;
    // One that cannot be read has none.
    static_cast<void>(VisitMatches(Joined(path, L"*"), [&](const WIN32_FIND_DATAW& found) {
        has = IsShown(found);
        return !has;
    }));
    return has;
}

// The system's image list and the index of a folder in it. `kind` is 0 or SHGFI_OPENICON. If the system does
// not answer, nullptr and 0.
std::pair<HIMAGELIST, int> FolderPicture(UINT kind) {
    SHFILEINFOW info{};
    const DWORD_PTR list =
        SHGetFileInfoW(L"folder", FILE_ATTRIBUTE_DIRECTORY, &info, sizeof info,
                       SHGFI_SYSICONINDEX | SHGFI_SMALLICON | SHGFI_USEFILEATTRIBUTES | kind);
    return {reinterpret_cast<HIMAGELIST>(list), info.iIcon};
}

// Length of the root that a path begins with: "C:" or "\\server\share".
std::size_t RootLength(const std::wstring& path) {
    if (!path.starts_with(L"\\\\")) return std::min(path.find(L'\\'), path.size());
    const std::size_t server_end = std::min(path.find(L'\\', 2), path.size());
    return std::min(path.find(L'\\', server_end + 1), path.size());
}

}  // namespace

void DirList::Attach(HWND tree) {
    Wrap(tree);
    const auto [pictures, closed] = FolderPicture(0);
    closed_picture_ = closed;
    open_picture_ = FolderPicture(SHGFI_OPENICON).second;
    TreeView_SetImageList(tree, pictures, TVSIL_NORMAL);  // tree views do not destroy their image lists
    const DWORD drives = GetLogicalDrives();
    for (int drive = 0; drive < 26; ++drive)
        if ((drives >> drive & 1) != 0)
            Add(TVI_ROOT, {static_cast<wchar_t>(L'A' + drive), L':', L'\\'}, TVI_LAST);
}

HTREEITEM DirList::Add(HTREEITEM parent, const std::wstring& name, HTREEITEM after) const {
    std::wstring text = name;
    TVINSERTSTRUCTW item{};
    item.hParent = parent;
    item.hInsertAfter = after;
    item.item.mask = TVIF_TEXT | TVIF_CHILDREN | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.item.pszText = text.data();
    // Whether a folder can be opened is asked when it comes into view. A drive, which may be slow or empty,
    // is not read until the user opens it.
    item.item.cChildren = parent == TVI_ROOT ? 1 : I_CHILDRENCALLBACK;
    item.item.lParam = kNotFilled;
    item.item.iImage = closed_picture_;
    item.item.iSelectedImage = open_picture_;
    const HTREEITEM added = TreeView_InsertItem(Handle(), &item);
    if (added == nullptr) throw SystemFault(L"mappa megjelenítése", 0);
    return added;
}

void DirList::FillFolder(HTREEITEM folder) const {
    TVITEMW item{};
    item.mask = TVIF_PARAM;
    item.hItem = folder;
    if (!TreeView_GetItem(Handle(), &item) || item.lParam == kFilled) return;
    const std::vector<std::wstring> names = FoldersIn(PathOf(folder));
    for (const std::wstring& name : names) Add(folder, name, TVI_LAST);
    item.mask = TVIF_PARAM | TVIF_CHILDREN;
    item.lParam = kFilled;
    item.cChildren = names.empty() ? 0 : 1;
    TreeView_SetItem(Handle(), &item);
}

std::wstring DirList::NameOf(HTREEITEM item) const {
    std::wstring name(MAX_PATH, L'\0');
    TVITEMW query{};
    query.mask = TVIF_TEXT;
    query.hItem = item;
    query.pszText = name.data();
    query.cchTextMax = static_cast<int>(name.size());
    if (!TreeView_GetItem(Handle(), &query)) return {};
    return query.pszText;
}

std::wstring DirList::PathOf(HTREEITEM item) const {
    std::wstring path = NameOf(item);
    for (HTREEITEM parent = TreeView_GetParent(Handle(), item); parent != nullptr;
         parent = TreeView_GetParent(Handle(), parent))
        path = Joined(NameOf(parent), path);
    return path;
}

HTREEITEM DirList::ChildNamed(HTREEITEM parent, const std::wstring& name) const {
    HTREEITEM child = parent == TVI_ROOT ? TreeView_GetRoot(Handle()) : TreeView_GetChild(Handle(), parent);
    while (child != nullptr && !SameName(NameOf(child), name))
        child = TreeView_GetNextSibling(Handle(), child);
    return child;
}

// The item of a folder, added to the tree if missing; nullptr if there is no such folder.
HTREEITEM DirList::Reach(HTREEITEM parent, const std::wstring& name, const std::wstring& path) const {
    HTREEITEM item = ChildNamed(parent, name);
    if (item == nullptr && FolderIsThere(path)) {
        item = Add(parent, name, parent == TVI_ROOT ? TVI_LAST : TVI_SORT);
        TVITEMW opener{};
        opener.mask = TVIF_CHILDREN;
        opener.hItem = parent;
        opener.cChildren = 1;
        if (parent != TVI_ROOT) TreeView_SetItem(Handle(), &opener);
    }
    return item;
}

std::wstring DirList::Path() const {
    const HTREEITEM selected = TreeView_GetSelection(Handle());
    return selected == nullptr ? std::wstring() : PathOf(selected);
}

void DirList::SetPath(const std::wstring& path) const {
    const bool share = path.starts_with(L"\\\\");
    std::size_t end = RootLength(path);
    const std::wstring root = path.substr(0, end) + (share ? L"" : L"\\");
    HTREEITEM reached = share ? Reach(TVI_ROOT, root, root) : ChildNamed(TVI_ROOT, root);
    while (reached != nullptr && end < path.size()) {
        const std::size_t start = end + 1;
        end = std::min(path.find(L'\\', start), path.size());
        if (end == start) continue;
        FillFolder(reached);
        const HTREEITEM next = Reach(reached, path.substr(start, end - start), path.substr(0, end));
        if (next == nullptr) break;
        reached = next;
    }
    if (reached == nullptr) reached = TreeView_GetRoot(Handle());
    FillFolder(reached);
    TreeView_SelectItem(Handle(), reached);
    TreeView_Expand(Handle(), reached, TVE_EXPAND);
    TreeView_EnsureVisible(Handle(), reached);
}

LRESULT DirList::Notify(const NMHDR& header) const {
    if (header.code == TVN_ITEMEXPANDINGW) {
        const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
        if (change.action == TVE_EXPAND) FillFolder(change.itemNew.hItem);
    }
    if (header.code == TVN_GETDISPINFOW) {
        auto& asked = const_cast<NMTVDISPINFOW&>(reinterpret_cast<const NMTVDISPINFOW&>(header));
        if ((asked.item.mask & TVIF_CHILDREN) != 0)
            asked.item.cChildren = HasFolders(PathOf(asked.item.hItem)) ? 1 : 0;
    }
    return 0;
}

}  // namespace lindrel
