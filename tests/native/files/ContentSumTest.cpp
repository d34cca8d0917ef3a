// What tells one content of a file from another.
#include "files/ContentSum.h"

#include <gtest/gtest.h>

#include <string>

namespace lindrel {
namespace {

TEST(ContentSumTest, EqualContentsHaveEqualSums) {
    for (const std::string& bytes : {std::string(), std::string("a"), std::string("\0\r\n\xFF", 4)})
        EXPECT_EQ(ContentSum(bytes), ContentSum(std::string(bytes)));
    EXPECT_EQ(ContentSum(), ContentSum(""));
}

TEST(ContentSumTest, EveryChangeMakesAnotherSum) {
    const std::string book = "#Project1\r\nN\xE9v\r\nhttp://nev.hu\r\n#Project2\r\n";
    const ContentSum sum(book);
    for (std::size_t at = 0; at < book.size(); ++at)
        for (unsigned bit = 0; bit < 8; ++bit) {
            std::string changed = book;
            changed[at] = static_cast<char>(static_cast<unsigned char>(book[at]) ^ 1U << bit);
            EXPECT_NE(ContentSum(changed), sum) << at << " " << bit;
            EXPECT_NE(ContentSum(book.substr(0, at)), sum) << at;
        }
    EXPECT_NE(ContentSum(book + '\0'), sum);
    EXPECT_NE(ContentSum("ab"), ContentSum("ba"));
    EXPECT_NE(ContentSum(std::string(2, '\0')), ContentSum(std::string(3, '\0')));
}

}  // namespace
}  // namespace lindrel
