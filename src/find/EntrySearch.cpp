#include "find/EntrySearch.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include "book/PerCategory.h"
#include "text/Ascii.h"

namespace lindrel {

namespace {

// nullopt if the text has a character that a book cannot hold.
std::optional<CaselessNeedle> NeedleOf(std::wstring_view typed) {
    if (FirstForeignCharacter(typed)) return std::nullopt;
    return CaselessNeedle(ToBookText(typed));
}

}  // namespace

bool CarriesEnding(std::string_view url, const CaselessNeedle& ending) {
    constexpr std::string_view kWebHost = "http://www";
    constexpr std::size_t kAfterWebHost = kWebHost.size() + 1;
    constexpr std::size_t kAfterScheme = 4;
    const bool on_web_host = url.starts_with(kWebHost) || StartsWithAsciiCaseless(url, kWebHost);
    return ending.FindIn(url, on_web_host ? kAfterWebHost : kAfterScheme) != std::string_view::npos;
}

Hits FindEntries(const Book& book, std::wstring_view what, std::wstring_view ending) {
    const std::optional<CaselessNeedle> name_part = NeedleOf(what);
    const std::optional<CaselessNeedle> url_part = NeedleOf(L"." + std::wstring(ending));
    if (!name_part || !url_part) return {};
    const CaselessNeedle* const url_needle = ending.empty() ? nullptr : &*url_part;
    Hits hits{.Items = {}, .Texts = book.Texts()};
    // All at once: growing would copy the hits again and again. Memory costs nothing until it is used.
    hits.Items.reserve(static_cast<std::size_t>(std::min(book.EntryCount(), book.UpperBound())));
    for (int category = 1; category <= kCategories; ++category) {
        int index = book.CategoryStarts(category);
        for (const AddressEntry& entry : book.Entries(index, book.StoredCount(category))) {
            if (name_part->IsIn(entry.SiteName) &&
                (url_needle == nullptr || CarriesEnding(entry.URL, *url_needle)))
                hits.Items.push_back({index, category, entry});
            ++index;
        }
    }
    return hits;
}

void FindInCategory(const Book& book, std::wstring_view text, int category, std::int16_t& position) {
    const std::optional<CaselessNeedle> needle = NeedleOf(text);
    int found = 0;
    for (int next = position + 1; needle && found == 0 && next <= book.StoredCount(category); ++next)
        if (needle->IsIn(book.SiteNames(book.IndexOf(category, next)))) found = next;
    position = static_cast<std::int16_t>(found);
}

}  // namespace lindrel
