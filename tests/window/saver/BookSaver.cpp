// Saves two books to the same file in turn, until it is killed.
//     book_saver.exe FILE BOOK BOOK

#include <windows.h>

#include <shellapi.h>

#include "book/Book.h"
#include "book/BookFile.h"
#include "faults/Faults.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (words == nullptr || count != 4) return 1;
    lindrel::Book books[2];
    if (!LoadBook(books[0], words[2]) || !LoadBook(books[1], words[3])) return 1;
    for (int next = 0;; next = 1 - next) {
        try {
            SaveBook(books[next], words[1]);
        } catch (const lindrel::FileFault&) {
            // On a busy machine, Wine may take seconds to close the files of the saver that was killed last.
        }
    }
}
