#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>

#include "book/Faults.h"
#include "book/File.h"

namespace lindrel {

namespace {

// At most this much is read or written by one call, which counts the bytes in a DWORD.
constexpr std::size_t kMostBytesAtOnce = 1U << 30;

std::wstring ReasonOf(DWORD error) {
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::wstring reason = length != 0 ? std::wstring(text, length) : L"Hibakód: " + std::to_wstring(error);
    LocalFree(text);  // accepts a null pointer
    reason.erase(reason.find_last_not_of(L"\r\n .") + 1);
    return reason;
}

[[noreturn]] void Fail(const std::filesystem::path& path, DWORD error = GetLastError()) {
    throw FileFault(WideText(path), ReasonOf(error));
}

// The handle as File keeps it: INVALID_HANDLE_VALUE is -1.
std::intptr_t Opened(const std::filesystem::path& path, HANDLE handle) {
    if (handle == INVALID_HANDLE_VALUE) Fail(path);
    return reinterpret_cast<std::intptr_t>(handle);
}

HANDLE Native(std::intptr_t handle) {
    return reinterpret_cast<HANDLE>(handle);
}

HANDLE Open(const std::filesystem::path& path, DWORD access, DWORD sharing, DWORD creation) {
    return CreateFileW(path.c_str(), access, sharing, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

std::wstring WideText(const std::filesystem::path& path) {
    return path.wstring();
}

File::File(std::filesystem::path path, std::intptr_t handle, std::filesystem::path temporary)
    : path_(std::move(path)), handle_(handle), temporary_(std::move(temporary)) {}

File File::ForReading(const std::filesystem::path& path) {
    return {path, Opened(path, Open(path, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING))};
}

File File::ForWriting(const std::filesystem::path& path) {
    return {path, Opened(path, Open(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS))};
}

File File::ForReplacing(const std::filesystem::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES &&
        (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        Fail(path, ERROR_ACCESS_DENIED);
    for (DWORD attempt = 0;; ++attempt) {
        std::filesystem::path temporary = path;
        temporary +=
            L"." + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(attempt) + L".tmp";
        const HANDLE handle = Open(temporary, GENERIC_WRITE, 0, CREATE_NEW);
        if (handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_EXISTS) continue;
        return {path, Opened(path, handle), temporary};
    }
}

File::~File() {
    if (Native(handle_) != INVALID_HANDLE_VALUE) CloseHandle(Native(handle_));
    if (!temporary_.empty()) DeleteFileW(temporary_.c_str());
}

std::size_t File::Size() const {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(Native(handle_), &size)) Fail(path_);
    return static_cast<std::size_t>(size.QuadPart);
}

std::size_t File::Read(std::span<char> buffer) {
    std::size_t done = 0;
    while (done < buffer.size()) {
        DWORD got = 0;
        const auto wanted = static_cast<DWORD>(std::min(buffer.size() - done, kMostBytesAtOnce));
        if (!ReadFile(Native(handle_), buffer.data() + done, wanted, &got, nullptr)) Fail(path_);
        if (got == 0) break;
        done += got;
    }
    return done;
}

void File::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD put = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMostBytesAtOnce));
        if (!WriteFile(Native(handle_), bytes.data(), wanted, &put, nullptr)) Fail(path_);
        bytes.remove_prefix(put);
    }
}

void File::Close() {
    if (!CloseHandle(Native(std::exchange(handle_, -1)))) Fail(path_);
}

void File::Replace() {
    if (!FlushFileBuffers(Native(handle_))) Fail(path_);
    Close();
    // ReplaceFile would keep the creation time, but when it fails there may be no file at the path at all.
    if (!MoveFileExW(temporary_.c_str(), path_.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        Fail(path_);
    temporary_.clear();
}

}  // namespace lindrel
