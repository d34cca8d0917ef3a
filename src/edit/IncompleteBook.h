// Adding and moving entries in a book that counts entries which are not stored (book/Book.h).
#pragma once

#include <utility>

#include "book/Book.h"
#include "faults/Faults.h"
#include "system/MsgBox.h"

namespace lindrel {

// Calls `add`, which adds or moves entries and changes nothing if it throws. If such a book cannot take them,
// tells the user and returns false. Throws what `add` throws for any other book, and SystemFault if the box
// cannot be shown.
template <typename Add>
bool AddedUnlessIncomplete(HWND owner, const Book& book, Add&& add) {
    try {
        std::forward<Add>(add)();
        return true;
    } catch (const Fault&) {
        if (book.IsWhole()) throw;
    }
    MsgBox(owner,
           L"Ide most nem kerülhet cím, mert a könyv hiányos: több címet számol, mint amennyi a fájljában "
           L"volt.\r\n\r\nVálassza az „Új fájl” parancsot, majd nyissa meg a könyvet még egyszer.",
           MB_OK | MB_ICONERROR, kErrorTitle);
    return false;
}

}  // namespace lindrel
