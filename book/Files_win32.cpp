// Files by wide-character system calls, so that a path may hold any character.

#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>

#include "book/Faults.h"
#include "book/Files.h"

namespace lindrel {

namespace {

// One call reads or writes at most this much; a DWORD counts the bytes.
constexpr std::size_t kMostBytesAtOnce = 1U << 30;

std::wstring ReasonOf(DWORD error) {
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::wstring reason = length != 0 ? std::wstring(text, length) : L"Hibakód: " + std::to_wstring(error);
    static_cast<void>(LocalFree(text));  // nullptr is freed as well
    reason.erase(reason.find_last_not_of(L"\r\n .") + 1);
    return reason;
}

[[noreturn]] void Fail(const std::filesystem::path& path, DWORD error = GetLastError()) {
    throw FileFault(WideText(path), ReasonOf(error));
}

class File {
  public:
    File(const std::filesystem::path& path, DWORD access, DWORD sharing, DWORD creation)
        : path_(path),
          handle_(
              CreateFileW(path.c_str(), access, sharing, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr)) {
        if (handle_ == INVALID_HANDLE_VALUE) Fail(path);
    }
    ~File() {
        if (handle_ != INVALID_HANDLE_VALUE) static_cast<void>(CloseHandle(handle_));
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    std::size_t Size() const {
        LARGE_INTEGER size{};
        if (!GetFileSizeEx(handle_, &size)) Fail(path_);
        return static_cast<std::size_t>(size.QuadPart);
    }

    // May give less than asked for at the end of the file.
    std::size_t Read(char* buffer, std::size_t size) const {
        std::size_t done = 0;
        while (done < size) {
            DWORD got = 0;
            const auto wanted = static_cast<DWORD>(std::min(size - done, kMostBytesAtOnce));
            if (!ReadFile(handle_, buffer + done, wanted, &got, nullptr)) Fail(path_);
            if (got == 0) break;
            done += got;
        }
        return done;
    }

    void Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            DWORD put = 0;
            const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMostBytesAtOnce));
            if (!WriteFile(handle_, bytes.data(), wanted, &put, nullptr)) Fail(path_);
            bytes.remove_prefix(put);
        }
    }

    void Flush() const {
        if (!FlushFileBuffers(handle_)) Fail(path_);
    }

    void Close() {
        if (!CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE))) Fail(path_);
    }

  private:
    std::filesystem::path path_;
    HANDLE handle_;
};

// A name beside the target that nobody else uses: the process and a counter make it unique.
std::filesystem::path TemporaryBeside(const std::filesystem::path& path) {
    std::filesystem::path temporary;
    DWORD attempt = 0;
    do {
        temporary = path;
        temporary +=
            L"." + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(attempt++) + L".tmp";
    } while (GetFileAttributesW(temporary.c_str()) != INVALID_FILE_ATTRIBUTES);
    return temporary;
}

}  // namespace

std::wstring WideText(const std::filesystem::path& path) {
    return path.wstring();
}

std::wstring NameOfFile(const std::filesystem::path& path) {
    return path.filename().native();
}

std::vector<char> ReadFileBytes(const std::filesystem::path& path) {
    const File file(path, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
    std::vector<char> bytes(file.Size());
    bytes.resize(file.Read(bytes.data(), bytes.size()));
    return bytes;
}

void WriteFileBytes(const std::filesystem::path& path, std::string_view bytes) {
    File file(path, GENERIC_WRITE, 0, CREATE_ALWAYS);
    file.Write(bytes);
    file.Close();
}

void ReplaceFileBytes(const std::filesystem::path& path, std::string_view bytes) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES &&
        (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        Fail(path, ERROR_ACCESS_DENIED);
    const std::filesystem::path temporary = TemporaryBeside(path);
    try {
        File file(temporary, GENERIC_WRITE, 0, CREATE_NEW);
        file.Write(bytes);
        file.Flush();
        file.Close();
        // In one step: at any moment there is the old file or the new one. (ReplaceFile, which would keep the
        // old file's creation time, can fail with neither under its name.)
        if (!MoveFileExW(temporary.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            Fail(path);
    } catch (const FileFault& fault) {
        // Not there when it could not be created.
        static_cast<void>(DeleteFileW(temporary.c_str()));
        throw FileFault(WideText(path), fault.Meaning());
    }
}

}  // namespace lindrel
