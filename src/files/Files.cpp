#include "files/Files.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "faults/Faults.h"
#include "files/Folder.h"
#include "files/HeldFile.h"
#include "files/Patience.h"
#include "files/SystemHandle.h"

namespace lindrel {

namespace {

constexpr DWORD kLongestPath = 32768;  // in characters, with the NUL
// ReadFile and WriteFile count bytes in a DWORD.
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

[[noreturn]] void Fail(const Path& path, DWORD error = GetLastError()) {
    throw FileFault(path, ReasonOf(error));
}

DWORD ErrorUnless(BOOL succeeded) {
    return succeeded ? ERROR_SUCCESS : GetLastError();
}

// The full path in a form that the system takes at any length. Throws for a device: each folder seems to
// contain all of them.
std::wstring SystemPath(const Path& path) {
    if (path.starts_with(LR"(\\?\)")) return path;
    std::wstring full(kLongestPath, L'\0');
    const DWORD length = GetFullPathNameW(path.c_str(), kLongestPath, full.data(), nullptr);
    if (length == 0) Fail(path);
    if (length >= kLongestPath) Fail(path, ERROR_FILENAME_EXCED_RANGE);
    full.resize(length);
    if (full.starts_with(LR"(\\.\)")) Fail(path, ERROR_INVALID_NAME);
    return LongPath(full);
}

bool MayPassAt(const std::wstring& path, DWORD error) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return MayPass(error, attributes, GetLastError());
}

// Tries an operation, which returns the system's error, as long as its error may pass.
template <typename Operation>
DWORD Patiently(const std::wstring& path, Operation operation) {
    Patience patience(kFilePatience);
    DWORD error = ERROR_SUCCESS;
    do error = operation();
    while (error != ERROR_SUCCESS && MayPassAt(path, error) && patience.Pause());
    return error;
}

SystemHandle Open(const Path& path, DWORD access, DWORD sharing, DWORD creation) {
    const std::wstring name = SystemPath(path);
    SystemHandle file;
    const DWORD error = Patiently(name, [&] {
        file = SystemHandle(
            CreateFileW(name.c_str(), access, sharing, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr));
        return ErrorUnless(file.IsOpen());
    });
    if (error != ERROR_SUCCESS) Fail(path, error);
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) Fail(path, ERROR_INVALID_NAME);
    return file;
}

void Write(const Path& path, const SystemHandle& file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD put = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMostBytesAtOnce));
        if (!WriteFile(file.Get(), bytes.data(), wanted, &put, nullptr)) Fail(path);
        bytes.remove_prefix(put);
    }
}

// Opens a file for its attributes only, which works whoever else has it open.
SystemHandle OpenToLookAt(const std::wstring& path) {
    return SystemHandle(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

// The target of a symbolic link; any other path as SystemPath() gives it. Throws for a link to nowhere.
std::wstring TargetOf(const Path& path) {
    const std::wstring name = SystemPath(path);
    const DWORD attributes = GetFileAttributesW(name.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return name;
    const SystemHandle file = OpenToLookAt(name);
    if (!file.IsOpen()) Fail(path);
    std::wstring target(kLongestPath, L'\0');
    target.resize(GetFinalPathNameByHandleW(file.Get(), target.data(), kLongestPath, FILE_NAME_NORMALIZED));
    // Some disks, such as those in memory, have no final paths; there the link itself is replaced.
    return target.empty() ? name : target;
}

// "~lnd", a hash of the file name in eight hexadecimal digits, and ".tmp", in the same folder. The name is
// short, so that any file that can be opened can be replaced, and always the same for a file, so that the
// next save takes over what a killed program has left. If two files of a folder share one, which hardly
// happens, one program waits for the other.
std::wstring TemporaryBeside(const std::wstring& target) {
    const std::size_t start = target.rfind(L'\\') + 1;
    std::wstring name = target.substr(start);
    CharLowerBuffW(name.data(), static_cast<DWORD>(name.size()));
    std::uint32_t hash = 2166136261U;  // FNV-1a over UTF-16 units
    for (const wchar_t unit : name) hash = (hash ^ unit) * 16777619U;
    std::wstring digits;
    for (int shift = 28; shift >= 0; shift -= 4) digits += L"0123456789abcdef"[hash >> shift & 0xFU];
    return target.substr(0, start) + L"~lnd" + digits + L".tmp";
}

// For the file that takes the place of another one with these attributes.
DWORD CreationAttributes(DWORD old_attributes) {
    const bool encrypted =
        old_attributes != INVALID_FILE_ATTRIBUTES && (old_attributes & FILE_ATTRIBUTE_ENCRYPTED) != 0;
    return encrypted ? FILE_ATTRIBUTE_ENCRYPTED : FILE_ATTRIBUTE_NORMAL;
}

SystemHandle CreateTemporary(const Path& path, const std::wstring& temporary, DWORD attributes) {
    SystemHandle file;
    const DWORD error = Patiently(temporary, [&]() -> DWORD {
        file = SystemHandle(
            CreateFileW(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, attributes, nullptr));
        const DWORD result = ErrorUnless(file.IsOpen());
        if (result != ERROR_FILE_EXISTS) return result;
        const DWORD removal = ErrorUnless(DeleteFileW(temporary.c_str()));
        return removal == ERROR_SUCCESS ? ERROR_SHARING_VIOLATION : removal;  // removed: try again
    });
    if (error != ERROR_SUCCESS) Fail(path, error);
    return file;
}

void FlushAndClose(const Path& path, SystemHandle& file) {
    if (!FlushFileBuffers(file.Get())) {
        // Network file systems may not be able to flush.
        const DWORD error = GetLastError();
        if (error != ERROR_INVALID_FUNCTION && error != ERROR_NOT_SUPPORTED &&
            error != ERROR_CALL_NOT_IMPLEMENTED)
            Fail(path, error);
    }
    if (!file.Close()) Fail(path);
}

// Entries inherited from the folder stay inherited.
void CopyAccessList(const std::wstring& from, const std::wstring& to) {
    DWORD size = 0;
    GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);  // only asks for the size
    std::vector<std::byte> descriptor(size);
    if (!GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size)) return;
    SetSecurityDescriptorControl(descriptor.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, descriptor.data());
}

// Gives a new file the attributes and the access list of the old one, if there is one. Failures are ignored,
// also when copying the list: not all file systems have lists, and the user's text is worth more.
void TakeOverAttributes(const std::wstring& from, const std::wstring& to) {
    const DWORD attributes = GetFileAttributesW(from.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return;
    CopyAccessList(from, to);
    constexpr DWORD kTakenOver =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    SetFileAttributesW(to.c_str(), (attributes & kTakenOver) | FILE_ATTRIBUTE_ARCHIVE);
}

}  // namespace

std::vector<char> ReadFileBytes(const Path& path) {
    const SystemHandle file =
        Open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.Get(), &size)) Fail(path);
    if (size.QuadPart > PTRDIFF_MAX) Fail(path, ERROR_FILE_TOO_LARGE);
    std::vector<char> bytes(static_cast<std::size_t>(size.QuadPart));
    std::size_t done = 0;
    while (done < bytes.size()) {
        DWORD got = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size() - done, kMostBytesAtOnce));
        if (!ReadFile(file.Get(), bytes.data() + done, wanted, &got, nullptr)) Fail(path);
        if (got == 0) break;  // another program has made the file shorter
        done += got;
    }
    bytes.resize(done);
    return bytes;
}

void WriteFileBytes(const Path& path, std::string_view bytes) {
    // CREATE_ALWAYS would fail for a hidden file.
    SystemHandle file = Open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
    if (!SetEndOfFile(file.Get())) Fail(path);
    Write(path, file, bytes);
    if (!file.Close()) Fail(path);
}

void ReplaceFileBytes(const Path& path, std::string_view bytes) {
    const std::wstring target = TargetOf(path);
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (IsReadOnlyOrFolder(attributes)) Fail(path, ERROR_ACCESS_DENIED);
    const std::wstring temporary = TemporaryBeside(target);
    SystemHandle file = CreateTemporary(path, temporary, CreationAttributes(attributes));
    try {
        Write(path, file, bytes);
        FlushAndClose(path, file);
        TakeOverAttributes(target, temporary);
        // ReplaceFile would keep the creation time, but when it fails there may be no file at all.
        const DWORD error = Patiently(target, [&] {
            return ErrorUnless(MoveFileExW(temporary.c_str(), target.c_str(),
                                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
        });
        if (error != ERROR_SUCCESS) Fail(path, error);
    } catch (...) {
        static_cast<void>(file.Close());  // what was written is dropped
        // If it cannot be removed, the next save takes it over.
        static_cast<void>(Patiently(temporary, [&] { return ErrorUnless(DeleteFileW(temporary.c_str())); }));
        throw;
    }
}

bool IsFile(const Path& path) {
    try {
        return OpenToLookAt(SystemPath(path)).IsOpen();
    } catch (const FileFault&) {
        return false;  // a device
    }
}

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

}  // namespace lindrel
