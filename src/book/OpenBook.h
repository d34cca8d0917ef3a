// The open book: the book, the file it belongs to, and what commands and dialogs tell each other about it.
// There is one, the main window's. A dialog changes the open book; the command that opened the dialog then
// brings the main window up to date.
#pragma once

#include <cstdint>
#include <string>

#include "book/Book.h"

namespace lindrel {

// What the add and edit dialogs leave in ResultTag when they have stored something.
inline constexpr wchar_t kStored[] = L"init";

struct OpenBook {
    Book TheBook;
    std::wstring OpenedFile;           // full path; empty for a book that was never saved
    bool Modified = false;             // unsaved changes exist
    std::wstring ResultTag;            // empty, or kStored
    std::uint8_t CurrentCategory = 1;  // whose entries the list shows, 1..12
};

}  // namespace lindrel
