// Reads any bytes as a page and compares the links with those of a second reader, which is written to be
// simple.

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "book/Book.h"
#include "book/BookText.h"
#include "book/Faults.h"
#include "import/HtmlLinks.h"
#include "import/PageText.h"

namespace lindrel {
namespace {

constexpr std::size_t kNowhere = std::string::npos;

void Require(bool good) {
    if (!good) std::abort();
}

std::vector<std::string> LinesOf(const std::string& page) {
    std::vector<std::string> lines;
    std::string line;
    bool begun = false;
    for (std::size_t i = 0; i < page.size(); ++i) {
        if (page[i] != '\r' && page[i] != '\n') {
            line.push_back(page[i]);
            begun = true;
            continue;
        }
        if (page[i] == '\r' && i + 1 < page.size() && page[i + 1] == '\n') ++i;
        lines.push_back(line);
        line.clear();
        begun = false;
    }
    if (begun) lines.push_back(line);
    return lines;
}

NewEntry PlainLink(const std::string& chunk) {
    const std::size_t quote = chunk.find('"');
    if (quote == kNowhere) throw ArgumentFault();
    if (quote + 1 > 255) throw OverflowFault();
    const std::size_t end_of_tag = chunk.find('>', quote);
    std::string name = end_of_tag == kNowhere ? chunk : chunk.substr(end_of_tag + 1);
    if (name.find('<') != kNowhere) {
        const std::size_t closing = name.find("</");
        if (closing == kNowhere) return {"ismeretlen", chunk.substr(0, quote)};
        if (closing + 1 > 255) throw OverflowFault();
        name.resize(closing);
        while (name.find('>') != kNowhere) name.erase(0, name.find('>') + 1);
    }
    if (name.size() >= 56) name.resize(55);
    return {name, chunk.substr(0, quote)};
}

std::vector<NewEntry> PlainLinks(const std::string& page, LinkChoice choice) {
    const std::vector<std::string> lines = LinesOf(page);
    std::vector<NewEntry> links;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const std::string line = LowerCase(lines[at]);
        for (std::size_t place = line.find("a href=\""); place != kNowhere;
             place = line.find("a href=\"", place)) {
            const std::size_t start = place + 8;
            std::string chunk;
            place = line.find("</a", start);
            if (place != kNowhere) {
                chunk = line.substr(start, place - start);
            } else {
                chunk = line.substr(start);
                std::size_t closing = 0;
                do {
                    if (++at == lines.size()) throw EndOfFileFault();
                    closing = LowerCase(lines[at]).find("</a");
                    const bool closes = closing != kNowhere && closing != 0;
                    chunk += " " + (closes ? lines[at].substr(0, closing + 4) : lines[at]);
                } while (closing == kNowhere || closing == 0);
                place = line.size();
            }
            if (choice == LinkChoice::Online && (chunk.size() < 2 || chunk.find("://", 2) == kNowhere))
                continue;
            links.push_back(PlainLink(chunk));
            if (links.size() > 32766) throw OverflowFault();
        }
    }
    return links;
}

// The links, or the number of the fault.
template <typename Reader>
std::pair<std::vector<NewEntry>, int> Outcome(Reader reader) {
    try {
        return {reader(), 0};
    } catch (const Fault& fault) {
        return {{}, fault.Number()};
    }
}

void CheckText(const std::string& name, const std::string& address) {
    Require(name.size() <= 55 && address.size() <= 254);
    Require(address.find('"') == kNowhere);
    Require((name + address).find_first_of("\r\n") == kNowhere);
}

}  // namespace
}  // namespace lindrel

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace lindrel;
    const std::vector<char> page = BookTextOfPage({data, data + size});
    Require(page.size() <= size);
    const std::string text(page.begin(), page.end());
    for (const LinkChoice choice : {LinkChoice::Online, LinkChoice::All}) {
        const auto outcome = Outcome([&] { return LinksOfPage({page.data(), page.size()}, choice); });
        for (const NewEntry& link : outcome.first) CheckText(link.SiteName, link.URL);
        Require(outcome == Outcome([&] { return PlainLinks(text, choice); }));
    }
    return 0;
}
