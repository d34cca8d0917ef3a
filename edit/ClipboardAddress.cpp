#include "edit/ClipboardAddress.h"

#include "book/BookText.h"

namespace lindrel {

namespace {

std::wstring OneLine(std::wstring_view text) {
    std::wstring line;
    for (const wchar_t character : text) {
        if (character == L'\r') continue;
        line.push_back(character == L'\n' ? L' ' : character);
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
