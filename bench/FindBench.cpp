// Searching the largest book and collecting the hits.

#include <benchmark/benchmark.h>

#include <cstring>
#include <string_view>

#include "bench/SampleBook.h"
#include "book/Book.h"
#include "find/EntrySearch.h"

namespace lindrel::bench {
namespace {

const Book& LargestBook() {
    static const Book book = MakeLargestBook();
    return book;
}

// Floor of searching: memchr() for one byte in every name.
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
BENCHMARK(FloorByteInEveryName);

void Find(benchmark::State& state, const wchar_t* what, const wchar_t* ending) {
    const Book& book = LargestBook();
    for (auto _ : state) benchmark::DoNotOptimize(FindEntries(book, what, ending));
    state.SetLabel("FloorByteInEveryName");
}

BENCHMARK_CAPTURE(Find, FindOneName, L"\u0170SOR 16384", L"")->Name("FindOneName");
BENCHMARK_CAPTURE(Find, FindACommonWord, L"M\u0170SOR", L"")->Name("FindACommonWord");
BENCHMARK_CAPTURE(Find, FindACommonWordWithAnEnding, L"M\u0170SOR", L"HU")
    ->Name("FindACommonWordWithAnEnding");
BENCHMARK_CAPTURE(Find, FindEverything, L"", L"")->Name("FindEverything");
BENCHMARK_CAPTURE(Find, FindEverythingWithAnEnding, L"", L"hu")->Name("FindEverythingWithAnEnding");

}  // namespace
}  // namespace lindrel::bench
