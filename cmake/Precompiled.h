// What most sources include and the compiler takes longest to read, read once for all sources of a build. No
// source counts on it: clang-tidy reads each one without it.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#ifdef _WIN32
#include <windows.h>
// These need <windows.h> before them.
#include <commctrl.h>
#include <windowsx.h>
#endif
