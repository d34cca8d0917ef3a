#include "files/FileSystem_win32.h"

#include <cstddef>
#include <vector>

#include "faults/Faults.h"
#include "files/File.h"
#include "files/Folder.h"

namespace lindrel {

namespace {

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

// As it stands, with the entries that come from the folder.
void CopyAccessList(const std::wstring& from, const std::wstring& to) {
    DWORD size = 0;
    GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);  // only asks for the size
    std::vector<std::byte> descriptor(size);
    if (!GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size)) return;
    // Without this the entries that come from the folder would no longer follow it.
    SetSecurityDescriptorControl(descriptor.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, descriptor.data());
}

}  // namespace

void Fail(const Path& path, DWORD error) {
    throw FileFault(WideText(path), ReasonOf(error));
}

std::wstring SystemPath(const Path& path) {
    constexpr DWORD kLongest = 32768;
    if (path.starts_with(LR"(\\?\)")) return path;
    std::wstring full(kLongest, L'\0');
    const DWORD length = GetFullPathNameW(path.c_str(), kLongest, full.data(), nullptr);
    if (length == 0) Fail(path);
    if (length >= kLongest) Fail(path, ERROR_FILENAME_EXCED_RANGE);
    full.resize(length);
    if (full.starts_with(LR"(\\.\)")) Fail(path, ERROR_INVALID_NAME);
    return LongPath(full);
}

bool MayPass(const std::wstring& path, DWORD error) {
    if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION) return true;
    if (error != ERROR_ACCESS_DENIED) return false;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0;
}

HANDLE OpenToLookAt(const std::wstring& path) {
    return CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

std::wstring BehindLinks(const Path& path) {
    const std::wstring name = SystemPath(path);
    const DWORD attributes = GetFileAttributesW(name.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return name;
    const HANDLE file = OpenToLookAt(name);
    if (file == INVALID_HANDLE_VALUE) Fail(path);
    std::wstring target(32768, L'\0');
    target.resize(GetFinalPathNameByHandleW(file, target.data(), static_cast<DWORD>(target.size()),
                                            FILE_NAME_NORMALIZED));
    CloseHandle(file);
    // A disk that no path leads to, such as some made in memory: there the link itself is all there is.
    return target.empty() ? name : target;
}

void TakeOverAttributes(const std::wstring& from, const std::wstring& to) {
    const DWORD attributes = GetFileAttributesW(from.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return;
    // A failure is ignored here and below: some file systems know no access lists, and the user's text is
    // worth more than its attributes.
    CopyAccessList(from, to);
    constexpr DWORD kTakenOver =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    SetFileAttributesW(to.c_str(), (attributes & kTakenOver) | FILE_ATTRIBUTE_ARCHIVE);
}

}  // namespace lindrel
