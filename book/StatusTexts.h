// The texts of the status bar's counters.
#pragma once

#include <string>

namespace lindrel {

// Shown rows and entries of the whole book.
inline std::wstring ShownText(int rows, int total) {
    return L"megjelenítve (" + std::to_wstring(rows) + L" / " + std::to_wstring(total) + L")";
}

inline std::wstring CheckedText(int checked) {
    return L"bejelölve " + std::to_wstring(checked);
}

}  // namespace lindrel
