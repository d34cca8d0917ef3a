// The file functions that tests, fuzz targets and benchmarks need where there is no Windows. Nothing of this
// is shipped.
#include <cerrno>
#include <fstream>
#include <system_error>

#include "faults/Faults.h"
#include "files/Files.h"
#include "files/Folder.h"

namespace lindrel {

namespace {

[[noreturn]] void Fail(const Path& path, const std::error_code& error = {errno, std::generic_category()}) {
    throw FileFault(WideText(path), WideText(error.message()));
}

}  // namespace

std::wstring WideText(const Path& path) {
    // Not wstring(), which depends on the locale. File names are UTF-8 here.
    const std::u32string characters = path.u32string();
    return {characters.begin(), characters.end()};
}

Path PathFrom(std::wstring_view text) {
    return std::u32string(text.begin(), text.end());
}

Path Joined(const Path& folder, const Path& name) {
    return folder / name;
}

Path ExactPath(const Path& path) {
    return path;
}

Path LongPath(const Path& path) {
    return path;
}

std::vector<char> ReadFileBytes(const Path& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    std::vector<char> bytes(error ? 0 : size);
    std::ifstream file(path, std::ios::binary);
    if (error) Fail(path, error);
    if (!file.read(bytes.data(), std::ssize(bytes))) Fail(path);
    return bytes;
}

void WriteFileBytes(const Path& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary);
    file << bytes << std::flush;
    if (!file) Fail(path);
}

void ReplaceFileBytes(const Path& path, std::string_view bytes) {
    const Path temporary = path.parent_path() / "~lnd.tmp";
    NamingTheFile(WideText(path), [&] { WriteFileBytes(temporary, bytes); });
    std::error_code error;
    std::filesystem::rename(temporary, path, error);
    if (!error) return;
    std::filesystem::remove(temporary);
    Fail(path, error);
}

std::vector<Path> FilesIn(const Path& folder) {
    std::vector<Path> names;
    std::error_code missing;
    for (const auto& entry : std::filesystem::directory_iterator(folder, missing))
        if (!entry.is_directory()) names.push_back(entry.path().filename());
    return names;
}

void CreateFolder(const Path& folder) {
    std::error_code error;
    std::filesystem::create_directory(folder, error);
    if (!std::filesystem::is_directory(folder))
        throw FileFault(WideText(folder), L"A mappa nem hozható létre");
}

}  // namespace lindrel
