#include <system_error>

#include "faults/Faults.h"
#include "files/File.h"
#include "files/Folder.h"

namespace lindrel {

Path ExactPath(const Path& path) {
    return path;
}

Path LongPath(const Path& path) {
    return path;
}

std::vector<Path> FilesIn(const Path& folder) {
    std::vector<Path> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    while (!error && entry != std::filesystem::directory_iterator()) {
        // If this fails, it is taken for a file, so that reading it reports the reason.
        std::error_code unknown;
        if (!entry->is_directory(unknown)) names.push_back(entry->path().filename());
        entry.increment(error);
        if (error) throw FileFault(WideText(folder), L"A mappa nem olvasható végig");
    }
    return names;
}

bool FolderIsThere(const Path& folder) {
    std::error_code unknown;
    return std::filesystem::is_directory(folder, unknown);
}

void CreateFolder(const Path& folder) {
    std::error_code error;
    std::filesystem::create_directory(folder, error);
    if (error && !FolderIsThere(folder)) throw FileFault(WideText(folder), L"A mappa nem hozható létre");
}

}  // namespace lindrel
