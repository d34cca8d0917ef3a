// Exporting the largest book with everything checked, next to writing the same bytes.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/SampleBook.h"
#include "book/Book.h"
#include "book/PerCategory.h"
#include "export/Favorites.h"
#include "export/HtmlPage.h"
#include "export/Shortcut.h"
#include "export/TextList.h"
#include "files/Files.h"

namespace lindrel::bench {
namespace {

// The largest book with everything checked.
Book CheckedBook() {
    Book book = MakeLargestBook();
    for (int category = 1; category <= kCategories; ++category) {
        std::vector<std::int16_t> positions;
        for (std::int16_t position = 1; position <= book.CategoryCounts(category); ++position)
            positions.push_back(position);
        book.Marks.Save(category, positions);
    }
    return book;
}

const Book& TheBook() {
    static const Book book = CheckedBook();
    return book;
}

void WriteSameBytes(benchmark::State& state, const std::string& bytes, const std::string& name) {
    const std::filesystem::path path = TemporaryFile(name);
    for (auto _ : state) WriteFileBytes(path, bytes);
}

void FloorWritePage(benchmark::State& state) {
    WriteSameBytes(state, HtmlPageOf(TheBook(), PageStyle{}), "floor.htm");
}
BENCHMARK(FloorWritePage)->Unit(benchmark::kMillisecond)->UseRealTime();

void ExportPage(benchmark::State& state) {
    const std::filesystem::path path = TemporaryFile("page.htm");
    for (auto _ : state) WriteFileBytes(path, HtmlPageOf(TheBook(), PageStyle{}));
    state.SetLabel("FloorWritePage");
}
BENCHMARK(ExportPage)->Unit(benchmark::kMillisecond)->UseRealTime();

void FloorWriteTextList(benchmark::State& state) {
    WriteSameBytes(state, TextListOf(TheBook()).Text, "floor.txt");
}
BENCHMARK(FloorWriteTextList)->Unit(benchmark::kMillisecond)->UseRealTime();

void ExportTextList(benchmark::State& state) {
    const std::filesystem::path path = TemporaryFile("list.txt");
    for (auto _ : state) WriteFileBytes(path, TextListOf(TheBook()).Text);
    state.SetLabel("FloorWriteTextList");
}
BENCHMARK(ExportTextList)->Unit(benchmark::kMillisecond)->UseRealTime();

// The files of ExportShortcuts, one after the other.
void FloorWriteShortcuts(benchmark::State& state) {
    const std::filesystem::path folder = TemporaryFile("floor");
    std::filesystem::create_directory(folder);
    struct ShortcutToWrite {
        std::filesystem::path Path;
        std::string Bytes;
    };
    std::vector<ShortcutToWrite> files;
    for (int e = 1; e <= TheBook().EntryCount(); ++e)
        files.push_back({folder / (std::to_string(e) + ".url"), ShortcutFile(TheBook().SiteURLs(e))});
    for (auto _ : state)
        for (const ShortcutToWrite& file : files) WriteFileBytes(file.Path, file.Bytes);
}
BENCHMARK(FloorWriteShortcuts)->Unit(benchmark::kMillisecond)->UseRealTime();

void ExportShortcuts(benchmark::State& state) {
    const std::filesystem::path folder = TemporaryFile("shortcuts");
    std::filesystem::create_directory(folder);
    Book book = TheBook();
    for (auto _ : state) saveTo_fav(book, folder, false);
    state.SetLabel("FloorWriteShortcuts");
}
BENCHMARK(ExportShortcuts)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace lindrel::bench
