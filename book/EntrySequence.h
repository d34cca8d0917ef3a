// The entries of a book in one sequence, as a gap buffer: the free room stands where entries were last added
// or removed, so that a command which removes thousands of runs one by one touches each entry once, not once
// for each run. The texts live in a store that only grows; entries are views into it and cheap to copy.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace lindrel {

// Holds texts at fixed places for as long as somebody keeps the store.
class TextStore {
  public:
    // Copies the text in and returns the view of the copy.
    std::string_view Keep(std::string_view text);
    // Takes over a whole buffer (a book file's bytes) and returns the view of it.
    std::string_view Adopt(std::vector<char> bytes);

  private:
    std::vector<std::vector<char>> blocks_;
    std::size_t room_ = 0;  // bytes left of the last block that Keep() made
    char* next_ = nullptr;
};

struct AddressEntry {
    std::string_view SiteName;
    std::string_view URL;
    bool operator==(const AddressEntry&) const = default;
};

class EntrySequence {
  public:
    // Number of elements.
    int Size() const { return static_cast<int>(slots_.size() - gap_length_); }

    // 1-based; RangeFault outside 1..Size().
    const AddressEntry& At(int index) const;
    AddressEntry& At(int index);

    // Puts `count` blank elements before the 1-based index (1..Size() + 1).
    void Insert(int index, int count);
    // Removes `count` elements from the 1-based index on.
    void Remove(int index, int count);
    // Throws everything away and starts with `count` blank elements and an empty store.
    void Recreate(int count);

    // The elements index .. index + count - 1, copied out.
    std::vector<AddressEntry> Copy(int index, int count) const;

    TextStore& Texts() { return *texts_; }
    std::shared_ptr<const TextStore> SharedTexts() const { return texts_; }

  private:
    std::size_t SlotOf(int index) const;
    void MoveGapTo(std::size_t slot);

    std::vector<AddressEntry> slots_;
    std::size_t gap_ = 0;         // first slot of the gap
    std::size_t gap_length_ = 0;  // its length in slots
    std::shared_ptr<TextStore> texts_ = std::make_shared<TextStore>();
};

}  // namespace lindrel
