#include "tests/window/support/RandomTexts.h"

#include <string_view>

namespace lindrel::testing {

namespace {

constexpr std::wstring_view kWords[] = {
    L"árvíztűrő",
    L"tükörfúrógép",
    L"ŐSZ",
    L"Űrhajó",
    L"Bolt & társa",
    L"&",
    L"&&",
    L"#",
    L"#1",
    L"\"idézet\"",
    L"„így”",
    L"'",
    L"a",
    L"x",
    L"hír",
    L"Hírek",
    L"HÍR",
    L"időjárás",
    L"Č",
    L"ß",
    L"€",
    L"…",
    L"–",
    L"<b>",
    L"100%",
    L"\\",
    L"/",
    L"|",
    L",",
    L"()",
    L"\xA0",
    L"www",
    L"http://",
    L"łódź",
    L"%s",
};
constexpr std::wstring_view kHosts[] = {
    L"http://www.hu.com",
    L"http://wwwhu",
    L"HTTP://WWW.hírek.HU",
    L"https://a.hu",
    L"ftp://x.gov/hu",
    L"mailto:ki@lap.hu",
    L"lap.hu",
    L"c:\\könyv.txt",
    L"http://",
    L"http://a.hu/ő?x=1&y=\"2\"#hely",
};

template <std::size_t Count>
std::wstring OneOf(const std::wstring_view (&texts)[Count], RandomTexts& dice) {
    return std::wstring(texts[static_cast<std::size_t>(dice.Roll(static_cast<int>(Count)))]);
}

std::wstring WithoutHash(const std::wstring& text) {
    return text.starts_with(L'#') ? L"n" + text : text;
}

}  // namespace

std::wstring RandomTexts::Word() {
    if (OneIn(40)) return std::wstring(static_cast<std::size_t>(Roll(400)), OneIn(2) ? L'ő' : L'&');
    return OneOf(kWords, *this);
}

std::wstring RandomTexts::Words(int most) {
    std::wstring words;
    for (int left = Roll(most + 1); left > 0; --left) {
        if (!OneIn(5)) words += L" ";
        words += Word();
    }
    if (OneIn(2) && words.starts_with(L" ")) words.erase(0, 1);
    if (OneIn(8)) words += L" ";
    return words;
}

std::wstring RandomTexts::Name() {
    // A letter, so that it is not blank; no "#" before it, which only a category's name may have.
    return WithoutHash(Words(OneIn(60) ? 120 : 3) + (OneIn(2) ? L"n" : L"Ű"));
}

std::wstring RandomTexts::Address() {
    const std::wstring address =
        (OneIn(4) ? Words(2) : L"") + OneOf(kHosts, *this) + (OneIn(4) ? Words(OneIn(30) ? 120 : 2) : L"");
    return WithoutHash(address);  // else opening the book may ask first
}

std::wstring RandomTexts::CategoryName() {
    return Words(2);
}

std::wstring RandomTexts::ShortAddress() {
    return std::wstring(static_cast<std::size_t>(Roll(3)), L' ') + (OneIn(2) ? L"ab" : L"") + L"  ";
}

std::wstring RandomTexts::ForeignText() {
    return L"http" + Words(2) + (OneIn(2) ? L"Ω" : L"\xD83D\xDE00") + Words(2);
}

}  // namespace lindrel::testing
