#include "export/Shortcut.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "faults/Faults.h"
#include "text/BookText.h"

namespace lindrel {

namespace {

constexpr std::string_view kReplaced = "\\/:?";
constexpr std::string_view kNotInFolderNames = "\\/:?*\"<>|";

// Only characters that a book can hold have an upper case here.
wchar_t UpperCaseOfWide(wchar_t character) {
    const std::optional<char> byte = BookByte(static_cast<char32_t>(character));
    return byte ? static_cast<wchar_t>(CharacterOf(UpperCase(*byte))) : character;
}

// Whether Windows takes a name without its extension for a device. It ignores blanks at the end.
bool IsDeviceName(std::string_view base) {
    constexpr std::array<std::string_view, 6> kDevices = {"aux", "con", "conin$", "conout$", "nul", "prn"};
    const std::string name = LowerCase(base.substr(0, base.find_last_not_of(' ') + 1));
    if (std::find(kDevices.begin(), kDevices.end(), name) != kDevices.end()) return true;
    constexpr std::size_t kPortLength = 4;  // "com1"
    return name.size() == kPortLength && (name.starts_with("com") || name.starts_with("lpt")) &&
           name.back() >= '0' && name.back() <= '9';
}

}  // namespace

std::string ShortcutFile(std::string_view url) {
    return "[InternetShortcut]\r\nURL=" + std::string(url);
}

void MakeShortcutFileName(std::string& name) {
    for (char& byte : name)
        if (kReplaced.find(byte) != std::string_view::npos) byte = '_';
}

void SafeFileName(std::string& name) {
    constexpr std::size_t kLastPosition = 255;
    if (name.find_first_of(kReplaced, kLastPosition) != std::string::npos) throw OverflowFault();
    MakeShortcutFileName(name);
}

std::string SafeFolderName(std::string_view name) {
    std::string safe(name);
    for (char& byte : safe)
        if (kNotInFolderNames.find(byte) != std::string_view::npos || static_cast<unsigned char>(byte) < ' ')
            byte = '_';
    // Windows drops a full stop or a blank at the end.
    if (safe.ends_with('.') || safe.ends_with(' ')) safe.push_back('_');
    const std::size_t base = std::min(safe.find('.'), safe.size());
    if (IsDeviceName(safe.substr(0, base))) safe.insert(base, 1, '_');
    return safe;
}

std::wstring DesktopPath(std::wstring_view folder) {
    constexpr std::size_t kAlwaysKept = 5;
    std::wstring path;
    for (const wchar_t character : folder) {
        const wchar_t upper = UpperCaseOfWide(character);
        const bool goes_on = upper == L'\\' || (upper >= L'A' && upper <= L'Z');
        if (path.size() >= kAlwaysKept && !goes_on) break;
        path.push_back(upper);
    }
    return path;
}

}  // namespace lindrel
