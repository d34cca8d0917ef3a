// Wide text in test output.
#pragma once

#include <string>
#include <string_view>

namespace lindrel::testing {

// UTF-8 of wide text.
std::string Narrow(std::wstring_view text);

}  // namespace lindrel::testing
