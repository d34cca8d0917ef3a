// What the user is asked and told when a book is opened or saved whose lines can be taken in two ways, or
// whose file was edited by hand.
#pragma once

#include "book/BookFile.h"
#include "window/Windows.h"

namespace lindrel {

inline constexpr wchar_t kWarningTitle[] = L"Figyelem";

// Why a book could not be read: what the exception being handled says. To be called in a catch clause only.
void TellWhyNotRead(HWND owner);
// Whether a book may take the place of the open one though lines of its file are in doubt.
bool MayOpenInDoubt(HWND owner, const DoubtfulLines& doubtful);
// What is missing in a book that has just been opened, if anything is.
void TellWhatIsMissing(HWND owner, const BookFromFile& read);
// What will come of the names and addresses that begin with "#" in a book that has just been saved, if they
// are read in any other way than in silence.
void WarnOfHeaderLookalikes(HWND owner, const Book& book);

}  // namespace lindrel
