// Loading, saving and changing the largest book.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/SampleBook.h"
#include "book/Book.h"
#include "book/BookFile.h"
#include "files/Files.h"

namespace lindrel::bench {
namespace {

std::string PathOf(const char* name, const std::string& bytes) {
    const std::filesystem::path path = TemporaryFile(name);
    WriteFileBytes(path, bytes);
    return path.string();
}

void Check(bool good) {
    if (!good) throw std::runtime_error("the benchmark's own file could not be used");
}

// Floor of loading: read the file and count its lines.
void FloorReadAndCountLines(benchmark::State& state) {
    const std::string path = PathOf("read.lnd", LargestBookFile());
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
BENCHMARK(FloorReadAndCountLines);

void LoadFile(benchmark::State& state, const std::string& bytes) {
    const std::string path = PathOf("loaded.lnd", bytes);
    for (auto _ : state) benchmark::DoNotOptimize(ReadBook(Book(), ReadFileBytes(path)));
    state.SetLabel("FloorReadAndCountLines");
}

void Load(benchmark::State& state) {
    LoadFile(state, LargestBookFile());
}
BENCHMARK(Load);

// Every name starts with "#": the headers have to be found.
void LoadNamesLikeHeaders(benchmark::State& state) {
    Book book = MakeLargestBook();
    for (int i = 1; i <= book.EntryCount(); ++i) book.SetSiteName(i, "#" + std::string(book.SiteNames(i)));
    LoadFile(state, SaveBook(book));
}
BENCHMARK(LoadNamesLikeHeaders);

// Floor of saving: write the bytes.
void FloorWrite(benchmark::State& state) {
    const std::filesystem::path path = TemporaryFile("floor.lnd");
    const std::string& bytes = LargestBookFile();
    for (auto _ : state) WriteFileBytes(path, bytes);
}
BENCHMARK(FloorWrite)->UseRealTime();

void Save(benchmark::State& state) {
    const std::filesystem::path path = TemporaryFile("saved.lnd");
    const Book book = MakeLargestBook();
    for (auto _ : state) ReplaceFileBytes(path, SaveBook(book));
    state.SetLabel("FloorWrite");
}
BENCHMARK(Save)->UseRealTime();

// Floor of adding at the front: move all entries by one, and back.
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
BENCHMARK(FloorMoveAllEntries);

void AddEntryAtTheFront(benchmark::State& state) {
    Book book = MakeLargestBook();
    book.DeleteEntry(1, 1, 1);
    for (auto _ : state) {
        book.AddEntry(1, {{"N\xE9v", "http://www.elso.hu"}});
        book.DeleteEntry(1, book.CategoryCounts(1), 1);
    }
    state.SetLabel("FloorMoveAllEntries");
}
BENCHMARK(AddEntryAtTheFront);

void DeleteEverySecondEntry(benchmark::State& state) {
    const Book largest = MakeLargestBook();
    std::vector<int> indices;
    for (int index = 1; index <= kMostEntries; index += 2) indices.push_back(index);
    for (auto _ : state) {
        state.PauseTiming();
        Book book = largest;
        state.ResumeTiming();
        book.DeleteEntries(indices);
        benchmark::DoNotOptimize(book);
    }
    state.SetLabel("FloorMoveAllEntries");
}
BENCHMARK(DeleteEverySecondEntry);

}  // namespace
}  // namespace lindrel::bench
