// Searching the largest book, hits collected, beside a look at the same bytes.

#include <benchmark/benchmark.h>

#include <cstring>

#include "bench/SampleBook.h"
#include "find/EntrySearch.h"

namespace lindrel::bench {
namespace {

const Book& LargestBook() {
    static const Book book = MakeLargestBook();
    return book;
}

// Floor of searching: the machine's own search for one byte in every name.
void FloorByteInEveryName(benchmark::State& state) {
    const Book& book = LargestBook();
    for (auto _ : state) {
        int found = 0;
        for (int i = 1; i <= book.EntryCount(); ++i) {
            const std::string_view name = book.SiteNames(i);
            if (std::memchr(name.data(), '\xFB', name.size()) != nullptr) ++found;
        }
        benchmark::DoNotOptimize(found);
    }
}
BENCHMARK(FloorByteInEveryName)->Unit(benchmark::kMicrosecond);

void Find(benchmark::State& state, const wchar_t* what, const wchar_t* ending) {
    const Book& book = LargestBook();
    std::size_t hits = 0;
    for (auto _ : state) {
        const Hits found = FindEntries(book, what, ending);
        hits = found.Items.size();
        benchmark::DoNotOptimize(found.Items.data());
    }
    state.counters["hits"] = static_cast<double>(hits);
    state.SetLabel("FloorByteInEveryName");
}

void FindOneName(benchmark::State& state) {
    Find(state, L"\u0170SOR 16384", L"");
}
BENCHMARK(FindOneName)->Unit(benchmark::kMicrosecond);

void FindACommonWord(benchmark::State& state) {
    Find(state, L"M\u0170SOR", L"");
}
BENCHMARK(FindACommonWord)->Unit(benchmark::kMicrosecond);

void FindACommonWordWithAnEnding(benchmark::State& state) {
    Find(state, L"M\u0170SOR", L"HU");
}
BENCHMARK(FindACommonWordWithAnEnding)->Unit(benchmark::kMicrosecond);

void FindEverything(benchmark::State& state) {
    Find(state, L"", L"");
}
BENCHMARK(FindEverything)->Unit(benchmark::kMicrosecond);

void FindEverythingWithAnEnding(benchmark::State& state) {
    Find(state, L"", L"hu");
}
BENCHMARK(FindEverythingWithAnEnding)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lindrel::bench
