#include <gtest/gtest.h>
#include "book/BookFile.h"
using namespace lindrel;
TEST(SmokeTest, RoundTrip) {
    Book b; b.NewEntries = {{"a","http://a"}}; b.AddEntry(3);
    const std::string f = SaveBook(b);
    Book c; EXPECT_TRUE(LoadBook(c, std::vector<char>(f.begin(), f.end())));
    EXPECT_EQ(SaveBook(c), f);
}
