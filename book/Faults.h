// Faults: what a routine throws when it is handed something it cannot work with. A routine that throws one
// has changed nothing. A fault that no command handles ends the program with the run-time error report,
// which shows Number() and Meaning(), after offering to save the book.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace lindrel {

class Fault : public std::exception {
  public:
    Fault(int number, std::wstring meaning) : number_(number), meaning_(std::move(meaning)) {}

    // The number that the report shows; each kind of fault has one.
    int Number() const noexcept { return number_; }
    // What it means, in Hungarian, without a full stop.
    const std::wstring& Meaning() const noexcept { return meaning_; }
    const char* what() const noexcept override { return "Lindrel fault"; }

  private:
    int number_;
    std::wstring meaning_;
};

// A call that makes no sense with the values given, such as text cut at a place before its start.
class ArgumentFault : public Fault {
  public:
    ArgumentFault() : Fault(5, L"Érvénytelen eljáráshívás vagy argumentum") {}
};

// A count or an index beyond what its 8 or 16 bits hold.
class OverflowFault : public Fault {
  public:
    OverflowFault() : Fault(6, L"Túlcsordulás") {}
};

// A category, position or index outside the bounds it has.
class RangeFault : public Fault {
  public:
    RangeFault() : Fault(9, L"Az index a tartományon kívül esik") {}
};

// Memory that the system does not give.
class MemoryFault : public Fault {
  public:
    MemoryFault() : Fault(7, L"Elfogyott a memória") {}
};

// Reading past the end of a file.
class EndOfFileFault : public Fault {
  public:
    EndOfFileFault() : Fault(62, L"Olvasás a fájl vége után") {}
};

// A file or folder that cannot be opened, created, read or written. Meaning() is the system's own reason,
// or in short what could not be done.
class FileFault : public Fault {
  public:
    FileFault(std::wstring path, std::wstring reason)
        : Fault(75, std::move(reason)), path_(std::move(path)) {}
    const std::wstring& Path() const noexcept { return path_; }

  private:
    std::wstring path_;
};

// What the exception being handled is to the user: of a fault its own number and meaning (with the path
// before it, when it has one), of any other exception those of missing memory or of an error of the program
// itself. Only to be called while an exception is handled.
Fault CurrentFault();

}  // namespace lindrel
