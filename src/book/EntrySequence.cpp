#include "book/EntrySequence.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "faults/Faults.h"

namespace lindrel {

namespace {
constexpr std::size_t kBlockBytes = 65536;
}

std::string_view TextStore::Keep(std::string_view text) {
    if (text.empty()) return {};
    if (text.size() > room_) {
        const std::size_t size = std::max(kBlockBytes, text.size());
        blocks_.emplace_back(size);
        next_ = blocks_.back().data();
        room_ = size;
    }
    char* const place = next_;
    std::memcpy(place, text.data(), text.size());
    next_ += text.size();
    room_ -= text.size();
    return {place, text.size()};
}

std::string_view TextStore::Adopt(std::vector<char> bytes) {
    // Moving a vector does not move its buffer, so views of earlier blocks stay valid.
    blocks_.push_back(std::move(bytes));
    return {blocks_.back().data(), blocks_.back().size()};
}

std::size_t EntrySequence::SlotOf(int index) const {
    if (index < 1 || index > Size()) throw RangeFault();
    const auto slot = static_cast<std::size_t>(index - 1);
    return slot < gap_ ? slot : slot + gap_length_;
}

const AddressEntry& EntrySequence::At(int index) const {
    return slots_[SlotOf(index)];
}

AddressEntry& EntrySequence::At(int index) {
    return slots_[SlotOf(index)];
}

void EntrySequence::MoveGapTo(std::size_t slot) {
    const auto at = [this](std::size_t n) { return slots_.begin() + static_cast<std::ptrdiff_t>(n); };
    if (slot < gap_) std::move_backward(at(slot), at(gap_), at(gap_ + gap_length_));
    if (slot > gap_) std::move(at(gap_ + gap_length_), at(slot + gap_length_), at(gap_));
    gap_ = slot;
}

void EntrySequence::EnlargeGap(std::size_t needed) {
    const auto at = [this](std::size_t n) { return slots_.begin() + static_cast<std::ptrdiff_t>(n); };
    const std::size_t used = slots_.size() - gap_length_;
    std::vector<AddressEntry> larger;
    larger.reserve(used + needed + used / 2);
    larger.assign(slots_.begin(), at(gap_));
    larger.resize(larger.capacity() - (used - gap_));
    const std::size_t gap_end = larger.size();
    larger.insert(larger.end(), at(gap_ + gap_length_), slots_.end());
    slots_.swap(larger);
    gap_length_ = gap_end - gap_;
}

void EntrySequence::Insert(int index, std::span<const AddressEntry> entries) {
    if (index < 1 || index > Size() + 1) throw RangeFault();
    if (entries.size() > gap_length_) EnlargeGap(entries.size());
    MoveGapTo(static_cast<std::size_t>(index - 1));
    std::copy(entries.begin(), entries.end(), slots_.begin() + static_cast<std::ptrdiff_t>(gap_));
    gap_ += entries.size();
    gap_length_ -= entries.size();
}

void EntrySequence::Remove(int index, int count) {
    if (index < 1 || count < 0 || index - 1 > Size() - count) throw RangeFault();
    const auto first = static_cast<std::size_t>(index - 1);
    const auto removed = static_cast<std::size_t>(count);
    // A gap after the run is extended backwards over it; only what is between them has to be moved.
    MoveGapTo(gap_ >= first + removed ? first + removed : first);
    if (gap_ == first + removed) gap_ = first;
    gap_length_ += removed;
}

void EntrySequence::Recreate(int count) {
    std::vector<AddressEntry> blank(static_cast<std::size_t>(count));
    texts_ = std::make_shared<TextStore>();
    slots_.swap(blank);
    gap_ = slots_.size();
    gap_length_ = 0;
}

EntryParts EntrySequence::Parts(int index, int count) const {
    if (count == 0) return {};
    if (index < 1 || count < 0 || index - 1 > Size() - count) throw RangeFault();
    const auto first = static_cast<std::size_t>(index - 1);
    const auto wanted = static_cast<std::size_t>(count);
    const std::size_t before_gap = first < gap_ ? std::min(wanted, gap_ - first) : 0;
    const std::span<const AddressEntry> slots = slots_;
    return {slots.subspan(first, before_gap),
            slots.subspan(first + before_gap + gap_length_, wanted - before_gap)};
}

std::vector<AddressEntry> EntrySequence::Copy(int index, int count) const {
    std::vector<AddressEntry> copy;
    copy.reserve(static_cast<std::size_t>(count));
    for (const auto part : Parts(index, count)) copy.insert(copy.end(), part.begin(), part.end());
    return copy;
}

}  // namespace lindrel
