#include "faults/Faults.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <utility>

namespace lindrel {
namespace {

template <typename Exception>
std::pair<int, std::wstring> Report(const Exception& exception) {
    try {
        throw exception;
    } catch (...) {
        const Fault fault = CurrentFault();
        return {fault.Number(), fault.Meaning()};
    }
}

TEST(FaultsTest, EveryExceptionIsAFaultToTheUser) {
    using Expected = std::pair<int, std::wstring>;
    EXPECT_EQ(Report(ArgumentFault()), Expected(5, L"Érvénytelen eljáráshívás vagy argumentum"));
    EXPECT_EQ(Report(OverflowFault()), Expected(6, L"Túlcsordulás"));
    EXPECT_EQ(Report(RangeFault()), Expected(9, L"Az index a tartományon kívül esik"));
    EXPECT_EQ(Report(EndOfFileFault()), Expected(62, L"Olvasás a fájl vége után"));
    EXPECT_EQ(Report(FileFault(L"C:\\a.lnd", L"A hozzáférés megtagadva")),
              Expected(75, L"C:\\a.lnd\r\nA hozzáférés megtagadva"));
    EXPECT_EQ(Report(SystemFault(L"ablak létrehozása (frmStart)", 1410)),
              Expected(1410, L"A Windows ezt nem tudta teljesíteni: ablak létrehozása (frmStart)"));
    EXPECT_EQ(Report(std::bad_alloc()), Expected(7, L"Elfogyott a memória"));
    EXPECT_EQ(Report(std::length_error("too long")), Expected(7, L"Elfogyott a memória"));
    EXPECT_EQ(Report(std::logic_error("never")), Expected(51, L"Belső hiba"));
}

TEST(FaultsTest, WhatAFileCausesIsReportedWithItsPath) {
    using Expected = std::pair<int, std::wstring>;
    const auto report = [](auto exception) {
        try {
            NamingTheFile(L"C:\\a.url", [&] { throw exception; });
        } catch (const FileFault& fault) {
            EXPECT_EQ(fault.Path(), L"C:\\a.url");
            return Report(fault);
        }
        return Expected(0, L"");
    };
    EXPECT_EQ(report(EndOfFileFault()), Expected(62, L"C:\\a.url\r\nOlvasás a fájl vége után"));
    EXPECT_EQ(report(std::bad_alloc()), Expected(7, L"C:\\a.url\r\nElfogyott a memória"));
    // The path is the one that the user knows.
    EXPECT_EQ(report(FileFault(L"\\\\?\\C:\\a.url", L"A hozzáférés megtagadva")),
              Expected(75, L"C:\\a.url\r\nA hozzáférés megtagadva"));
    EXPECT_EQ(NamingTheFile(L"C:\\a.url", [] { return 5; }), 5);
}

}  // namespace
}  // namespace lindrel
