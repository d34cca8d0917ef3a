#include "find/WebServices.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "faults/Faults.h"

namespace lindrel {
namespace {

TEST(WebServicesTest, SixChoicesTheFirstEmpty) {
    std::vector<std::wstring_view> names;
    for (const WebService& service : kWebServices) names.push_back(service.Name);
    EXPECT_EQ(names, (std::vector<std::wstring_view>{L"", L"AltaVista", L"Lycos", L"Excite", L"Yahoo",
                                                     L"Altavizsla - hu!"}));
}

TEST(WebServicesTest, TheTextFollowsThePrefixAsTyped) {
    EXPECT_EQ(ServiceAddress(3, L"két szó"),
              L"http://search.excite.com/search.gw?searchType=Concept&search=két szó");
    EXPECT_EQ(ServiceAddress(4, L"ŰR & 100% +?#"), L"https://search.yahoo.com/search?p=ŰR & 100% +?#");
}

TEST(WebServicesTest, EveryServiceHasAWebAddressOfItsOwn) {
    std::set<std::wstring> prefixes;
    for (int service = 1; service <= 5; ++service) {
        const std::wstring prefix = ServiceAddress(service, L"");
        EXPECT_TRUE(prefix.starts_with(service == 3 ? L"http://" : L"https://")) << service;
        EXPECT_TRUE(prefix.ends_with(L'=')) << service;
        EXPECT_TRUE(prefixes.insert(prefix).second) << service;
    }
    for (const int service : {-1, 0, 6}) EXPECT_THROW(ServiceAddress(service, L"x"), RangeFault);
}

}  // namespace
}  // namespace lindrel
