// Dice, and texts that a user might type: the same seed gives the same ones again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace lindrel::testing {

class RandomTexts {
  public:
    explicit RandomTexts(std::uint32_t seed) : dice_(seed) {}

    // 0..sides - 1.
    int Roll(int sides) { return static_cast<int>(dice_() % static_cast<std::uint32_t>(sides)); }
    bool OneIn(int times) { return Roll(times) == 0; }
    template <typename T, std::size_t Count>
    const T& OneOf(const T (&choices)[Count]) {
        return choices[Roll(static_cast<int>(Count))];
    }

    // A name that the dialogs take: with a letter, so that it is not blank, and without the prefix of a
    // header, which only a category's name may have.
    std::wstring Name() { return WithoutPrefix(Words(OneIn(60) ? 120 : 3) + (OneIn(2) ? L"n" : L"Ű")); }
    // An address with the prefix of a header could make opening the book ask something.
    std::wstring Address() {
        static constexpr std::wstring_view kHosts[] = {L"http://www.hu.com",
                                                       L"http://wwwhu",
                                                       L"HTTP://WWW.hírek.HU",
                                                       L"https://a.hu",
                                                       L"ftp://x.gov/hu",
                                                       L"mailto:ki@lap.hu",
                                                       L"lap.hu",
                                                       L"c:\\könyv.txt",
                                                       L"http://",
                                                       L"http://a.hu/ő?x=1&y=\"2\"#hely"};
        const std::wstring before = OneIn(4) ? Words(2) : L"";
        const std::wstring host(OneOf(kHosts));
        return WithoutPrefix(before + host + (OneIn(4) ? Words(OneIn(30) ? 120 : 2) : L""));
    }
    std::wstring CategoryName() { return Words(2); }

    // Texts that the dialogs refuse: no name, too short an address, and one with a character that a book
    // cannot hold.
    std::wstring BlankName() { return Spaces(Roll(4)); }
    std::wstring ShortAddress() { return Spaces(Roll(3)) + (OneIn(2) ? L"ab" : L"") + L"  "; }
    std::wstring ForeignText() {
        const std::wstring before = L"http" + Words(2);
        return before + (OneIn(2) ? L"Ω" : L"\xD83D\xDE00") + Words(2);
    }

  private:
    static std::wstring Spaces(int count) { return std::wstring(static_cast<std::size_t>(count), L' '); }
    static std::wstring WithoutPrefix(const std::wstring& text) {
        return text.starts_with(L'#') ? L"n" + text : text;
    }
    std::wstring Words(int most) {
        std::wstring words;
        for (int left = Roll(most + 1); left > 0; --left) {
            if (!OneIn(5)) words += L" ";
            words += Word();
        }
        if (OneIn(2) && words.starts_with(L" ")) words.erase(0, 1);
        if (OneIn(8)) words += L" ";
        return words;
    }
    std::wstring Word() {
        static constexpr std::wstring_view kWords[] = {L"árvíztűrő",
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
                                                       L"%s"};
        if (OneIn(40)) return std::wstring(static_cast<std::size_t>(Roll(400)), OneIn(2) ? L'ő' : L'&');
        return std::wstring(OneOf(kWords));
    }

    std::mt19937 dice_;
};

}  // namespace lindrel::testing
