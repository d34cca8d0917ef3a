#include "import/Shortcuts.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <system_error>
#include <utility>

#include "book/BookText.h"
#include "book/Faults.h"
#include "book/File.h"
#include "book/Files.h"
#include "import/TextLines.h"

namespace lindrel {

namespace {

// Length of ".url", in any case.
constexpr std::size_t kExtensionLength = 4;
// Users know that larger folders are refused, and split them.
constexpr std::size_t kMostShortcuts = 255;

bool IsShortcutName(const std::wstring& name) {
    return name.size() >= kExtensionLength &&
           LowerCase(ToBookText(name.substr(name.size() - kExtensionLength))) == ".url";
}

struct ShortcutFile {
    std::string Name;  // as book text
    std::filesystem::path Path;
};

std::vector<ShortcutFile> FilesOf(const std::filesystem::path& folder) {
    std::vector<ShortcutFile> files;
    // A folder that cannot be opened counts as empty; one that cannot be read to its end may hide files.
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    while (!error && entry != std::filesystem::directory_iterator()) {
        const std::wstring name = WideText(entry->path().filename());
        // If this fails, it is taken for a file, so that reading it reports the reason.
        std::error_code unknown;
        if (IsShortcutName(name) && !entry->is_directory(unknown))
            files.push_back({ToBookText(name), entry->path()});
        entry.increment(error);
        if (error) throw FileFault(WideText(folder), L"A mappa nem olvasható végig");
    }
    std::sort(files.begin(), files.end(), [](const ShortcutFile& a, const ShortcutFile& b) {
        return std::pair(LowerCase(a.Name), a.Path) < std::pair(LowerCase(b.Name), b.Path);
    });
    return files;
}

}  // namespace

std::string_view ShortcutAddress(std::string_view file) {
    const std::size_t second = BehindLineEnd(file, EndOfLine(file, 0));
    if (second == file.size()) throw EndOfFileFault();
    const std::string_view line = file.substr(second, EndOfLine(file, second) - second);

    static const CaselessNeedle key("URL=");
    const std::size_t found = key.FindIn(line);
    // Without the key three characters are lost: shortcuts of other programs have always been imported like
    // that.
    const std::size_t behind_key = found == std::string_view::npos ? 3 : found + 4;
    if (line.size() < behind_key) throw ArgumentFault();
    return line.substr(behind_key);
}

std::vector<NewEntry> ShortcutsOfFolder(const std::filesystem::path& folder) {
    std::vector<NewEntry> staged;
    for (const ShortcutFile& file : FilesOf(folder)) {
        const std::vector<char> bytes = ReadFileBytes(file.Path);
        const std::string_view address = ShortcutAddress({bytes.data(), bytes.size()});
        staged.push_back({file.Name.substr(0, file.Name.size() - kExtensionLength), std::string(address)});
        if (staged.size() > kMostShortcuts) throw OverflowFault();
    }
    return staged;
}

}  // namespace lindrel
