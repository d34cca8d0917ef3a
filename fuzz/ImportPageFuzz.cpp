// Reads any bytes as a page, and compares the links of pages in a plain model with those of a second reader,
// which is written to be simple.

#include <string>
#include <utility>
#include <vector>

#include "book/Book.h"
#include "fuzz/PlainText.h"
#include "import/HtmlLinks.h"
#include "import/PageEncoding.h"

namespace lindrel::fuzz {
namespace {

using Links = std::vector<NewEntry>;
constexpr std::size_t kNowhere = std::string::npos;

NewEntry PlainLink(const std::string& chunk) {
    const std::size_t quote = chunk.find('"');
    if (quote == kNowhere) throw ArgumentFault();
    if (quote + 1 > 255) throw OverflowFault();
    const std::string address = AddressOf(chunk.substr(0, quote));
    const std::size_t end_of_tag = chunk.find('>', quote);
    std::string name = end_of_tag == kNowhere ? chunk : chunk.substr(end_of_tag + 1);
    if (name.find('<') != kNowhere) {
        const std::size_t closing = name.find("</");
        if (closing == kNowhere) return {"ismeretlen", address};
        if (closing + 1 > 255) throw OverflowFault();
        name.resize(closing);
        while (name.find('>') != kNowhere) name.erase(0, name.find('>') + 1);
    }
    if (name.size() >= 56) name.resize(55);
    return {Masked(name, '?'), address};
}

Links PlainLinks(const std::string& page, LinkChoice choice) {
    const std::vector<std::string> lines = LinesOf(page);
    Links links;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const std::string line = Lower(lines[at]);
        for (std::size_t offset = line.find("a href=\""); offset != kNowhere;
             offset = line.find("a href=\"", offset)) {
            const std::size_t start = offset + 8;
            offset = line.find("</a", start);
            std::string chunk = line.substr(start, offset - start);
            if (offset == kNowhere) {
                std::size_t closing = 0;
                do {
                    if (++at == lines.size()) throw EndOfFileFault();
                    closing = Lower(lines[at]).find("</a");
                    if (closing == 0) closing = kNowhere;
                    chunk += " " + lines[at].substr(0, closing == kNowhere ? closing : closing + 4);
                } while (closing == kNowhere);
            }
            const bool online = chunk.size() >= 2 && chunk.find("://", 2) != kNowhere;
            if (choice == LinkChoice::All || online) links.push_back(PlainLink(chunk));
            if (links.size() > 32766) throw OverflowFault();
        }
    }
    return links;
}

auto LinksIn(const std::string& file, LinkChoice choice) {
    return Outcome([&] {
        const TextFile page = TextOfPage({file.begin(), file.end()});
        return LinksOfPage(page.Text(), page.Encoding, choice);
    });
}

auto MaskedLinks(const std::string& page, TextEncoding encoding, LinkChoice choice) {
    auto outcome = Outcome([&] { return LinksOfPage(page, encoding, choice); });
    for (NewEntry& link : outcome.first) link = {Masked(link.SiteName, '?'), Masked(link.URL, '?')};
    return outcome;
}

void CheckTexts(const Links& links) {
    Require(links.size() <= 32766);
    for (const NewEntry& link : links) {
        Require(link.SiteName.size() <= 55);
        Require(link.URL.size() <= 254 * std::string("%F0%9F%98%80").size());
        Require(link.URL.find('"') == kNowhere);
        Require((link.SiteName + link.URL).find_first_of("\r\n") == kNowhere);
    }
}

}  // namespace
}  // namespace lindrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace lindrel;
    using namespace lindrel::fuzz;
    const std::string bytes(data, data + size);
    const std::string plain = Masked(bytes, kForeign);
    for (const LinkChoice choice : {LinkChoice::Online, LinkChoice::All}) {
        CheckTexts(LinksIn(bytes, choice).first);
        const auto expected = Outcome([&] { return PlainLinks(plain, choice); });
        Require(LinksIn(InUtf8(plain), choice) == expected);
        for (const bool big_endian : {false, true})
            Require(LinksIn(InUtf16(plain, big_endian), choice) == expected);
        const auto masked = Outcome([&] { return PlainLinks(Masked(bytes, '?'), choice); });
        for (const TextEncoding encoding : {TextEncoding::Windows1250, TextEncoding::Latin2})
            Require(MaskedLinks(bytes, encoding, choice) == masked);
    }
    return 0;
}
