// The entries of a book, in a gap buffer: the free slots are where entries were last added or removed, so
// that removing thousands of runs of entries one by one moves each entry only once. The texts are in a store
// that only grows; entries are views into it and cheap to copy.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace lindrel {

// Owns texts, which stay at the same address for as long as the store exists.
class TextStore {
  public:
    // Copies a text into the store and returns a view of the copy.
    std::string_view Keep(std::string_view text);
    // Takes over a buffer, such as the bytes of a book file, and returns a view of it.
    std::string_view Adopt(std::vector<char> bytes);

  private:
    std::vector<std::vector<char>> blocks_;
    char* next_ = nullptr;  // free bytes of the last block that Keep() made
    std::size_t room_ = 0;  // their number
};

struct AddressEntry {
    std::string_view SiteName;
    std::string_view URL;
    bool operator==(const AddressEntry&) const = default;
};

// A run of elements where it lies: those before the gap and those behind it. Valid until the sequence
// changes.
using EntryParts = std::array<std::span<const AddressEntry>, 2>;

class EntrySequence {
  public:
    // Number of elements.
    int Size() const { return static_cast<int>(slots_.size() - gap_length_); }

    // 1-based; RangeFault outside 1..Size().
    const AddressEntry& At(int index) const;
    AddressEntry& At(int index);

    // Puts the entries, whose texts must be in the store, before the 1-based index (1..Size() + 1).
    void Insert(int index, std::span<const AddressEntry> entries);
    // Removes `count` elements from the 1-based index on.
    void Remove(int index, int count);
    // Drops everything and starts again with `count` blank elements and an empty store.
    void Recreate(int count);

    // `count` elements from the 1-based index on; RangeFault if they are not all there.
    EntryParts Parts(int index, int count) const;
    // Copies of them.
    std::vector<AddressEntry> Copy(int index, int count) const;

    TextStore& Texts() { return *texts_; }
    std::shared_ptr<const TextStore> SharedTexts() const { return texts_; }

  private:
    std::size_t SlotOf(int index) const;
    void MoveGapTo(std::size_t slot);
    void EnlargeGap(std::size_t needed);

    std::vector<AddressEntry> slots_;
    std::size_t gap_ = 0;  // first slot of the gap
    std::size_t gap_length_ = 0;
    std::shared_ptr<TextStore> texts_ = std::make_shared<TextStore>();
};

}  // namespace lindrel
