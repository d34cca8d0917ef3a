// How long a user waits for a program's window, and what memory the program then takes; several programs in
// turns, so that what else the machine does meets them all:
//   startup_bench.exe <rounds> <program>...
// Each is started once before it counts, so that its files are in memory.
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cwchar>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr DWORD kPatience = 30000;  // milliseconds

struct Start {
    double Milliseconds;
    double Megabytes;  // working set
};

struct Candidate {
    std::wstring Path;
    std::vector<Start> Starts;
};

void Demand(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

BOOL CALLBACK TakeMainWindow(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || GetWindow(window, GW_OWNER) != nullptr) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND MainWindow(DWORD thread) {
    HWND window = nullptr;
    // The result only says whether the enumeration was cut short.
    EnumThreadWindows(thread, &TakeMainWindow, reinterpret_cast<LPARAM>(&window));
    return window;
}

// Usable: the window is there, all that waited for the program at its start is done, and it answers.
void WaitUntilUsable(const PROCESS_INFORMATION& process) {
    Demand(WaitForInputIdle(process.hProcess, kPatience) == 0, "the program does not come to rest");
    HWND window = nullptr;
    while ((window = MainWindow(process.dwThreadId)) == nullptr)
        Demand(WaitForSingleObject(process.hProcess, 1) == WAIT_TIMEOUT, "the program has ended");
    Demand(SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, nullptr) != 0,
           "the window does not answer");
}

double WorkingSet(HANDLE process) {
    PROCESS_MEMORY_COUNTERS counters{};
    Demand(K32GetProcessMemoryInfo(process, &counters, sizeof counters) != FALSE, "the program's memory");
    return static_cast<double>(counters.WorkingSetSize) / (1024 * 1024);
}

Start Measure(const std::wstring& path) {
    std::wstring command = L'"' + path + L'"';
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    const auto begin = std::chrono::steady_clock::now();
    Demand(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                          &process) != FALSE,
           "the program cannot be started");
    WaitUntilUsable(process);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    const Start result{time.count(), WorkingSet(process.hProcess)};
    Demand(TerminateProcess(process.hProcess, 0) != FALSE, "the program cannot be ended");
    Demand(WaitForSingleObject(process.hProcess, kPatience) == WAIT_OBJECT_0, "the program does not end");
    // Handles that cannot be closed go with this process.
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return result;
}

double Median(const std::vector<Start>& starts, double Start::*value) {
    std::vector<double> values;
    for (const Start& start : starts) values.push_back(start.*value);
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double Least(const std::vector<Start>& starts) {
    return std::ranges::min(starts, {}, &Start::Milliseconds).Milliseconds;
}

// The least times tell the programs apart also where others use the machine.
void Print(const std::vector<Candidate>& candidates) {
    const double first = Median(candidates.front().Starts, &Start::Milliseconds);
    const double first_least = Least(candidates.front().Starts);
    std::printf("%-24s%12s%8s%12s%8s%12s\n", "medians", "start ms", "ratio", "least ms", "ratio",
                "memory MB");
    for (const Candidate& candidate : candidates) {
        const std::wstring name = candidate.Path.substr(candidate.Path.find_last_of(L"\\/") + 1);
        const double time = Median(candidate.Starts, &Start::Milliseconds);
        const double least = Least(candidate.Starts);
        std::printf("%-24ls%12.1f%8.2f%12.1f%8.2f%12.1f\n", name.c_str(), time, first / time, least,
                    first_least / least, Median(candidate.Starts, &Start::Megabytes));
    }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    try {
        Demand(count > 2, "startup_bench.exe <rounds> <program>...");
        const long rounds = std::wcstol(arguments[1], nullptr, 10);
        Demand(rounds > 0, "the number of rounds must be above 0");
        std::vector<Candidate> candidates;
        for (int index = 2; index < count; ++index) candidates.push_back({arguments[index], {}});
        for (const Candidate& candidate : candidates) Measure(candidate.Path);
        for (long round = 0; round < rounds; ++round)
            for (Candidate& candidate : candidates) candidate.Starts.push_back(Measure(candidate.Path));
        Print(candidates);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
