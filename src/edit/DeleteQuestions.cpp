#include "edit/DeleteQuestions.h"

#include <string>

#include "system/MsgBox.h"

namespace lindrel {

namespace {
constexpr wchar_t kTitle[] = L"Törlés engedélyezése";
}

bool MayDeleteSelected(HWND owner) {
    return MsgBox(owner, L"Tényleg ki akarja törölni ezt a web címet ?", MB_OKCANCEL | MB_ICONQUESTION,
                  kTitle) == IDOK;
}

bool MayDeleteChecked(HWND owner, int count) {
    return MsgBox(owner, L"Töröljem a (" + std::to_wstring(count) + L") bejelölt címet?",
                  MB_YESNO | MB_ICONQUESTION, kTitle) == IDYES;
}

}  // namespace lindrel
