// Dice, and texts that a user might type: the same seed gives the same ones again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace lindrel::testing {

class RandomTexts {
  public:
    explicit RandomTexts(std::uint32_t seed) : dice_(seed) {}

    // 0..sides - 1.
    int Roll(int sides) { return static_cast<int>(dice_() % static_cast<std::uint32_t>(sides)); }
    bool OneIn(int times) { return Roll(times) == 0; }
    template <typename Choices>
    const auto& OneOf(const Choices& choices) {
        return std::data(choices)[Roll(static_cast<int>(std::size(choices)))];
    }

    // A name that the dialogs take: with a letter, so that it is not blank, and without the prefix of a
    // header, which only a category's name may have.
    std::wstring Name() { return WithoutPrefix(Words(OneIn(60) ? 120 : 3) + (OneIn(2) ? L"n" : L"Ű")); }
    // An address with the prefix of a header could make opening the book ask something.
    std::wstring Address() {
        static const std::vector<std::wstring> hosts = SplitAtBlanks(
            L"http://www.hu.com http://wwwhu HTTP://WWW.hírek.HU https://a.hu ftp://x.gov/hu "
            L"mailto:ki@lap.hu lap.hu c:\\könyv.txt http:// http://a.hu/ő?x=1&y=\"2\"#hely");
        const std::wstring before = OneIn(4) ? Words(2) : L"";
        const std::wstring host = OneOf(hosts);
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
    static std::vector<std::wstring> SplitAtBlanks(std::wstring_view text) {
        std::vector<std::wstring> words(1);
        for (const wchar_t c : text)
            if (c == L' ')
                words.emplace_back();
            else
                words.back() += c;
        return words;
    }
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
        static const std::vector<std::wstring> words = SplitAtBlanks(
            L"árvíztűrő tükörfúrógép ŐSZ Űrhajó társa & && # #1 \"idézet\" „így” ' a x hír Hírek HÍR "
            L"időjárás Č ß € … – <b> 100% \\ / | , () \xA0 www http:// łódź %s");
        if (OneIn(40)) return std::wstring(static_cast<std::size_t>(Roll(400)), OneIn(2) ? L'ő' : L'&');
        return OneOf(words);
    }

    std::mt19937 dice_;
};

}  // namespace lindrel::testing
