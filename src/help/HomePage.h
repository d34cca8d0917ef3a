// The product's home page.
#pragma once

#include "Version.h"

namespace lindrel {

// Its address, as the build was configured.
inline constexpr wchar_t kHomePage[] = L"" LINDREL_HOME_PAGE;

}  // namespace lindrel
