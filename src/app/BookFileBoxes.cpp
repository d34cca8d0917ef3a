#include "app/BookFileBoxes.h"

#include <cstddef>
#include <string>

#include "faults/Faults.h"
#include "system/MsgBox.h"
#include "text/BookText.h"

namespace lindrel {

namespace {

constexpr wchar_t kLoadErrorTitle[] = L"Hiba a beolvasásnál";

// Hungarian numbers have a blank before the last three digits from five digits on.
std::wstring NumberText(int number) {
    std::wstring text = std::to_wstring(number);
    if (text.size() > 4) text.insert(text.size() - 3, L"\u00A0");
    return text;
}

std::wstring LineText(long long line) {
    return L"(" + std::to_wstring(line) + L". sor)";
}

// A name or an address, cut short: in a hostile file it may be longer than the screen is wide.
std::wstring ShownText(const std::string& book_text) {
    constexpr std::size_t kMostShown = 100;
    const std::wstring text = FromBookText(book_text.substr(0, kMostShown));
    return book_text.size() > kMostShown ? text + L"…" : text;
}

}  // namespace

void TellWhyNotRead(HWND owner) {
    std::wstring text;
    try {
        throw;
    } catch (const MalformedBook& malformed) {
        text = malformed.Message();
        if (malformed.Line() != 0) text += L"\r\n" + LineText(malformed.Line());
    } catch (...) {
        text = CurrentFault().Meaning();
    }
    MsgBox(owner, text, MB_OK | MB_ICONERROR, kLoadErrorTitle);
}

bool MayOpenInDoubt(HWND owner, const DoubtfulLines& doubtful) {
    if (doubtful.Count == 0) return true;
    const bool several = doubtful.Count > 1;
    const std::wstring text =
        L"A fájlban tizenkettőnél több sor kezdődik „#” jellel. Könyvként csak úgy nyitható meg, ha "
        L"közülük " +
        NumberText(doubtful.Count) + L" nem kategória, hanem név vagy cím" +
        (several ? L". Az első:" : L":") + L"\r\n\r\n" + ShownText(doubtful.First) + L" " +
        LineText(doubtful.FirstLine) + L"\r\n\r\nMegnyissam így?";
    return MsgBox(owner, text, MB_YESNO | MB_ICONQUESTION, kLoadErrorTitle) == IDYES;
}

void TellWhatIsMissing(HWND owner, const BookFromFile& read) {
    if (!read.AllCategories)
        MsgBox(owner, L"Nem sikerült beolvasni az összes kategóriát", MB_OK | MB_ICONERROR, kLoadErrorTitle);
    if (read.InNoCategory == 0) return;
    MsgBox(
        owner,
        L"A fájlban " + NumberText(read.InNoCategory) +
            L" címmel több van, mint amennyi a kategóriákba tartozik. A könyv mentésekor ennyi cím elveszne.",
        MB_OK | MB_ICONWARNING, kLoadErrorTitle);
}

void WarnOfHeaderLookalikes(HWND owner, const Book& book) {
    const HeaderLookalikes found = FindHeaderLookalikes(book);
    if (found.Names + found.Addresses == 0) return;
    const Rereading rereading = HowItWillBeRead(book);
    if (rereading == Rereading::Same) return;
    const bool names = found.Names > 0;
    const int count = names ? found.Names : found.Addresses;
    const std::wstring them = count > 1 ? L" ezeket" : L" ezt";
    const std::wstring next =
        rereading == Rereading::SameIfConfirmed
            ? L"A fájlban a kategóriák is így kezdődnek, ezért a következő megnyitáskor a program rákérdez."
            : L"A következő megnyitáskor a program nem tudja" + them +
                  L" megkülönböztetni a kategóriáktól. Kérem, írja át" + them +
                  L", és mentse újra a könyvet.";
    MsgBox(owner,
           L"A könyvben " + NumberText(count) + (names ? L" olyan név" : L" olyan cím") +
               L" van, amely „#” jellel kezdődik" + (count > 1 ? L". Az első:" : L":") + L"\r\n\r\n" +
               ShownText(found.First) + L"\r\n\r\n" + next,
           MB_OK | MB_ICONWARNING, kWarningTitle);
}

}  // namespace lindrel
