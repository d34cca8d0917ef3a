#include "export/TextList.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "book/PerCategory.h"
#include "export/ExportedEntries.h"
#include "faults/Faults.h"

namespace lindrel {

namespace {

// Division signs and a degree sign, as book text.
constexpr std::string_view kHeaderStart = "\xF7\xF7\xF7\xF7\xF7< ";
constexpr std::string_view kNameStart = "\xB0 ";
constexpr std::string_view kAddressStart = "  ";
constexpr std::string_view kLineEnd = "\r\n";
// Length of the name with the dashes after it. All headers have the same length.
constexpr std::size_t kHeaderRest = 120;

}  // namespace

void WriteTextList(const Book& book, const ByteSink& out) {
    std::string lines;
    const auto hand_out = [&](std::size_t from_size) {
        if (lines.size() < from_size) return;
        out(lines);
        lines.clear();
    };
    for (int c = 1; c <= kCategories; ++c) {
        if (!IsExported(book, c)) continue;
        const std::string& name = book.CategoryNames(c);
        if (name.size() > kHeaderRest) throw ArgumentFault();
        lines.append(kHeaderStart).append(name).append(kHeaderRest - name.size(), '-').append(kLineEnd);
        for (const int e : ExportedEntries(book, c)) {
            const AddressEntry& entry = book.Entry(e);
            lines.append(kNameStart).append(entry.SiteName).append(kLineEnd);
            lines.append(kAddressStart).append(entry.URL).append(kLineEnd);
            hand_out(kGoodPiece);
        }
        hand_out(0);
    }
}

}  // namespace lindrel
