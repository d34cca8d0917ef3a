// Tells whether a file has another content than before, without keeping that.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lindrel {

// A length and a hash. Of two contents that differ by chance the sums hardly ever are the same.
class ContentSum {
  public:
    ContentSum() = default;  // of no bytes
    explicit ContentSum(std::string_view bytes) : length_(bytes.size()) {
        for (const char byte : bytes)
            hash_ = (hash_ ^ static_cast<unsigned char>(byte)) * 1099511628211U;  // FNV-1a
    }
    friend bool operator==(const ContentSum&, const ContentSum&) = default;

  private:
    std::size_t length_ = 0;
    std::uint64_t hash_ = 14695981039346656037U;
};

}  // namespace lindrel
