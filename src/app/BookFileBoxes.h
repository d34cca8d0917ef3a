// What the user is asked and told about a book file that cannot be read, whose lines can be read in two ways,
// or that lacks something. All throw SystemFault if a box cannot be shown.
#pragma once

#include "book/BookFile.h"
#include "window/Windows.h"

namespace lindrel {

inline constexpr wchar_t kWarningTitle[] = L"Figyelem";

// Tells why a book could not be read: shows the exception being handled. To be called in a catch clause only.
void TellWhyNotRead(HWND owner);
// Asks whether a book may be opened though lines of its file are in doubt. True without asking if none are.
bool MayOpenInDoubt(HWND owner, const DoubtfulLines& doubtful);
// Tells what is missing in a book that has just been opened, if anything is.
void TellWhatIsMissing(HWND owner, const BookFromFile& read);
// Warns if names or addresses with the "#" prefix, in a book that has just been saved, will be taken for
// headers or raise a question when it is opened again.
void WarnOfHeaderLookalikes(HWND owner, const Book& book);

}  // namespace lindrel
