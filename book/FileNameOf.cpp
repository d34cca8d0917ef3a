#include "book/BookText.h"
#include "book/Files.h"

namespace lindrel {

std::wstring FileNameOf(std::wstring_view path) {
    const auto backslash = path.rfind(L'\\');
    return std::wstring(Trim(backslash == std::wstring_view::npos ? path : path.substr(backslash + 1)));
}

}  // namespace lindrel
