// Importing a large web page.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "bench/SampleBook.h"
#include "book/Book.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "import/HtmlLinks.h"
#include "import/PageEncoding.h"
#include "text/TextFile.h"

namespace lindrel::bench {
namespace {

constexpr int kLinks = 16384;
constexpr std::size_t kBytes = 5U << 20U;

// A page of about 5 MB in UTF-8, with paragraphs between the links.
std::string LargePage(const std::string& line_end, const std::string& closing_tag) {
    const std::string paragraph =
        "<p class=\"leiras\">Műsorok, hírek, időjárás: minden egy helyen.</p>" + line_end;
    std::string page = "<!DOCTYPE html><html><head><title>Lapok</title></head><body>" + line_end;
    for (int link = 1; link <= kLinks; ++link) {
        const std::string number = std::to_string(link);
        page += "<dt><a href=\"http://www.lap-" + number + ".hu/index.html\" class=\"kedvenc\"><b>Műsor ";
        page += number + "</b>" + closing_tag + line_end;
        const std::size_t share = kBytes / kLinks * static_cast<std::size_t>(link);
        while (page.size() < share) page += paragraph;
    }
    return page + "</body></html>" + line_end;
}

std::string InWindows1250(std::string_view utf8) {
    return std::string(DecodedText(utf8, TextEncoding::Utf8).Text());
}

// Floor of importing: grep for the links. It writes to a file, since it stops at the first match when it
// writes to the null device.
void FloorGrep(benchmark::State& state) {
    const std::filesystem::path page = TemporaryFile("lap.htm");
    WriteFileBytes(page, InWindows1250(LargePage("\r\n", "</a>")));
    const std::string command = "LC_ALL=C grep -o 'a href=\"[^\"]*\"' '" + page.string() + "' >'" +
                                TemporaryFile("found.txt").string() + "'";
    for (auto _ : state)
        if (std::system(command.c_str()) != 0) throw std::runtime_error("grep does not run");
}
BENCHMARK(FloorGrep)->Unit(benchmark::kMillisecond)->UseRealTime();

void Import(benchmark::State& state, const std::string& page, int links) {
    const std::filesystem::path path = TemporaryFile("lap.htm");
    WriteFileBytes(path, page);
    for (auto _ : state) {
        Book book;
        try {
            const TextFile text = TextOfPage(ReadFileBytes(path));
            book.AddEntry(1, LinksOfPage(text.Text(), text.Encoding, LinkChoice::Online));
        } catch (const EndOfFileFault&) {
            // An anchor that is not closed: there are no links then.
        }
        if (book.EntryCount() != links) throw std::runtime_error("not the links of the page");
    }
    state.SetLabel("FloorGrep");
}

void ImportPage(benchmark::State& state) {
    Import(state, InWindows1250(LargePage("\r\n", "</a>")), kLinks);
}
BENCHMARK(ImportPage)->Unit(benchmark::kMillisecond)->UseRealTime();

void ImportUtf8Page(benchmark::State& state) {
    Import(state, LargePage("\r\n", "</a>"), kLinks);
}
BENCHMARK(ImportUtf8Page)->Unit(benchmark::kMillisecond)->UseRealTime();

void ImportPageOfCarriageReturns(benchmark::State& state) {
    Import(state, LargePage("\r", "</a>"), kLinks);
}
BENCHMARK(ImportPageOfCarriageReturns)->Unit(benchmark::kMillisecond)->UseRealTime();

void ImportPageOfOneLine(benchmark::State& state) {
    Import(state, LargePage(" ", "</a>"), kLinks);
}
BENCHMARK(ImportPageOfOneLine)->Unit(benchmark::kMillisecond)->UseRealTime();

void ImportPageWithoutClosingTags(benchmark::State& state) {
    Import(state, LargePage("\r\n", ""), 0);
}
BENCHMARK(ImportPageWithoutClosingTags)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace lindrel::bench
