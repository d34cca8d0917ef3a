// The open book and the file it belongs to. There is one, the main window's. A dialog changes the open book;
// the command that opened the dialog then brings the main window up to date.
#pragma once

#include <cstdint>
#include <string>

#include "book/Book.h"

namespace lindrel {

struct OpenBook {
    Book TheBook;
    std::wstring OpenedFile;           // full path; empty for a book that was never saved
    bool Modified = false;             // there are unsaved changes
    std::uint8_t CurrentCategory = 1;  // whose entries the list shows, 1..12
};

}  // namespace lindrel
