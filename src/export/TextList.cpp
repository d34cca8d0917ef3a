#include "export/TextList.h"

#include <cstddef>
#include <string_view>

#include "book/PerCategory.h"
#include "export/ExportedEntries.h"

namespace lindrel {

namespace {

// Division signs and a degree sign, as book text.
constexpr std::string_view kHeaderStart = "\xF7\xF7\xF7\xF7\xF7< ";
constexpr std::string_view kNameStart = "\xB0 ";
constexpr std::string_view kAddressStart = "  ";
constexpr std::string_view kLineEnd = "\r\n";
// Characters of a name and the dashes after it: all headers have the same length.
constexpr std::size_t kHeaderRest = 120;

}  // namespace

TextList TextListOf(const Book& book) {
    TextList list;
    for (int c = 1; c <= kCategories; ++c) {
        if (!IsExported(book, c)) continue;
        const std::string& name = book.CategoryNames(c);
        list.Complete = name.size() <= kHeaderRest;
        if (!list.Complete) break;
        list.Text.append(kHeaderStart).append(name).append(kHeaderRest - name.size(), '-').append(kLineEnd);
        for (const int e : ExportedEntries(book, c)) {
            const AddressEntry& entry = book.Entry(e);
            list.Text.append(kNameStart).append(entry.SiteName).append(kLineEnd);
            list.Text.append(kAddressStart).append(entry.URL).append(kLineEnd);
        }
    }
    return list;
}

}  // namespace lindrel
