// How long a user waits in the largest book until the window is painted, and what memory the book takes:
//   window_bench.exe <rounds>
// The program runs in this process, with its real windows. One more round goes before those that count.
#include <windows.h>

#include <process.h>
#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <deque>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "bench/SampleBook.h"
#include "bench/window/BareList.h"
#include "bench/window/MainWindow.h"
#include "bench/window/Timing.h"
#include "book/BookFile.h"
#include "files/Files.h"

namespace lindrel::bench {
namespace {

constexpr wchar_t kMakeBook[] = L"--make-book";

// A line of the table for each thing that is measured, in the order of their first times.
class Table {
  public:
    void Add(const std::string& what, double milliseconds) {
        const auto found = std::find_if(lines_.begin(), lines_.end(),
                                        [&what](const Line& line) { return line.What == what; });
        Line& line = found != lines_.end() ? *found : lines_.emplace_back(Line{what, {}});
        line.Times.push_back(milliseconds);
    }
    void Print() {
        constexpr double kFrame = 16;  // milliseconds
        std::printf("%-46s%10s%10s%10s\n", "milliseconds until painted", "median", "least", "frames");
        for (Line& line : lines_) {
            std::sort(line.Times.begin(), line.Times.end());
            const double median = line.Times.at(line.Times.size() / 2);
            std::printf("%-46s%10.1f%10.1f%10.2f\n", line.What.c_str(), median, line.Times.front(),
                        median / kFrame);
        }
    }

  private:
    struct Line {
        std::string What;
        std::vector<double> Times;
    };
    std::deque<Line> lines_;
};

struct Memory {
    double Now, Peak;  // megabytes of working set
};

Memory MemoryOfProcess() {
    constexpr double kMegabyte = 1024 * 1024;
    PROCESS_MEMORY_COUNTERS counters{};
    Demand(K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) != FALSE, "the memory");
    return {static_cast<double>(counters.WorkingSetSize) / kMegabyte,
            static_cast<double>(counters.PeakWorkingSetSize) / kMegabyte};
}

void PrintMemory(const char* when, const Memory& memory) {
    std::printf("%-46s%10.1f%10.1f\n", when, memory.Now, memory.Peak);
}

// The largest book with its entries in that many categories, made by a process of its own: what that takes is
// no memory of the program.
std::wstring MakeFile(const wchar_t* program, const wchar_t* name, int categories) {
    std::wstring file = TemporaryFile("").wstring() + name;
    const std::wstring quoted = L'"' + file + L'"';
    Demand(_wspawnl(_P_WAIT, program, L"window_bench", kMakeBook, std::to_wstring(categories).c_str(),
                    quoted.c_str(), nullptr) == 0,
           "the book's file");
    return file;
}

// What the system needs to hand over the file.
double ReadWhole(const std::wstring& path) {
    std::vector<char> bytes(4U << 20U);
    return TimeOf([&] {
        const HANDLE file =
            CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        DWORD read = 0;
        const bool whole = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) &&
                           GetFileSize(file, nullptr) == read;
        CloseHandle(file);
        Demand(whole, "the file of the floor");
    });
}

class WindowBench {
  public:
    explicit WindowBench(const wchar_t* program)
        : one_(MakeFile(program, L"one.lnd", 1)), twelve_(MakeFile(program, L"twelve.lnd", kCategories)) {}

    void Run(long rounds) {
        const MainWindow window;
        const Memory before = MemoryOfProcess();
        window.Open(one_, kMostEntries, kMostEntries);
        const Memory opened = MemoryOfProcess();
        Round(window);
        table_ = {};
        for (long round = 0; round < rounds; ++round) Round(window);
        table_.Print();
        std::printf("\n%-46s%10s%10s\n", "megabytes of working set", "now", "peak");
        PrintMemory("before the largest book is opened", before);
        PrintMemory("with it open", opened);
        PrintMemory("after all rounds", MemoryOfProcess());
    }

  private:
    void Round(const MainWindow& window) {
        UseTwelveCategories(window);
        UseOneCategory(window);
        MeasureFloors(window);
    }

    void UseTwelveCategories(const MainWindow& window) {
        const int rows = EntriesOf(1);
        table_.Add("opening, 12 categories", window.Open(twelve_, rows, kMostEntries));
        table_.Add("tab change, 2,731 rows to 2,731", window.NextTab(EntriesOf(2)));
        window.PreviousTab(rows);
        table_.Add("find dialog, 32,767 hits", window.FindAll(kMostEntries));
    }

    void UseOneCategory(const MainWindow& window) {
        table_.Add("opening, 32,767 rows", window.Open(one_, kMostEntries, kMostEntries));
        table_.Add("tab change, 32,767 rows to none", window.NextTab(0));
        table_.Add("tab change, none to 32,767 rows", window.PreviousTab(kMostEntries));
        const std::wstring last = window.List().Cell(kMostEntries, 0);
        table_.Add("search, last of 32,767 rows", window.Search(last, kMostEntries));
        table_.Add("search, first of 32,767 rows", window.Search(window.List().Cell(1, 0), 1));
    }

    void MeasureFloors(const MainWindow& window) {
        table_.Add("floor: reading the file", ReadWhole(one_));
        window.OnUi([&] {
            const testing::ListOnScreen list = window.List();
            const BareList bare(list.Handle(), {list.Cell(1, 0), list.Cell(1, 1)});
            table_.Add("floor: bare list, none to 32,767 rows", bare.Fill(kMostEntries));
            table_.Add("floor: bare list, 32,767 rows to 32,767", bare.Fill(kMostEntries));
            table_.Add("floor: bare list, to the last row", bare.Show(kMostEntries));
        });
    }

    std::wstring one_, twelve_;
    Table table_;
};

}  // namespace
}  // namespace lindrel::bench

int wmain(int count, wchar_t** arguments) {
    using namespace lindrel;
    try {
        const auto number = [&](int index) {
            return index < count ? std::wcstol(arguments[index], nullptr, 10) : 0;
        };
        if (count == 4 && std::wstring(arguments[1]) == bench::kMakeBook) {
            WriteFileBytes(arguments[3], SaveBook(bench::MakeLargestBook(static_cast<int>(number(2)))));
        } else {
            bench::Demand(number(1) > 0, "window_bench.exe <rounds>");
            bench::WindowBench(arguments[0]).Run(number(1));
        }
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
