// A hundred thousand random changes to a book, compared with the same changes to its plain model.

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tests/support/BookAndModel.h"

namespace lindrel::testing {
namespace {

// Saved and opened as the program does it.
void ExpectFileOfModel(const BookAndModel& books) {
    const std::string file = books.Plain.File();
    ASSERT_EQ(SaveBook(books.Real), file);
    const BookFromFile loaded = ReadBook(Book(), std::vector<char>(file.begin(), file.end()));
    ASSERT_TRUE(loaded.AllCategories);
    ASSERT_EQ(SaveBook(loaded.TheBook), file);
    ASSERT_EQ(books.SaveAndReopen().value().Outcome, Rereading::Same);
}

TEST(BookModelTest, AHundredThousandStepsAgreeWithTheModel) {
    std::mt19937 dice(20261121);
    int made = 0;
    const auto roll = [&dice](int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(dice); };
    const auto text = [&] { return roll(9) == 0 ? "" : "t" + std::to_string(++made); };
    const Chance chance{roll, text};
    for (int round = 1; round <= 100; ++round) {
        BookAndModel books;
        for (int step = 1; step <= 1000; ++step) {
            // The book grows to a few dozen entries; now and then it shrinks.
            const bool shrink = books.Plain.Total() > 60 || roll(500) == 0;
            const int kind = shrink ? BookAndModel::kChanges - 1 - roll(2) : roll(BookAndModel::kChanges);
            ASSERT_NO_THROW(books.Change(kind, chance)) << "round " << round << ", step " << step;
            ASSERT_NO_THROW(books.RequireSame()) << "round " << round << ", step " << step;
        }
        ASSERT_NO_FATAL_FAILURE(ExpectFileOfModel(books)) << "after round " << round;
    }
}

}  // namespace
}  // namespace lindrel::testing
