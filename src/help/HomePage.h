// The address of the product's home page, as the build was configured.
#pragma once

#include "Version.h"

namespace lindrel {

inline constexpr wchar_t kHomePage[] = L"" LINDREL_HOME_PAGE;

}  // namespace lindrel
