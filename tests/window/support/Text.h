// UTF-8, for the output of tests and for files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "window/Windows.h"

namespace lindrel::testing {

inline std::string Narrow(std::wstring_view text) {
    std::string narrow(3 * text.size(), '\0');
    narrow.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                            static_cast<int>(narrow.size()), nullptr, nullptr)));
    return narrow;
}

inline std::wstring Wide(std::string_view utf8) {
    std::wstring wide(utf8.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(
        CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

}  // namespace lindrel::testing
