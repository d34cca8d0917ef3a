#include "system/AddressKind.h"

#include <algorithm>
#include <array>
#include <optional>

#include "text/Ascii.h"
#include "text/BookText.h"

namespace lindrel {

namespace {

constexpr auto kWebSchemes = std::to_array<std::wstring_view>({L"http", L"https", L"ftp", L"mailto"});

// Programs and scripts, installers, settings, disk images, and files that lead to any of these, with a blank
// before and after each.
constexpr std::wstring_view kDangerousExtensions =
    L" .appinstaller .application .appref-ms .appx .appxbundle .bat .chm .cmd .com .cpl .diagcab .exe .gadget"
    L" .hlp .hta .img .inf .iso .jar .jnlp .js .jse .library-ms .lnk .msc .msh .msi .msix .msixbundle .msp"
    L" .mst .msu .pif .pl .ps1 .ps1xml .psc1 .psd1 .psm1 .py .pyc .pyw .pyz .rb .rdp .reg .scf .scr .sct"
    L" .search-ms .searchconnector-ms .settingcontent-ms .sh .shb .shs .theme .themepack .url .vb .vbe .vbs"
    L" .vhd .vhdx .website .wim .ws .wsc .wsf .wsh .xbap .xll ";

// A name with more of them is made to deceive.
constexpr std::size_t kMostExtensions = 20;

bool IsLetter(wchar_t character) {
    return character >= L'a' && character <= L'z';
}

bool IsDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

// Letters beyond ASCII are no part of any scheme or extension here.
std::wstring AsciiLowerCase(std::wstring_view text) {
    std::wstring lower(text);
    for (wchar_t& character : lower) character = AsciiLower(character);
    return lower;
}

// Without its colon; empty when there is none. A single letter is a drive.
std::wstring_view SchemeOf(std::wstring_view text) {
    const std::size_t colon = text.find(L':');
    if (colon == std::wstring_view::npos || colon < 2 || !IsLetter(text.front())) return {};
    const std::wstring_view scheme = text.substr(0, colon);
    const bool well_formed = std::all_of(scheme.begin(), scheme.end(), [](wchar_t character) {
        return IsLetter(character) || IsDigit(character) || character == L'+' || character == L'-' ||
               character == L'.';
    });
    return well_formed ? scheme : std::wstring_view();
}

// The value of a hexadecimal digit in lower case, or -1.
int HexValue(wchar_t digit) {
    if (IsDigit(digit)) return digit - L'0';
    return digit >= L'a' && digit <= L'f' ? digit - L'a' + 10 : -1;
}

// Every "%2e" by the character that it stands for.
std::wstring Decoded(std::wstring_view text) {
    std::wstring decoded;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool whole = text[at] == L'%' && at + 2 < text.size();
        const int high = whole ? HexValue(text[at + 1]) : -1;
        const int low = whole ? HexValue(text[at + 2]) : -1;
        if (high < 0 || low < 0) {
            decoded += text[at];
            continue;
        }
        decoded += static_cast<wchar_t>(high * 16 + low);
        at += 2;
    }
    return decoded;
}

// An address as one looks at it here: no blanks around, lower case, nothing percent-encoded, and backslashes
// only.
std::wstring Plain(std::wstring_view address) {
    std::wstring plain = AsciiLowerCase(Decoded(AsciiLowerCase(Trim(address))));
    std::replace(plain.begin(), plain.end(), L'/', L'\\');
    return plain;
}

bool StartsWithDrive(std::wstring_view path) {
    return path.size() >= 2 && IsLetter(path[0]) && path[1] == L':';
}

// The path of a plain file: address, or nothing when that is not on a drive.
std::optional<std::wstring> PathOfFileAddress(std::wstring_view plain) {
    std::wstring path(plain.substr(plain.find(L':') + 1));
    const std::size_t slashes = std::min(path.find_first_not_of(L'\\'), path.size());
    if (slashes > 3) return std::nullopt;
    path.erase(0, slashes);
    if (path.size() >= 2 && path[1] == L'|') path[1] = L':';  // as addresses had it once
    if (!StartsWithDrive(path)) return std::nullopt;
    return path;
}

bool CannotBeInAName(wchar_t character) {
    constexpr std::wstring_view kNever = L"\"*:<>?|\x7f";
    return character < L' ' || kNever.find(character) != std::wstring_view::npos;
}

// The length of a plain path without the dots, blanks and backslashes at its end: the file system does not
// see them.
std::size_t LengthThatCounts(std::wstring_view path) {
    return path.find_last_not_of(L" .\\") + 1;  // 0 when there is nothing else
}

// `extension` is in lower case, with its dot. Windows has a list of its own, which differs between machines.
bool IsDangerous(std::wstring_view extension) {
    const std::wstring between_blanks = L' ' + std::wstring(extension) + L' ';
    return kDangerousExtensions.find(between_blanks) != std::wstring_view::npos;
}

// The extension of a name, in which nothing at the end is ignored any more.
std::wstring_view ExtensionOf(std::wstring_view name) {
    const std::size_t dot = name.rfind(L'.');
    return dot == std::wstring_view::npos ? std::wstring_view() : name.substr(dot);
}

std::wstring_view NameIn(std::wstring_view path) {
    return path.substr(path.rfind(L'\\') + 1);  // all of it when there is no folder
}

// Whether a blank or a "#" follows a place, perhaps after dots, which do not count before it.
bool IsFollowedByBreak(std::wstring_view path, std::size_t place) {
    const std::size_t next = path.find_first_not_of(L'.', place);
    return next != std::wstring_view::npos && (path[next] == L' ' || path[next] == L'#');
}

std::vector<std::wstring> ExtensionsOfPlain(std::wstring_view path) {
    path = path.substr(0, LengthThatCounts(path));
    std::vector<std::wstring> extensions;
    std::size_t place = 0;
    while ((place = path.find(L'.', place)) != std::wstring_view::npos) {
        const std::size_t end = std::min(path.find_first_of(L" #.\\", place + 1), path.size());
        if (end > place + 1 && IsFollowedByBreak(path, end))
            extensions.emplace_back(path.substr(place, end - place));
        place = end;
    }
    const std::wstring_view last = ExtensionOf(NameIn(path));
    if (!last.empty()) extensions.emplace_back(last);
    return extensions;
}

// The name of a file or folder that the system would find, and no program by its extension. Without one the
// shell would try those of programs.
bool IsDocument(std::wstring_view path) {
    const std::wstring_view ignored = path.substr(LengthThatCounts(path));
    const bool folder = ignored.find(L'\\') != std::wstring_view::npos;
    if (folder && ignored.find(L'.') != std::wstring_view::npos) return false;  // leads up again
    path.remove_suffix(ignored.size());
    if (!folder && ExtensionOf(NameIn(path)).empty()) return false;
    const std::vector<std::wstring> extensions = ExtensionsOfPlain(path);
    return extensions.size() <= kMostExtensions &&
           std::none_of(extensions.begin(), extensions.end(), &IsDangerous);
}

AddressKind KindOfPath(std::wstring_view path) {
    const bool on_another_machine = path.starts_with(L"\\\\");
    const bool has_drive = StartsWithDrive(path);
    if (has_drive) path.remove_prefix(2);
    const bool is_path = has_drive || path.find(L'\\') != std::wstring_view::npos;
    const bool hidden =
        std::any_of(path.begin(), path.end(), &CannotBeInAName) ||
        path.find(L".{") != std::wstring_view::npos;  // a number of one of the shell's objects
    return is_path && !on_another_machine && !hidden && IsDocument(path) ? AddressKind::Document
                                                                         : AddressKind::Unsure;
}

}  // namespace

AddressKind Classify(std::wstring_view address) {
    const std::wstring text = AsciiLowerCase(Trim(address));
    const std::wstring_view scheme = SchemeOf(text);
    if (std::find(std::begin(kWebSchemes), std::end(kWebSchemes), scheme) != std::end(kWebSchemes))
        return AddressKind::Web;
    // The shell looks for a file of the name first; it must not be led to one anywhere.
    const bool leads_elsewhere =
        text.find(L'\\') != std::wstring::npos || text.find(L"..") != std::wstring::npos;
    if (text.starts_with(L"www.") && !leads_elsewhere) return AddressKind::Web;

    const std::wstring plain = Plain(address);
    if (Decoded(plain) != plain) return AddressKind::Unsure;  // encoded twice, so that nobody sees what it is
    if (scheme.empty()) return KindOfPath(plain);
    const std::optional<std::wstring> path = scheme == L"file" ? PathOfFileAddress(plain) : std::nullopt;
    return path ? KindOfPath(*path) : AddressKind::Unsure;
}

std::vector<std::wstring> ExtensionsOf(std::wstring_view address) {
    return ExtensionsOfPlain(Plain(address));
}

}  // namespace lindrel
