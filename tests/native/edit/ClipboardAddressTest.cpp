#include "edit/ClipboardAddress.h"

#include <gtest/gtest.h>

#include <optional>

namespace lindrel {
namespace {

TEST(ClipboardAddressTest, TakesAnythingWithAWebAddressAsItIs) {
    EXPECT_EQ(AddressFromClipboard(L"http://a.hu"), L"http://a.hu");
    EXPECT_EQ(AddressFromClipboard(L"  HTTP://A.hu/x y  "), L"HTTP://A.hu/x y");
    EXPECT_EQ(AddressFromClipboard(L"Nézd meg: http://a.hu jó!"), L"Nézd meg: http://a.hu jó!");
    EXPECT_EQ(AddressFromClipboard(L"https://a.hu"), L"https://a.hu");
    EXPECT_EQ(AddressFromClipboard(L"HttpS://www.a.hu"), L"HttpS://www.a.hu");
}

TEST(ClipboardAddressTest, CompletesAHostName) {
    EXPECT_EQ(AddressFromClipboard(L"  WWW.Lap.HU "), L"http://WWW.Lap.HU");
    EXPECT_EQ(AddressFromClipboard(L"lásd www.a.hu"), L"http://lásd www.a.hu");
}

TEST(ClipboardAddressTest, TheOrderOfTheTestsDecides) {
    EXPECT_EQ(AddressFromClipboard(L"ftp://a.hu és http://b.hu"), L"ftp://a.hu és http://b.hu");
    EXPECT_EQ(AddressFromClipboard(L"ftp://www.a.hu"),
              L"http://ftp://www.a.hu");  // "www." comes before "ftp:"
    EXPECT_EQ(AddressFromClipboard(L"FTP://a.hu"), L"FTP://a.hu");
    EXPECT_EQ(AddressFromClipboard(L"ftp://ki@a.hu"), L"ftp://ki@a.hu");
    EXPECT_EQ(AddressFromClipboard(L"ki@www.a.hu"), L"http://ki@www.a.hu");
}

TEST(ClipboardAddressTest, CompletesAMailAddress) {
    EXPECT_EQ(AddressFromClipboard(L" ki@a.hu "), L"mailto:ki@a.hu");
    EXPECT_EQ(AddressFromClipboard(L"MAILTO:ki@a.hu"), L"MAILTO:ki@a.hu");
    EXPECT_EQ(AddressFromClipboard(L"mailto:"), std::nullopt);
}

TEST(ClipboardAddressTest, PlainWordsAndNothingAreNoAddress) {
    EXPECT_EQ(AddressFromClipboard(L""), std::nullopt);
    EXPECT_EQ(AddressFromClipboard(L"   "), std::nullopt);
    EXPECT_EQ(AddressFromClipboard(L"árvíztűrő tükörfúrógép"), std::nullopt);
    EXPECT_EQ(AddressFromClipboard(L"www a.hu"), std::nullopt);
}

TEST(ClipboardAddressTest, LineBreaksCountAsBlanks) {
    EXPECT_EQ(AddressFromClipboard(L"\r\n http://a.hu\r\n"), L"http://a.hu");
    EXPECT_EQ(AddressFromClipboard(L"a\r\nwww.b.hu\rc\nd\n\re"), L"http://a www.b.hu c d  e");
    EXPECT_EQ(AddressFromClipboard(L"cím:\nhttp://a.hu"), L"cím: http://a.hu");
}

}  // namespace
}  // namespace lindrel
