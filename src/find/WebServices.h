// The web search services of the search box, with their addresses.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "faults/Faults.h"

namespace lindrel {

struct WebService {
    std::wstring_view Name;    // in the drop-down list
    std::wstring_view Prefix;  // the address up to the words searched for
};

// In the order of the drop-down list. The first, empty one stands for a search in the book.
inline constexpr std::array<WebService, 6> kWebServices{{
    {L"", L""},
    {L"AltaVista", L"https://search.yahoo.com/search?fr=altavista&p="},
    {L"Lycos", L"https://search.lycos.com/web/?q="},
    {L"Excite", L"http://search.excite.com/search.gw?searchType=Concept&search="},
    {L"Yahoo", L"https://search.yahoo.com/search?p="},
    {L"Altavizsla - hu!", L"https://www.altavizsla.hu/search?q="},
}};

// The address of a service's results (1..5; RangeFault otherwise). The text is appended exactly as typed,
// blanks and accented letters included, because the shell and the browser encode it.
inline std::wstring ServiceAddress(int service, std::wstring_view text) {
    if (service < 1 || service >= static_cast<int>(kWebServices.size())) throw RangeFault();
    return std::wstring(kWebServices[static_cast<std::size_t>(service)].Prefix).append(text);
}

}  // namespace lindrel
