// Loading, saving, changing and searching the largest book.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "bench/SampleBook.h"
#include "book/Book.h"
#include "book/BookFile.h"
#include "book/EntrySequence.h"
#include "book/PerCategory.h"
#include "files/Files.h"
#include "text/BookText.h"

namespace lindrel::bench {
namespace {

std::filesystem::path BookOnDisk() {
    static const std::filesystem::path path = [] {
        const std::filesystem::path file = TemporaryFile("largest.lnd");
        WriteFileBytes(file, LargestBookFile());
        return file;
    }();
    return path;
}

void Check(bool good) {
    if (!good) throw std::runtime_error("the benchmark's own file could not be used");
}

// Floor of loading: read the file and count its lines.
void FloorReadAndCountLines(benchmark::State& state) {
    const std::string path = BookOnDisk().string();
    const std::size_t size = LargestBookFile().size();
    for (auto _ : state) {
        const int file = open(path.c_str(), O_RDONLY);
        const auto bytes = std::make_unique_for_overwrite<char[]>(size);
        Check(read(file, bytes.get(), size) == static_cast<ssize_t>(size));
        Check(close(file) == 0);
        long lines = 0;
        for (const char *at = bytes.get(), *end = at + size; at != end; ++lines) {
            const void* const found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
            at = found == nullptr ? end : static_cast<const char*>(found) + 1;
        }
        benchmark::DoNotOptimize(lines);
    }
}
BENCHMARK(FloorReadAndCountLines)->Unit(benchmark::kMillisecond);

void Load(benchmark::State& state) {
    const std::filesystem::path path = BookOnDisk();
    for (auto _ : state) {
        Book book;
        Check(LoadBook(book, path));
        benchmark::DoNotOptimize(book);
    }
    state.SetLabel("FloorReadAndCountLines");
}
BENCHMARK(Load)->Unit(benchmark::kMillisecond);

// Every name may be a category's: the headers have to be found.
void LoadMarkedNames(benchmark::State& state) {
    Book marked = MakeLargestBook();
    for (int i = 1; i <= marked.EntryCount(); ++i)
        marked.SetSiteName(i, "#" + std::string(marked.SiteNames(i)));
    const std::filesystem::path path = TemporaryFile("marked.lnd");
    SaveBook(marked, path);
    for (auto _ : state) {
        Book book;
        Check(LoadBook(book, path));
        benchmark::DoNotOptimize(book);
    }
    state.SetLabel("FloorReadAndCountLines");
}
BENCHMARK(LoadMarkedNames)->Unit(benchmark::kMillisecond);

// Floor of saving: write the bytes.
void FloorWrite(benchmark::State& state) {
    const std::filesystem::path path = TemporaryFile("floor.lnd");
    const std::string& bytes = LargestBookFile();
    for (auto _ : state) WriteFileBytes(path, bytes);
}
BENCHMARK(FloorWrite)->Unit(benchmark::kMillisecond)->UseRealTime();

void Save(benchmark::State& state) {
    const std::filesystem::path path = TemporaryFile("saved.lnd");
    const Book book = MakeLargestBook();
    for (auto _ : state) SaveBook(book, path);
    state.SetLabel("FloorWrite");
}
BENCHMARK(Save)->Unit(benchmark::kMillisecond)->UseRealTime();

// Floor of adding at the front: move all entries by one place, and back.
void FloorMoveAllEntries(benchmark::State& state) {
    std::vector<AddressEntry> entries(kMostEntries);
    for (auto _ : state) {
        std::memmove(static_cast<void*>(entries.data() + 1), entries.data(),
                     (entries.size() - 1) * sizeof(AddressEntry));
        benchmark::ClobberMemory();
        std::memmove(static_cast<void*>(entries.data()), entries.data() + 1,
                     (entries.size() - 1) * sizeof(AddressEntry));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(FloorMoveAllEntries)->Unit(benchmark::kMicrosecond);

void AddEntryAtTheFront(benchmark::State& state) {
    Book book = MakeLargestBook();
    book.DeleteEntry(1, 1, 1);
    const auto add_and_remove = [&book](int category) {
        book.AddEntry(category, {{"N\xE9v", "http://www.elso.hu"}});
        book.DeleteEntry(category, book.CategoryCounts(category), 1);
    };
    for (auto _ : state) {
        add_and_remove(1);
        // Moves the free slots to the end, so that the next addition at the front has to move all entries
        // again.
        add_and_remove(kCategories);
    }
    state.SetLabel("FloorMoveAllEntries");
}
BENCHMARK(AddEntryAtTheFront)->Unit(benchmark::kMicrosecond);

// Deletes them one by one.
void DeleteEverySecondEntry(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        Book book = MakeLargestBook();
        state.ResumeTiming();
        for (int category = 1; category <= kCategories; ++category)
            for (int position = 1; position <= book.CategoryCounts(category); ++position)
                book.DeleteEntry(category, position, 1);
        benchmark::DoNotOptimize(book);
    }
}
BENCHMARK(DeleteEverySecondEntry)->Unit(benchmark::kMillisecond);

void SearchAllNames(benchmark::State& state) {
    const Book book = MakeLargestBook();
    const CaselessNeedle needle("M\xDBSOR");
    for (auto _ : state) {
        int found = 0;
        for (int i = 1; i <= book.EntryCount(); ++i)
            if (needle.IsIn(book.SiteNames(i))) ++found;
        benchmark::DoNotOptimize(found);
    }
    state.SetLabel("FloorReadAndCountLines");
}
BENCHMARK(SearchAllNames)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lindrel::bench
