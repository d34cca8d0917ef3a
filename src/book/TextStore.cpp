#include "book/TextStore.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace lindrel {

std::string_view TextStore::Keep(std::string_view text) {
    constexpr std::size_t kBlockBytes = 65536;
    if (text.empty()) return {};
    if (text.size() > room_) {
        const std::size_t size = std::max(kBlockBytes, text.size());
        blocks_.emplace_back(size);
        next_ = blocks_.back().data();
        room_ = size;
    }
    char* const copy = next_;
    std::memcpy(copy, text.data(), text.size());
    next_ += text.size();
    room_ -= text.size();
    return {copy, text.size()};
}

void TextStore::Adopt(std::vector<char> bytes) {
    // Moving a vector does not move its buffer.
    blocks_.push_back(std::move(bytes));
}

}  // namespace lindrel
