// What opening an address would do, also when it was written to deceive.

#include "system/AddressKind.h"

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace lindrel {
namespace {

std::string Shown(std::wstring_view address) {
    std::string shown;
    for (const wchar_t character : address)
        shown += character >= L' ' && character < 0x7f ? static_cast<char>(character) : '.';
    return shown.substr(0, 100);
}

void ExpectAll(AddressKind kind, const std::vector<std::wstring>& addresses) {
    for (const std::wstring& address : addresses) EXPECT_EQ(Classify(address), kind) << Shown(address);
}

TEST(AddressKindTest, WebAndMailAddressesAreKnownByTheirSchemes) {
    ExpectAll(
        AddressKind::Web,
        {L"http://pelda.hu", L"https://pelda.hu/a.exe", L"HTTPS://PELDA.HU/", L"ftp://ftp.pelda.hu/setup.exe",
         L"mailto:nev@pelda.hu", L"MailTo:nev@pelda.hu?subject=a", L"  http://pelda.hu  ",
         L"http://pelda.hu/keres?q=\"két szó\" -egy", L"http:\\\\pelda.hu\\a", L"http://", L"http:",
         L"http://pelda.hu/../../x.exe", L"https://pelda.hu:8080/%2e%2e/x?file:///c:/x.exe#javascript:"});
}

TEST(AddressKindTest, WhatBeginsWithWwwIsAWebAddressUnlessItLeadsToAFile) {
    ExpectAll(AddressKind::Web,
              {L"www.pelda.hu", L"WWW.Pelda.Hu/a.exe", L"www.pelda.hu:8080/a", L" www.pelda.com"});
    ExpectAll(AddressKind::Unsure, {L"www.x\\..\\evil.exe", L"www.x/../../evil.exe", L"www.x\\evil.exe",
                                    L"www", L"wwww.pelda.hu"});
}

TEST(AddressKindTest, DocumentsAndFoldersOfThisMachineArePaths) {
    ExpectAll(
        AddressKind::Document,
        {L"C:\\nincs ilyen\\fájl.html", L"c:/kep.jpg", L"C:level.doc", L"D:\\mappa\\", L"D:\\", L"d:/",
         L"\\mappa\\a.txt", L"/mappa/a.txt", L"mappa\\a.txt", L"..\\a.txt", L"C:\\a\\..\\b.txt",
         L"C:\\oldal.com\\index.html", L"C:\\a.exe\\b.txt", L"C:\\100%-os terv.pdf", L"C:\\egy.kettő.htm",
         L"C:\\kép.jpg ", L"C:\\kép.jpg.", L"C:\\Bő Ő.txt", L"pelda.hu/index.html"});
}

TEST(AddressKindTest, FileAddressesArePathsToo) {
    ExpectAll(AddressKind::Document, {L"file:///C:/a.html", L"FILE:///c:/a%20b.html", L"file:///C|/a.html",
                                      L"file://C:/a.html", L"file:/C:/a.html", L"file:C:\\a.html",
                                      L"file:///C:/a.html#fejezet", L"file:\\\\\\C:\\a.txt"});
}

TEST(AddressKindTest, ProgramsAreKnownByTheirExtensions) {
    std::wistringstream list(
        LR"(C:\x.exe C:\X.EXE x.exe C:x.exe mappa/x.bat ..\x.cmd C:\x.hta C:\x.com C:\x.scr C:\x.pif C:\x.msi)"
        LR"( C:\x.lnk C:\x.vbs C:\x.js C:\x.ps1 C:\x.reg C:\x.url C:\x.iso C:\x.settingcontent-ms)"
        LR"( file:///C:/x.exe file:///C|/x.exe file:C:/x.exe FiLe:///c:/X.eXe \x.exe /x.exe)");
    ExpectAll(AddressKind::Unsure, {std::istream_iterator<std::wstring, wchar_t>(list), {}});
    ExpectAll(AddressKind::Unsure, {L"C:\\számla.pdf.exe"});
}

TEST(AddressKindTest, WhatTheFileSystemDoesNotSeeAfterANameHidesNoProgram) {
    ExpectAll(AddressKind::Unsure,
              {L"C:\\evil.exe .", L"C:\\evil.exe. . ", L"C:\\evil.exe...", L"  C:\\evil.exe  ",
               L"C:\\evil.exe\\", L"C:\\evil.exe\\.", L"C:\\evil.exe\\x\\..", L"C:\\evil.exe\\x\\.. \\",
               L"C:\\evil.exe/", L"\"C:\\evil.exe\"", L"\"C:\\a.txt\"", L"C:\\evil.exe /a.txt",
               L"C:\\evil.exe a.txt", L"C:\\evil.exe.. a.txt", L"file:///C:/evil.exe.#a.txt",
               L"C:\\evil.exe                              .txt"});
}

TEST(AddressKindTest, EncodingHidesNoProgram) {
    ExpectAll(AddressKind::Unsure,
              {L"file:///c:/x%2Eexe", L"file:///c:/x%2e%65%58e", L"file:///c:/x.exe%20",
               L"file:///c:/x.exe%2e", L"file:///c:/x%252Eexe", L"file:///c:/a.txt%252Eexe",
               L"file:///c:/x.exe%00.txt", L"file:///c:/x.exe#.txt", L"file:///c:/x.exe?.txt",
               L"file:///c%3a/x.exe", L"c:\\x%2eexe", L"file:///%5c%5cserver/a.txt", L"%2f%2fserver/a.txt",
               L"file:///c:/x%45%58%45", L"file:///c:/x%2EEXE"});
}

TEST(AddressKindTest, StreamsAndObjectsOfTheShellAreNoDocuments) {
    ExpectAll(
        AddressKind::Unsure,
        {L"x.exe::$DATA", L"C:\\x.exe::$DATA", L"C:\\a.txt:x.exe", L"C:\\a.txt::$DATA", L"mappa\\a.txt:b.txt",
         L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}", L"C:\\a.{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\b.txt",
         L"shell:startup", L"shell:::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"});
}

TEST(AddressKindTest, NothingOnAnotherMachineIsADocument) {
    ExpectAll(AddressKind::Unsure,
              {L"\\\\server\\share\\a.txt", L"//server/share/a.txt", L"\\/server\\a.txt", L"\\\\?\\C:\\a.txt",
               L"\\\\.\\C:\\a.txt", L"\\??\\C:\\a.txt", L"\\\\server\\share\\", L"file://server/share/a.txt",
               L"file:////server/share/a.txt", L"file://///server/a.txt", L"file:\\\\server\\a.txt",
               L"file://localhost/C:/a.txt", L"file:///a.txt", L"file:", L"file:///", L" \\\\server\\a.txt"});
}

TEST(AddressKindTest, OtherSchemesMayDoAnything) {
    ExpectAll(AddressKind::Unsure,
              {L"javascript:alert(1)", L"JavaScript:x", L"ms-settings:", L"ms-msdt:/id x",
               L"search-ms:query=x", L"vbscript:x", L"telnet://x", L"tel:123", L"about:blank",
               L"data:text/html,x", L"view-source:http://x", L"httpx://pelda.hu", L"http",
               L"x-http://pelda.hu", L"res://x", L"mk:@MSITStore:x", L"a+b-c.d:e"});
}

TEST(AddressKindTest, AWordThatIsNeitherPathNorSchemeMayBeAProgramOfThePath) {
    ExpectAll(AddressKind::Unsure,
              {L"", L" ", L"calc", L"cmd /c dir", L"pelda.hu", L"jegyzet.txt", L"nev@pelda.hu", L"%COMSPEC%",
               L":", L".", L"..", L"C:", L"C:\\Windows\\System32\\calc", L"C:\\Windows\\System32\\calc.",
               L"mappa/calc", L"file:///C:/Windows/System32/calc", L"C", L"1:\\a.txt"});
}

TEST(AddressKindTest, ControlCharactersHideNothing) {
    ExpectAll(AddressKind::Unsure,
              {L"\thttp://pelda.hu", L"\x01http://pelda.hu", L"ht\ttp://pelda.hu", L"\njavascript:x",
               L"C:\\a\t.txt", L"C:\\x.exe\n.txt", std::wstring(L"C:\\x.exe\0.txt", 12), L"C:\\a\x7f.txt",
               L"\xa0http://pelda.hu", L"\tC:\\a.txt"});
}

TEST(AddressKindTest, LengthDoesNotMatter) {
    const std::wstring blanks(100'000, L' ');
    const std::wstring dots(100'000, L'.');
    const std::wstring word(100'000, L'a');
    ExpectAll(AddressKind::Web, {L"http://" + word + L".hu", blanks + L"http://x.hu" + blanks});
    ExpectAll(AddressKind::Document,
              {L"C:\\" + word + L".txt", L"C:\\a" + blanks + L"b.txt" + blanks + dots});
    std::wstring encoded_often = L"file:///C:/a%";
    for (int i = 0; i < 100'000; ++i) encoded_often += L"25";
    ExpectAll(AddressKind::Unsure, {L"C:\\x.exe" + blanks + dots, L"C:\\x.exe" + blanks + L".txt", word,
                                    blanks, dots, encoded_often});
}

TEST(AddressKindTest, ExtensionsAreThoseTheShellMayGoBy) {
    using Extensions = std::vector<std::wstring>;
    EXPECT_EQ(ExtensionsOf(L"C:\\Mappa.old\\Egy.Kettő.TXT"), Extensions{L".txt"});
    EXPECT_EQ(ExtensionsOf(L"file:///C:/a.htm#b.c"), (Extensions{L".htm", L".c"}));
    EXPECT_EQ(ExtensionsOf(L"C:/a.b c.d e%2Exyz . "), (Extensions{L".b", L".d", L".xyz"}));
    EXPECT_EQ(ExtensionsOf(L"C:\\mappa.x y\\a.txt"), (Extensions{L".x", L".txt"}));
    EXPECT_EQ(ExtensionsOf(L"C:\\mappa\\"), Extensions{});
    EXPECT_EQ(ExtensionsOf(L""), Extensions{});
}

TEST(AddressKindTest, AWebAddressWithoutASchemeGetsOne) {
    EXPECT_EQ(ForTheShell(L"www.pelda.hu"), L"http://www.pelda.hu");
    EXPECT_EQ(ForTheShell(L"WWW.Példa.com/a b?c=d#e"), L"http://WWW.Példa.com/a b?c=d#e");
    EXPECT_EQ(ForTheShell(L" www.pelda.hu:8080  "), L"http://www.pelda.hu:8080");
    EXPECT_EQ(ForTheShell(L"www.x\"y\t"), L"http://www.x%22y%09");
}

TEST(AddressKindTest, NothingInAWebAddressEndsAnArgument) {
    EXPECT_EQ(ForTheShell(L"mailto:x\" /switch"), L"mailto:x%22 /switch");
    EXPECT_EQ(ForTheShell(L" HTTP://x/?q=\"két szó\"+%22 "), L" HTTP://x/?q=%22két szó%22+%22 ");
    EXPECT_EQ(ForTheShell(std::wstring(L"https:\0\x01\t\r\n\x1f !", 14)), L"https:%00%01%09%0D%0A%1F !");
    EXPECT_EQ(ForTheShell(L"ftp:~\x7f\x80\x85\x9f\xa0"), L"ftp:~%7F%C2%80%C2%85%C2%9F\xa0");
    EXPECT_EQ(ForTheShell(L"http:\u2027\u2028\u2029\u202a"), L"http:\u2027%E2%80%A8%E2%80%A9\u202a");
    EXPECT_EQ(ForTheShell(L"http://a\\b'%20<>|^&„ő”"), L"http://a\\b'%20<>|^&„ő”");
}

TEST(AddressKindTest, AnyOtherTextGoesToTheShellAsItIs) {
    for (const std::wstring address :
         {L"C:\\a \"b\".txt", L" C:\\Képek\\ő.jpg ", L"file:///C:/a%20b.html", L"x:\"\t\x85",
          L"www.x\\..\\a\".exe", L"www", L"wwww.pelda.hu", L"calc", L""})
        EXPECT_EQ(ForTheShell(address), address) << Shown(address);
}

}  // namespace
}  // namespace lindrel
