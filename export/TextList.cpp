#include "export/TextList.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "book/Faults.h"
#include "book/PerCategory.h"
#include "export/ExportedEntries.h"

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
    for (int c = 1; c <= kCategories; ++c) {
        if (!IsExported(book, c)) continue;
        const std::string& name = book.CategoryNames(c);
        if (name.size() > kHeaderRest) throw ArgumentFault();
        std::string lines;
        lines.append(kHeaderStart).append(name).append(kHeaderRest - name.size(), '-').append(kLineEnd);
        for (const int e : ExportedEntries(book, c)) {
            lines.append(kNameStart).append(book.SiteNames(e)).append(kLineEnd);
            lines.append(kAddressStart).append(book.SiteURLs(e)).append(kLineEnd);
        }
        out(lines);
    }
}

}  // namespace lindrel
