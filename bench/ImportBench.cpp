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

constexpr char kLineEnd[] = "\r\n";
constexpr char kClosingTag[] = "</a>";

// A page of about 5 MB, with paragraphs between the links.
std::string LargePage(const std::string& line_end, const std::string& closing_tag, TextEncoding encoding) {
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
    page += "</body></html>" + line_end;
    if (encoding == TextEncoding::Utf8) return page;
    return std::string(DecodedText(page, TextEncoding::Utf8).Text());
}

// Floor of importing: grep for the links. It writes to a file, since it stops at the first match when it
// writes to the null device.
void FloorGrep(benchmark::State& state) {
    const std::filesystem::path page = TemporaryFile("lap.htm");
    WriteFileBytes(page, LargePage(kLineEnd, kClosingTag, TextEncoding::Windows1250));
    const std::string command = "LC_ALL=C grep -o 'a href=\"[^\"]*\"' '" + page.string() + "' >'" +
                                TemporaryFile("found.txt").string() + "'";
    for (auto _ : state)
        if (std::system(command.c_str()) != 0) throw std::runtime_error("grep does not run");
}
BENCHMARK(FloorGrep)->Unit(benchmark::kMillisecond)->UseRealTime();

void Import(benchmark::State& state, const char* line_end, const char* closing_tag, TextEncoding encoding) {
    const std::filesystem::path path = TemporaryFile("lap.htm");
    WriteFileBytes(path, LargePage(line_end, closing_tag, encoding));
    const int expected = *closing_tag == '\0' ? 0 : kLinks;
    for (auto _ : state) {
        Book book;
        try {
            const TextFile page = TextOfPage(ReadFileBytes(path));
            book.AddEntry(1, LinksOfPage(page.Text(), page.Encoding, LinkChoice::Online));
        } catch (const EndOfFileFault&) {
            // An anchor is not closed: there are no links then.
        }
        if (book.EntryCount() != expected) throw std::runtime_error("not the links of the page");
    }
    state.SetLabel("FloorGrep");
}

// A page in Windows-1250 and one in UTF-8; pages on which a search for a line end or a closing tag could go
// on to the end of the page again and again.
#define IMPORT(name, ...) \
    BENCHMARK_CAPTURE(Import, name, __VA_ARGS__)->Name(#name)->Unit(benchmark::kMillisecond)->UseRealTime()
IMPORT(ImportPage, kLineEnd, kClosingTag, TextEncoding::Windows1250);
IMPORT(ImportUtf8Page, kLineEnd, kClosingTag, TextEncoding::Utf8);
IMPORT(ImportPageOfCarriageReturns, "\r", kClosingTag, TextEncoding::Windows1250);
IMPORT(ImportPageOfOneLine, " ", kClosingTag, TextEncoding::Windows1250);
IMPORT(ImportPageWithoutClosingTags, kLineEnd, "", TextEncoding::Windows1250);

}  // namespace
}  // namespace lindrel::bench
