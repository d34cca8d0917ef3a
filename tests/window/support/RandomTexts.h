// Dice, and texts that a user might type, from a seed: the same seed gives the same ones again.
#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace lindrel::testing {

class RandomTexts {
  public:
    explicit RandomTexts(std::uint32_t seed) : dice_(seed) {}

    // 0..sides - 1.
    int Roll(int sides) { return static_cast<int>(dice_() % static_cast<std::uint32_t>(sides)); }
    bool OneIn(int times) { return Roll(times) == 0; }

    // A name or an address that the dialogs store.
    std::wstring Name();
    std::wstring Address();
    // Any text that a category can be called, the empty one too.
    std::wstring CategoryName();
    // Texts that the dialogs refuse: too short ones for a name and for an address, and one with a character
    // that a book cannot hold.
    std::wstring BlankName() { return std::wstring(static_cast<std::size_t>(Roll(4)), L' '); }
    std::wstring ShortAddress();
    std::wstring ForeignText();

  private:
    std::wstring Words(int most);
    std::wstring Word();

    std::mt19937 dice_;
};

}  // namespace lindrel::testing
