// Reads any bytes as a page and compares the links with those of a second reader, which is written to be
// simple.

#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/Book.h"
#include "faults/Faults.h"
#include "import/HtmlLinks.h"
#include "import/PageText.h"
#include "text/BookText.h"
#include "text/Latin2.h"
#include "text/Utf8.h"

namespace lindrel {
namespace {

constexpr std::size_t kNowhere = std::u32string::npos;

void Require(bool good) {
    if (!good) std::abort();
}

// A text in which each unit is a byte of book text, or a character that a book cannot hold, marked.
using Units = std::u32string;
constexpr char32_t kForeign = 0x1000000;
constexpr char32_t kInLowerCase = 0x2000000;

Units UnitsOf(std::string_view bytes, TextEncoding encoding) {
    Units units;
    while (!bytes.empty()) {
        char32_t character = CharacterOf(bytes.front());
        std::size_t length = 1;
        if (encoding == TextEncoding::Latin2 && static_cast<unsigned char>(bytes.front()) >= 0xA0)
            character = Latin2Character(bytes.front());
        if (encoding == TextEncoding::Utf8) {
            const auto found = FirstUtf8Character(bytes);
            character = found ? found->Value : U'?';
            length = found ? found->Length : 1;
        }
        const auto byte = BookByte(character);
        units.push_back(byte ? static_cast<unsigned char>(*byte) : kForeign + character);
        bytes.remove_prefix(length);
    }
    return units;
}

Units Lower(Units units) {
    for (char32_t& unit : units)
        unit = unit < kForeign ? static_cast<unsigned char>(LowerCase(static_cast<char>(unit)))
                               : unit | kInLowerCase;
    return units;
}

std::string NameOf(const Units& units) {
    std::string name;
    for (const char32_t unit : units) name.push_back(unit < kForeign ? static_cast<char>(unit) : '?');
    return name;
}

std::string AddressOf(const Units& units) {
    std::string address;
    for (const char32_t unit : units) {
        const std::string escape =
            unit < kForeign ? std::string(1, static_cast<char>(unit)) : PercentEncoded(unit & (kForeign - 1));
        address += unit < kInLowerCase ? escape : LowerCase(escape);
    }
    return address;
}

std::vector<Units> LinesOf(const Units& page) {
    std::vector<Units> lines;
    Units line;
    bool begun = false;
    for (std::size_t i = 0; i < page.size(); ++i) {
        if (page[i] != U'\r' && page[i] != U'\n') {
            line.push_back(page[i]);
            begun = true;
            continue;
        }
        if (page[i] == U'\r' && i + 1 < page.size() && page[i + 1] == U'\n') ++i;
        lines.push_back(line);
        line.clear();
        begun = false;
    }
    if (begun) lines.push_back(line);
    return lines;
}

NewEntry PlainLink(const Units& chunk) {
    const std::size_t quote = chunk.find(U'"');
    if (quote == kNowhere) throw ArgumentFault();
    if (quote + 1 > 255) throw OverflowFault();
    const std::size_t end_of_tag = chunk.find(U'>', quote);
    Units name = end_of_tag == kNowhere ? chunk : chunk.substr(end_of_tag + 1);
    if (name.find(U'<') != kNowhere) {
        const std::size_t closing = name.find(U"</");
        if (closing == kNowhere) return {"ismeretlen", AddressOf(chunk.substr(0, quote))};
        if (closing + 1 > 255) throw OverflowFault();
        name.resize(closing);
        while (name.find(U'>') != kNowhere) name.erase(0, name.find(U'>') + 1);
    }
    if (name.size() >= 56) name.resize(55);
    return {NameOf(name), AddressOf(chunk.substr(0, quote))};
}

std::vector<NewEntry> PlainLinks(const Units& page, LinkChoice choice) {
    const std::vector<Units> lines = LinesOf(page);
    std::vector<NewEntry> links;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const Units line = Lower(lines[at]);
        for (std::size_t place = line.find(U"a href=\""); place != kNowhere;
             place = line.find(U"a href=\"", place)) {
            const std::size_t start = place + 8;
            Units chunk;
            place = line.find(U"</a", start);
            if (place != kNowhere) {
                chunk = line.substr(start, place - start);
            } else {
                chunk = line.substr(start);
                std::size_t closing = 0;
                do {
                    if (++at == lines.size()) throw EndOfFileFault();
                    closing = Lower(lines[at]).find(U"</a");
                    const bool closes = closing != kNowhere && closing != 0;
                    chunk += U" " + (closes ? lines[at].substr(0, closing + 4) : lines[at]);
                } while (closing == kNowhere || closing == 0);
                place = line.size();
            }
            if (choice == LinkChoice::Online && (chunk.size() < 2 || chunk.find(U"://", 2) == kNowhere))
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
    Require(name.size() <= 55 && address.size() <= 254 * std::string_view("%F0%9F%98%80").size());
    Require(address.find('"') == kNowhere);
    Require((name + address).find_first_of("\r\n") == kNowhere);
}

}  // namespace
}  // namespace lindrel

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace lindrel;
    const TextFile page = TextOfPage({data, data + size});
    const Units units = UnitsOf(page.Text(), page.Encoding);
    for (const LinkChoice choice : {LinkChoice::Online, LinkChoice::All}) {
        const auto outcome = Outcome([&] { return LinksOfPage(page.Text(), page.Encoding, choice); });
        for (const NewEntry& link : outcome.first) CheckText(link.SiteName, link.URL);
        Require(outcome == Outcome([&] { return PlainLinks(units, choice); }));
    }
    return 0;
}
