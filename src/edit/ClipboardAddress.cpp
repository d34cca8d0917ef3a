#include "edit/ClipboardAddress.h"

#include "text/BookText.h"

namespace lindrel {

namespace {

// The text with a blank for each line break (CR LF, CR or LF).
std::wstring OneLine(std::wstring_view text) {
    std::wstring line;
    wchar_t before = 0;
    for (const wchar_t character : text) {
        const bool ends_line = character == L'\r' || character == L'\n';
        if (before != L'\r' || character != L'\n') line.push_back(ends_line ? L' ' : character);
        before = character;
    }
    return line;
}

}  // namespace

std::optional<std::wstring> AddressFromClipboard(std::wstring_view text) {
    const std::wstring line = OneLine(text);
    const std::wstring address(Trim(line));
    const auto contains = [&address](std::wstring_view pattern) {
        return ContainsCaseless(address, pattern);
    };
    if (contains(L"http:") || contains(L"https:")) return address;
    if (contains(L"www.")) return L"http://" + address;
    if (contains(L"ftp:")) return address;
    if (contains(L"@")) return contains(L"mailto:") ? address : L"mailto:" + address;
    return std::nullopt;
}

}  // namespace lindrel
