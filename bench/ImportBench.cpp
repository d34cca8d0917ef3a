// Importing a large web page.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "bench/SampleBook.h"
#include "book/Book.h"
#include "files/Files.h"
#include "import/HtmlLinks.h"
#include "import/PageEncoding.h"
#include "text/TextFile.h"

extern char** environ;

namespace lindrel::bench {
namespace {

constexpr int kLinks = 16384;
constexpr std::size_t kBytes = 5U << 20U;

// A page of about 5 MB in UTF-8, with paragraphs between the links.
std::string LargePage() {
    constexpr std::string_view kParagraph =
        "<p class=\"leiras\">Műsorok, hírek, időjárás: minden egy helyen.</p>\r\n";
    std::string page = "<!DOCTYPE html>\r\n<html><head><title>Lapok</title></head><body>\r\n";
    for (int link = 1; link <= kLinks; ++link) {
        const std::string number = std::to_string(link);
        page.append("<dt><a href=\"http://www.lap-")
            .append(number)
            .append(".hu/index.html\" class=\"kedvenc\"><b>Műsor ");
        page.append(number).append("</b></a>\r\n");
        const std::size_t share = kBytes / kLinks * static_cast<std::size_t>(link);
        while (page.size() < share) page.append(kParagraph);
    }
    return page.append("</body></html>\r\n");
}

const std::filesystem::path& Utf8Page() {
    static const std::filesystem::path path = [] {
        const std::filesystem::path file = TemporaryFile("utf8.htm");
        WriteFileBytes(file, LargePage());
        return file;
    }();
    return path;
}

// The same page in Windows-1250.
const std::filesystem::path& AnsiPage() {
    static const std::filesystem::path path = [] {
        const std::filesystem::path file = TemporaryFile("ansi.htm");
        const std::string utf8 = LargePage();
        WriteFileBytes(file, DecodedText(utf8, TextEncoding::Utf8).Text());
        return file;
    }();
    return path;
}

// Floor of importing: grep for the links. It writes to a file, since it stops at the first match when it
// writes to the null device.
void FloorGrep(benchmark::State& state) {
    const std::string path = AnsiPage().string();
    posix_spawn_file_actions_t actions;
    const std::string output = TemporaryFile("found.txt").string();
    if (posix_spawn_file_actions_init(&actions) != 0 ||
        posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600) !=
            0)
        throw std::runtime_error("grep cannot be started");
    std::array<std::string, 5> arguments = {"env", "LC_ALL=C", "grep", "-o", "a href=\"[^\"]*\""};
    std::array<char*, 7> list{};
    for (std::size_t i = 0; i < arguments.size(); ++i) list.at(i) = arguments.at(i).data();
    std::string file = path;
    list.at(5) = file.data();
    for (auto _ : state) {
        pid_t process = 0;
        int status = 0;
        if (posix_spawnp(&process, "env", &actions, nullptr, list.data(), environ) != 0 ||
            waitpid(process, &status, 0) != process || status != 0)
            throw std::runtime_error("grep does not run");
    }
    posix_spawn_file_actions_destroy(&actions);
}
BENCHMARK(FloorGrep)->Unit(benchmark::kMillisecond)->UseRealTime();

void Import(benchmark::State& state, const std::filesystem::path& path) {
    for (auto _ : state) {
        const TextFile page = TextOfPage(ReadFileBytes(path));
        Book book;
        book.AddEntry(1, LinksOfPage(page.Text(), page.Encoding, LinkChoice::Online));
        if (book.EntryCount() != kLinks) throw std::runtime_error("links are missing");
    }
    state.SetLabel("FloorGrep");
}

void ImportPage(benchmark::State& state) {
    Import(state, AnsiPage());
}
BENCHMARK(ImportPage)->Unit(benchmark::kMillisecond)->UseRealTime();

void ImportUtf8Page(benchmark::State& state) {
    Import(state, Utf8Page());
}
BENCHMARK(ImportUtf8Page)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace lindrel::bench
