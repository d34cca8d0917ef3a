#include "export/Favorites.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/PerCategory.h"
#include "export/ExportedEntries.h"
#include "export/Shortcut.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "files/Folder.h"
#include "text/BookText.h"

namespace lindrel {

namespace {

struct ShortcutToWrite {
    int Entry;
    std::string SafeName;
    Path Folder;
};

Path PathOf(std::string_view text) {
    return PathFrom(FromBookText(text));
}

std::vector<ShortcutToWrite> PlanShortcuts(const Book& book, const Path& folder,
                                           bool folder_for_each_category) {
    std::vector<ShortcutToWrite> plan;
    for (int c = 1; c <= kCategories; ++c) {
        if (!IsExported(book, c)) continue;
        const Path target =
            folder_for_each_category ? Joined(folder, PathOf(SafeFolderName(book.CategoryNames(c)))) : folder;
        for (const int e : ExportedEntries(book, c)) {
            std::string name(book.SiteNames(e));
            NamingTheFile(WideText(Joined(target, PathOf(name + ".url"))), [&] { SafeFileName(name); });
            plan.push_back({e, std::move(name), target});
        }
    }
    return plan;
}

}  // namespace

void saveTo_fav(Book& book, const Path& folder, bool folder_for_each_category) {
    const std::vector<ShortcutToWrite> plan = PlanShortcuts(book, folder, folder_for_each_category);
    for (const ShortcutToWrite& shortcut : plan) {
        if (folder_for_each_category) CreateFolder(shortcut.Folder);
        const Path file = Joined(shortcut.Folder, PathOf(shortcut.SafeName + ".url"));
        NamingTheFile(WideText(file),
                      [&] { WriteFileBytes(LongPath(file), ShortcutFile(book.SiteURLs(shortcut.Entry))); });
    }
    for (const ShortcutToWrite& shortcut : plan) book.SetSiteName(shortcut.Entry, shortcut.SafeName);
}

}  // namespace lindrel
