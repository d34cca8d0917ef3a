// Tells whether a file has another content than before, without keeping that.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

namespace lindrel {

// A length and a hash. Of two contents that differ by chance the sums hardly ever are the same.
class ContentSum {
  public:
    explicit ContentSum(std::string_view bytes = {})
        : length_(bytes.size()), hash_(std::hash<std::string_view>()(bytes)) {}
    friend bool operator==(const ContentSum&, const ContentSum&) = default;

  private:
    std::size_t length_;
    std::size_t hash_;
};

}  // namespace lindrel
