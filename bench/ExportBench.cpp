// Exporting all of the largest book, beside writing the same bytes.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/SampleBook.h"
#include "book/Book.h"
#include "book/PerCategory.h"
#include "export/Favorites.h"
#include "export/HtmlPage.h"
#include "export/Shortcut.h"
#include "export/TextList.h"
#include "files/File.h"
#include "files/Files.h"
#include "files/OutputFile.h"

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

using Exporter = std::function<void(const ByteSink&)>;

const Exporter kPage = [](const ByteSink& out) { WriteHtmlPage(TheBook(), PageStyle{}, out); };
const Exporter kTextList = [](const ByteSink& out) { WriteTextList(TheBook(), out); };

void Export(benchmark::State& state, const Exporter& exporter, const std::string& name,
            const std::string& floor) {
    const std::filesystem::path path = TemporaryFile(name);
    for (auto _ : state) {
        OutputFile file(path);
        exporter([&file](std::string_view bytes) { file.Write(bytes); });
        file.Close();
    }
    state.SetLabel(floor);
}

void WriteSameBytes(benchmark::State& state, const Exporter& exporter, const std::string& name) {
    std::string all;
    exporter([&all](std::string_view bytes) { all.append(bytes); });
    const std::filesystem::path path = TemporaryFile(name);
    for (auto _ : state) WriteFileBytes(path, all);
}

void FloorWritePage(benchmark::State& state) {
    WriteSameBytes(state, kPage, "floor.htm");
}
BENCHMARK(FloorWritePage)->Unit(benchmark::kMillisecond)->UseRealTime();

void ExportPage(benchmark::State& state) {
    Export(state, kPage, "page.htm", "FloorWritePage");
}
BENCHMARK(ExportPage)->Unit(benchmark::kMillisecond)->UseRealTime();

void FloorWriteTextList(benchmark::State& state) {
    WriteSameBytes(state, kTextList, "floor.txt");
}
BENCHMARK(FloorWriteTextList)->Unit(benchmark::kMillisecond)->UseRealTime();

void ExportTextList(benchmark::State& state) {
    Export(state, kTextList, "list.txt", "FloorWriteTextList");
}
BENCHMARK(ExportTextList)->Unit(benchmark::kMillisecond)->UseRealTime();

// The same files, one after the other.
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
