#include "files/Files.h"

#include "files/File.h"
#include "text/BookText.h"

namespace lindrel {

std::vector<char> ReadFileBytes(const Path& path) {
    File file = File::ForReading(path);
    std::vector<char> bytes(file.Size());
    bytes.resize(file.Read(bytes));
    return bytes;
}

void WriteFileBytes(const Path& path, std::string_view bytes) {
    File file = File::ForWriting(path);
    file.Write(bytes);
    file.Close();
}

void ReplaceFileBytes(const Path& path, std::string_view bytes) {
    File file = File::ForReplacing(path);
    file.Write(bytes);
    file.Replace();
}

std::wstring FileNameOf(std::wstring_view path) {
    const auto backslash = path.rfind(L'\\');
    return std::wstring(Trim(backslash == std::wstring_view::npos ? path : path.substr(backslash + 1)));
}

}  // namespace lindrel
