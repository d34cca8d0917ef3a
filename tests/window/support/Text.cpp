#include "tests/window/support/Text.h"

#include "window/Windows.h"

namespace lindrel::testing {

std::string Narrow(std::wstring_view text) {
    if (text.empty()) return {};
    const int length = static_cast<int>(text.size());
    std::string narrow(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr,
                                                                    0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, narrow.data(), static_cast<int>(narrow.size()),
                        nullptr, nullptr);
    return narrow;
}

}  // namespace lindrel::testing
