// Saves two books to the same file in turn, until it is killed.
//     book_saver.exe FILE BOOK BOOK

#include <windows.h>

#include <shellapi.h>

#include "book/BookFile.h"
#include "files/Files.h"

namespace {

lindrel::Book BookIn(const wchar_t* path) {
    return ReadBook(lindrel::Book(), lindrel::ReadFileBytes(path)).TheBook;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (words == nullptr || count != 4) return 1;
    const lindrel::Book books[] = {BookIn(words[2]), BookIn(words[3])};
    for (;;)
        for (const lindrel::Book& book : books) lindrel::ReplaceFileBytes(words[1], SaveBook(book));
}
