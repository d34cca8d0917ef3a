// Owns the texts of a book. Texts are only ever added, so the views stay valid as long as the store exists.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace lindrel {

class TextStore {
  public:
    // Copies a text into the store and returns a view of the copy. Throws only std::bad_alloc.
    std::string_view Keep(std::string_view text);
    // Takes over a buffer, such as the bytes of a book file. Views of it stay valid.
    void Adopt(std::vector<char> bytes);

  private:
    std::vector<std::vector<char>> blocks_;
    char* next_ = nullptr;  // the free part of the last block that Keep() made
    std::size_t room_ = 0;  // its size in bytes
};

}  // namespace lindrel
