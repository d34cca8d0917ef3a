#include "system/AddressKind.h"

#include <algorithm>
#include <array>
#include <optional>

#include "text/Ascii.h"
#include "text/BookText.h"
#include "text/Utf8.h"

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

// A name with more extensions is meant to deceive.
constexpr std::size_t kMostExtensions = 20;

bool IsLetter(wchar_t character) {
    return character >= L'a' && character <= L'z';
}

// Letters beyond ASCII are no part of any scheme or extension here.
std::wstring AsciiLowerCase(std::wstring_view text) {
    std::wstring lower(text);
    for (wchar_t& character : lower) character = AsciiLower(character);
    return lower;
}

// Without its colon; empty if there is none. A single letter is a drive.
std::wstring_view SchemeOf(std::wstring_view text) {
    constexpr std::wstring_view kSchemeCharacters = L"abcdefghijklmnopqrstuvwxyz0123456789+-.";
    const std::size_t colon = text.find_first_not_of(kSchemeCharacters);
    const bool found = colon != std::wstring_view::npos && colon > 1 && text[colon] == L':';
    return found && IsLetter(text.front()) ? text.substr(0, colon) : std::wstring_view();
}

// Of a text in lower case.
bool StartsWithWww(std::wstring_view text) {
    return text.starts_with(L"www.");
}

// Quotation marks, control characters, and what Unicode counts as the end of a line.
bool MayEndAnArgument(char32_t character) {
    const bool is_control = character < U' ' || (character >= 0x7F && character < 0xA0);
    return character == U'"' || is_control || character == 0x2028 || character == 0x2029;
}

// The value of a hexadecimal digit in lower case, or npos.
std::size_t HexValue(wchar_t digit) {
    return std::wstring_view(L"0123456789abcdef").find(digit);
}

// Replaces each "%2e" and the like by the character that it stands for.
std::wstring Decoded(std::wstring_view text) {
    constexpr std::size_t kNone = std::wstring_view::npos;
    std::wstring decoded;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool whole = text[at] == L'%' && at + 2 < text.size();
        const std::size_t high = whole ? HexValue(text[at + 1]) : kNone;
        const std::size_t low = whole ? HexValue(text[at + 2]) : kNone;
        if (high == kNone || low == kNone) {
            decoded += text[at];
            continue;
        }
        decoded += static_cast<wchar_t>(high * 16 + low);
        at += 2;
    }
    return decoded;
}

// An address in the form that is examined here: trimmed, in lower case, percent-decoded once, with
// backslashes for slashes.
std::wstring Plain(std::wstring_view address) {
    std::wstring plain = AsciiLowerCase(Decoded(AsciiLowerCase(Trim(address))));
    std::replace(plain.begin(), plain.end(), L'/', L'\\');
    return plain;
}

bool StartsWithDrive(std::wstring_view path) {
    return path.size() >= 2 && IsLetter(path[0]) && path[1] == L':';
}

// The path of a plain file: address, or nullopt if it is not on a drive.
std::optional<std::wstring> PathOfFileAddress(std::wstring_view plain) {
    std::wstring path(plain.substr(plain.find(L':') + 1));
    const std::size_t slashes = std::min(path.find_first_not_of(L'\\'), path.size());
    if (slashes > 3) return std::nullopt;
    path.erase(0, slashes);
    if (path.size() >= 2 && path[1] == L'|') path[1] = L':';  // the old spelling, file:///C|/
    if (!StartsWithDrive(path)) return std::nullopt;
    return path;
}

// The length of a plain path without the dots, blanks and backslashes at its end, which the file system
// ignores.
std::size_t LengthThatCounts(std::wstring_view path) {
    return path.find_last_not_of(L" .\\") + 1;  // npos + 1 is 0
}

// `extension` is in lower case, with its dot. Windows has a list of its own, which differs between machines.
bool IsDangerous(std::wstring_view extension) {
    const std::wstring between_blanks = L' ' + std::wstring(extension) + L' ';
    return kDangerousExtensions.find(between_blanks) != std::wstring_view::npos;
}

// With its dot; empty if there is none. Nothing at the end of the name is ignored.
std::wstring_view ExtensionOf(std::wstring_view name) {
    const std::size_t dot = name.rfind(L'.');
    return dot == std::wstring_view::npos ? std::wstring_view() : name.substr(dot);
}

std::wstring_view NameIn(std::wstring_view path) {
    return path.substr(path.rfind(L'\\') + 1);  // all of it if there is no folder
}

// Whether the path goes on at an offset with a blank or a "#", perhaps after dots.
bool IsFollowedByBreak(std::wstring_view path, std::size_t offset) {
    const std::size_t next = path.find_first_not_of(L'.', offset);
    return next != std::wstring_view::npos && (path[next] == L' ' || path[next] == L'#');
}

std::vector<std::wstring> ExtensionsOfPlain(std::wstring_view path) {
    path = path.substr(0, LengthThatCounts(path));
    std::vector<std::wstring> extensions;
    for (std::size_t dot = path.find(L'.'), end = 0; dot != std::wstring_view::npos;
         dot = path.find(L'.', end)) {
        end = std::min(path.find_first_of(L" #.\\", dot + 1), path.size());
        if (end > dot + 1 && IsFollowedByBreak(path, end))
            extensions.emplace_back(path.substr(dot, end - dot));
    }
    const std::wstring_view last = ExtensionOf(NameIn(path));
    if (!last.empty()) extensions.emplace_back(last);
    return extensions;
}

// Whether a plain path names a folder, or a file whose extension is not a program's. To a file name without
// an extension the shell would add those of programs.
bool IsDocument(std::wstring_view path) {
    const std::wstring_view ignored = path.substr(LengthThatCounts(path));
    const bool folder = ignored.find(L'\\') != std::wstring_view::npos;
    if (folder && ignored.find(L'.') != std::wstring_view::npos) return false;  // it may lead up again
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
    const bool has_impossible_characters =
        std::any_of(path.begin(), path.end(), [](wchar_t character) { return character < L' '; }) ||
        path.find_first_of(L"\"*:<>?|\x7f") != std::wstring_view::npos;
    const bool is_shell_object = path.find(L".{") != std::wstring_view::npos;  // by its class id
    const bool is_document =
        is_path && !on_another_machine && !has_impossible_characters && !is_shell_object && IsDocument(path);
    return is_document ? AddressKind::Document : AddressKind::Unsure;
}

}  // namespace

AddressKind Classify(std::wstring_view address) {
    const std::wstring text = AsciiLowerCase(Trim(address));
    const std::wstring_view scheme = SchemeOf(text);
    if (std::find(std::begin(kWebSchemes), std::end(kWebSchemes), scheme) != std::end(kWebSchemes))
        return AddressKind::Web;
    // The shell looks for a file of that name first, which must not be one in another folder.
    const bool leads_elsewhere =
        text.find(L'\\') != std::wstring::npos || text.find(L"..") != std::wstring::npos;
    if (StartsWithWww(text) && !leads_elsewhere) return AddressKind::Web;

    const std::wstring plain = Plain(address);
    if (Decoded(plain) != plain) return AddressKind::Unsure;  // encoded twice, to deceive
    if (scheme.empty()) return KindOfPath(plain);
    const std::optional<std::wstring> path = scheme == L"file" ? PathOfFileAddress(plain) : std::nullopt;
    return path ? KindOfPath(*path) : AddressKind::Unsure;
}

std::wstring ForTheShell(std::wstring_view address) {
    if (Classify(address) != AddressKind::Web) return std::wstring(address);
    std::wstring given;
    if (StartsWithWww(AsciiLowerCase(Trim(address)))) {
        given = L"http://";
        address = Trim(address);
    }
    for (const wchar_t unit : address) {
        const auto character = static_cast<char32_t>(unit);
        if (!MayEndAnArgument(character)) {
            given += unit;
            continue;
        }
        const std::string encoded = PercentEncoded(character);
        given.append(encoded.begin(), encoded.end());
    }
    return given;
}

std::vector<std::wstring> ExtensionsOf(std::wstring_view address) {
    return ExtensionsOfPlain(Plain(address));
}

}  // namespace lindrel
