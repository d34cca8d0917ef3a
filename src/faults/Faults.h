// Faults: the exceptions of functions that cannot do what they are asked for. Unless its header says
// otherwise, a function that throws one has changed nothing. If no command handles a fault, the program shows
// Number() and Meaning() in the run-time error report, offers to save the book, and ends.
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
    // What went wrong, in Hungarian, without a full stop.
    const std::wstring& Meaning() const noexcept { return meaning_; }
    const char* what() const noexcept override { return "Lindrel fault"; }

  private:
    int number_;
    std::wstring meaning_;
};

// An argument that makes no sense.
class ArgumentFault : public Fault {
  public:
    ArgumentFault() : Fault(5, L"Érvénytelen eljáráshívás vagy argumentum") {}
};

// A count or an index that does not fit in its 8 or 16 bits.
class OverflowFault : public Fault {
  public:
    OverflowFault() : Fault(6, L"Túlcsordulás") {}
};

// A category, position or index that is out of bounds.
class RangeFault : public Fault {
  public:
    RangeFault() : Fault(9, L"Az index a tartományon kívül esik") {}
};

// Not enough memory.
class MemoryFault : public Fault {
  public:
    MemoryFault() : Fault(7, L"Elfogyott a memória") {}
};

// Reading past the end of a file.
class EndOfFileFault : public Fault {
  public:
    EndOfFileFault() : Fault(62, L"Olvasás a fájl vége után") {}
};

// Windows was asked for something and refused: a window, a picture, a menu. Number() is the system's error
// number, 0 if it gave none; Meaning() tells what was asked for.
class SystemFault : public Fault {
  public:
    // `asked_for` is in Hungarian and completes "Windows could not do this: ".
    SystemFault(const std::wstring& asked_for, unsigned long error)
        : Fault(static_cast<int>(error), L"A Windows ezt nem tudta teljesíteni: " + asked_for) {}
};

// A file or folder that cannot be opened, created, read or written. For a file, Meaning() is the system's
// reason; for a folder, what could not be done.
class FileFault : public Fault {
  public:
    FileFault(std::wstring path, std::wstring reason)
        : Fault(75, std::move(reason)), path_(std::move(path)) {}
    // Another fault, caused by a file: adds the path and keeps number and meaning.
    FileFault(std::wstring path, const Fault& cause) : Fault(cause), path_(std::move(path)) {}
    const std::wstring& Path() const noexcept { return path_; }

  private:
    std::wstring path_;
};

// The exception being handled, as reported to the user: a fault with its number and its meaning, which
// follows the path if there is one; any other exception as a MemoryFault or an internal error. Only for catch
// clauses.
Fault CurrentFault();

// Calls the handler. Whatever it throws becomes a FileFault with the path.
template <typename Handler>
auto NamingTheFile(const std::wstring& path, Handler&& handler) {
    try {
        return std::forward<Handler>(handler)();
    } catch (const FileFault& fault) {
        throw FileFault(path, fault);
    } catch (...) {
        throw FileFault(path, CurrentFault());
    }
}

}  // namespace lindrel
