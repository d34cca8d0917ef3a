#include "import/Shortcuts.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "faults/Faults.h"
#include "files/Files.h"
#include "files/Folder.h"
#include "text/BookText.h"
#include "text/TextFile.h"

namespace lindrel {

namespace {

constexpr std::size_t kExtensionLength = 4;
// People know that larger folders are refused, and split them.
constexpr std::size_t kMostShortcuts = 255;

bool IsShortcutName(const std::wstring& name) {
    return name.size() >= kExtensionLength &&
           LowerCase(ToBookText(name.substr(name.size() - kExtensionLength))) == ".url";
}

struct FoundFile {
    std::string Name;  // as book text
    Path FileName;
};

std::vector<FoundFile> FilesOf(const Path& folder) {
    std::vector<FoundFile> files;
    for (const Path& file : FilesIn(folder))
        if (const std::wstring name = WideText(file); IsShortcutName(name))
            files.push_back({ToBookText(name), file});
    std::sort(files.begin(), files.end(), [](const FoundFile& a, const FoundFile& b) {
        return std::pair(LowerCase(a.Name), a.FileName) < std::pair(LowerCase(b.Name), b.FileName);
    });
    return files;
}

}  // namespace

std::string ShortcutAddress(std::vector<char> file) {
    const TextFile lines = TextFileOf(std::move(file));
    std::string_view text = lines.Text();
    TakeLine(text);
    if (text.empty()) throw EndOfFileFault();
    const DecodedText line(TakeLine(text), lines.Encoding);

    const std::size_t key = LowerCase(line.Text()).find("url=");
    // A line without the key loses three characters: such files have always been imported like that.
    const std::size_t address = key == std::string::npos ? 3 : key + 4;
    if (line.Text().size() < address) throw ArgumentFault();
    return line.Address(address, line.Text().size());
}

std::vector<NewEntry> ShortcutsOfFolder(const Path& folder) {
    std::vector<NewEntry> staged;
    const Path exact = ExactPath(folder);
    for (const FoundFile& file : FilesOf(folder))
        NamingTheFile(WideText(Joined(folder, file.FileName)), [&] {
            std::string address = ShortcutAddress(ReadFileBytes(Joined(exact, file.FileName)));
            if (staged.size() == kMostShortcuts) throw OverflowFault();
            staged.push_back({file.Name.substr(0, file.Name.size() - kExtensionLength), std::move(address)});
        });
    return staged;
}

}  // namespace lindrel
