// The questions before entries are deleted. Their buttons differ, and users know the keys of each by heart.
// They throw SystemFault if the box cannot be shown.
#pragma once

#include <string>

#include "system/MsgBox.h"

namespace lindrel {

inline constexpr wchar_t kDeleteTitle[] = L"Törlés engedélyezése";

// Asks whether the selected entry may be deleted.
inline bool MayDeleteSelected(HWND owner) {
    return MsgBox(owner, L"Tényleg ki akarja törölni ezt a web címet ?", MB_OKCANCEL | MB_ICONQUESTION,
                  kDeleteTitle) == IDOK;
}

// Asks whether the checked entries, `count` of them, may be deleted.
inline bool MayDeleteChecked(HWND owner, int count) {
    return MsgBox(owner, L"Töröljem a (" + std::to_wstring(count) + L") bejelölt címet?",
                  MB_YESNO | MB_ICONQUESTION, kDeleteTitle) == IDYES;
}

}  // namespace lindrel
