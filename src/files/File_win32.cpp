#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "faults/Faults.h"
#include "files/File.h"
#include "files/FileSystem_win32.h"
#include "files/TemporaryName.h"

namespace lindrel {

namespace {

// At most this much is read or written by one call, which counts the bytes in a DWORD.
constexpr std::size_t kMostBytesAtOnce = 1U << 30;

HANDLE Native(std::intptr_t handle) {
    return reinterpret_cast<HANDLE>(handle);
}

DWORD ErrorUnlessOpen(HANDLE handle) {
    return ErrorUnless(handle != INVALID_HANDLE_VALUE);
}

// A handle to a file of the disk. INVALID_HANDLE_VALUE is -1, as File keeps it for a closed file.
std::intptr_t Open(const Path& path, DWORD access, DWORD sharing, DWORD creation) {
    const std::wstring name = SystemPath(path);
    HANDLE handle = INVALID_HANDLE_VALUE;
    const DWORD error = Patiently(name, [&] {
        handle =
            CreateFileW(name.c_str(), access, sharing, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
        return ErrorUnlessOpen(handle);
    });
    if (error != ERROR_SUCCESS) Fail(path, error);
    if (GetFileType(handle) == FILE_TYPE_DISK) return reinterpret_cast<std::intptr_t>(handle);
    CloseHandle(handle);
    Fail(path, ERROR_INVALID_NAME);
}

std::wstring TemporaryBeside(const std::wstring& target) {
    const std::size_t name = target.rfind(L'\\') + 1;
    std::wstring lower_case = target.substr(name);
    CharLowerBuffW(lower_case.data(), static_cast<DWORD>(lower_case.size()));
    return target.substr(0, name) + TemporaryName<wchar_t>(lower_case);
}

// Creates the file, in the place of one that a killed program has left.
HANDLE CreateTemporary(const Path& path, const std::wstring& temporary) {
    HANDLE handle = INVALID_HANDLE_VALUE;
    const DWORD error = Patiently(temporary, [&]() -> DWORD {
        handle = CreateFileW(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                             nullptr);
        const DWORD result = ErrorUnlessOpen(handle);
        if (result != ERROR_FILE_EXISTS) return result;
        const DWORD removal = ErrorUnless(DeleteFileW(temporary.c_str()));
        return removal == ERROR_SUCCESS ? ERROR_SHARING_VIOLATION : removal;  // free from now on: try again
    });
    if (error != ERROR_SUCCESS) Fail(path, error);
    return handle;
}

// Network file systems may not know how to flush a file.
bool IsUnknownOperation(DWORD error) {
    return error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED ||
           error == ERROR_CALL_NOT_IMPLEMENTED;
}

}  // namespace

std::wstring WideText(const Path& path) {
    return path;
}

Path PathFrom(std::wstring_view text) {
    return Path(text);
}

Path Joined(const Path& folder, const Path& name) {
    const bool ready = folder.empty() || folder.ends_with(L'\\') || folder.ends_with(L'/');
    return ready ? folder + name : folder + L"\\" + name;
}

std::optional<FileState> StateOf(const Path& path) {
    HANDLE file = INVALID_HANDLE_VALUE;
    try {
        file = OpenToLookAt(SystemPath(path));
    } catch (const FileFault&) {
        return std::nullopt;
    }
    if (file == INVALID_HANDLE_VALUE) return std::nullopt;
    BY_HANDLE_FILE_INFORMATION found{};
    const bool known = GetFileInformationByHandle(file, &found);
    CloseHandle(file);
    if (!known) return std::nullopt;
    const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; };
    return FileState{joined(found.nFileSizeHigh, found.nFileSizeLow),
                     joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime),
                     found.dwVolumeSerialNumber, joined(found.nFileIndexHigh, found.nFileIndexLow)};
}

File::File(Path path, std::intptr_t handle, Path target, Path temporary)
    : path_(std::move(path)), handle_(handle), target_(std::move(target)), temporary_(std::move(temporary)) {}

File File::ForReading(const Path& path) {
    constexpr DWORD kAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return {path, Open(path, GENERIC_READ, kAll, OPEN_EXISTING)};
}

File File::ForWriting(const Path& path) {
    // Not CREATE_ALWAYS, which fails for a hidden file.
    const std::intptr_t handle = Open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
    if (const DWORD error = ErrorUnless(SetEndOfFile(Native(handle))); error != ERROR_SUCCESS) {
        CloseHandle(Native(handle));
        Fail(path, error);
    }
    return {path, handle};
}

File File::ForReplacing(const Path& path) {
    const std::wstring target = BehindLinks(path);
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES &&
        (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        Fail(path, ERROR_ACCESS_DENIED);
    const std::wstring temporary = TemporaryBeside(target);
    return {path, reinterpret_cast<std::intptr_t>(CreateTemporary(path, temporary)), target, temporary};
}

File::~File() {
    if (Native(handle_) != INVALID_HANDLE_VALUE) CloseHandle(Native(handle_));
    if (temporary_.empty()) return;
    // One that cannot be removed is taken over by the next save.
    Patiently(temporary_, [&] { return ErrorUnless(DeleteFileW(temporary_.c_str())); });
}

std::size_t File::Size() const {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(Native(handle_), &size)) Fail(path_);
    if (size.QuadPart > PTRDIFF_MAX) Fail(path_, ERROR_FILE_TOO_LARGE);
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
    if (!FlushFileBuffers(Native(handle_)) && !IsUnknownOperation(GetLastError())) Fail(path_);
    Close();
    TakeOverAttributes(target_, temporary_);
    // ReplaceFile would keep the creation time, but when it fails there may be no file at the path at all.
    const DWORD error = Patiently(target_, [&] {
        return ErrorUnless(MoveFileExW(temporary_.c_str(), target_.c_str(),
                                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
    });
    if (error != ERROR_SUCCESS) Fail(path_, error);
    temporary_.clear();
}

}  // namespace lindrel
