// A hundred thousand random changes to a book, compared with the same changes to twelve lists.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "book/Book.h"
#include "book/BookFile.h"
#include "book/PerCategory.h"
#include "edit/CheckedRuns.h"

namespace lindrel {
namespace {

struct Model {
    std::array<std::string, kCategories + 1> Names;
    std::array<std::vector<NewEntry>, kCategories + 1> Entries;

    std::size_t Count() const {
        std::size_t count = 0;
        for (const auto& category : Entries) count += category.size();
        return count;
    }
    std::string File() const {
        std::string file;
        for (std::size_t k = 1; k <= kCategories; ++k) {
            file += "#" + Names[k] + "\r\n";
            for (const NewEntry& entry : Entries[k]) file += entry.SiteName + "\r\n" + entry.URL + "\r\n";
        }
        return file;
    }
};

class BookModelTest : public ::testing::Test {
  protected:
    BookModelTest() {
        for (std::size_t k = 1; k <= kCategories; ++k) model.Names[k] = "Project" + std::to_string(k);
    }
    int Roll(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(dice); }
    int RollCategory() { return Roll(kCategories) + 1; }
    std::vector<NewEntry>& EntriesOf(int category) {
        return model.Entries[static_cast<std::size_t>(category)];
    }
    NewEntry Fresh() {
        ++made;
        return {"n" + std::to_string(made), Roll(9) == 0 ? "" : "u" + std::to_string(made)};
    }

    void Add() {
        const int category = RollCategory();
        const int count = Roll(3) + 1;
        std::vector<NewEntry> added;
        for (int i = 0; i < count; ++i) {
            added.push_back(Fresh());
            EntriesOf(category).push_back(added.back());
        }
        book.AddEntry(category, added);
    }
    void Delete() {
        const int category = RollCategory();
        auto& entries = EntriesOf(category);
        if (entries.empty()) return;
        const int position = Roll(static_cast<int>(entries.size())) + 1;
        const int count = Roll(static_cast<int>(entries.size()) - position + 1) + 1;
        book.DeleteEntry(category, position, count);
        entries.erase(entries.begin() + position - 1, entries.begin() + position - 1 + count);
    }
    void Move() {
        const int source = RollCategory();
        const int destination = RollCategory();
        auto& entries = EntriesOf(source);
        if (source == destination || entries.empty()) return;
        const int offset = Roll(static_cast<int>(entries.size()));
        book.Marks.SetCheckedCount(3);
        book.MoveEntry(source, offset, destination);
        EXPECT_EQ(book.Marks.CheckedCount(), 0);
        EntriesOf(destination).push_back(entries[static_cast<std::size_t>(offset)]);
        entries.erase(entries.begin() + offset);
    }
    void Edit() {
        const int category = RollCategory();
        auto& entries = EntriesOf(category);
        if (entries.empty()) return;
        const int offset = Roll(static_cast<int>(entries.size()));
        const NewEntry edited = Fresh();
        book.SetSiteName(book.IndexOf(category, offset + 1), edited.SiteName);
        book.SetSiteURL(book.IndexOf(category, offset + 1), edited.URL);
        entries[static_cast<std::size_t>(offset)] = edited;
    }
    void Rename() {
        const int category = RollCategory();
        const std::string name = Roll(5) == 0 ? "" : "k" + std::to_string(Roll(1000));
        book.SetCategoryName(category, name);
        model.Names[static_cast<std::size_t>(category)] = name;
    }
    // Checks random rows, and moves or deletes them.
    void RunWalk() {
        const int category = RollCategory();
        const int destination = RollCategory();
        auto& entries = EntriesOf(category);
        std::set<int> checked;
        for (int position = 1; position <= static_cast<int>(entries.size()); ++position)
            if (Roll(2) == 0) checked.insert(position);
        const auto runs = CheckedRuns(static_cast<int>(entries.size()),
                                      [&](int position) { return checked.contains(position); });
        const bool move = Roll(2) == 0;
        if (checked.empty() || (move && category == destination)) return;
        if (move)
            MoveRuns(book, category, runs, destination);
        else
            DeleteRuns(book, category, runs);
        std::vector<NewEntry> left;
        for (int position = 1; position <= static_cast<int>(entries.size()); ++position) {
            const NewEntry& entry = entries[static_cast<std::size_t>(position - 1)];
            if (!checked.contains(position))
                left.push_back(entry);
            else if (move)
                EntriesOf(destination).push_back(entry);
        }
        entries = left;
    }

    void ExpectSame() {
        ASSERT_EQ(book.CategoryStarts(1), 1);
        int total = 0;
        for (int k = 1; k <= kCategories; ++k) {
            const auto& entries = EntriesOf(k);
            ASSERT_EQ(book.CategoryNames(k), model.Names[static_cast<std::size_t>(k)]);
            ASSERT_EQ(book.CategoryCounts(k), static_cast<int>(entries.size()));
            ASSERT_EQ(book.CategoryStarts(k), total + 1);
            total += book.CategoryCounts(k);
            for (int position = 1; position <= book.CategoryCounts(k); ++position) {
                const NewEntry& entry = entries[static_cast<std::size_t>(position - 1)];
                ASSERT_EQ(book.SiteNames(book.IndexOf(k, position)), entry.SiteName);
                ASSERT_EQ(book.SiteURLs(book.IndexOf(k, position)), entry.URL);
            }
        }
        ASSERT_EQ(book.EntryCount(), total);
        ASSERT_EQ(book.IsEmpty(), total == 0);
        // A book that had entries once keeps at least one element.
        ASSERT_EQ(book.UpperBound(), made == 0 ? 0 : std::max(total, 1));
    }

    std::mt19937 dice{20261121};
    Book book;
    Model model;
    int made = 0;
};

TEST_F(BookModelTest, AHundredThousandStepsAgreeWithTwelveLists) {
    constexpr int kSteps = 100000;
    for (int step = 1; step <= kSteps; ++step) {
        // The book grows to a few dozen entries; now and then it shrinks.
        const bool shrink = model.Count() > 60 || Roll(500) == 0;
        switch (shrink ? 5 + Roll(2) : Roll(6)) {
            case 0:
            case 1:
                Add();
                break;
            case 2:
                Move();
                break;
            case 3:
                Edit();
                break;
            case 4:
                Rename();
                break;
            case 5:
                RunWalk();
                break;
            default:
                Delete();
        }
        ASSERT_NO_FATAL_FAILURE(ExpectSame()) << "after step " << step;
        if (step % 1000 == 0) {
            ASSERT_EQ(SaveBook(book), model.File()) << "after step " << step;
            const std::string file = model.File();
            const BookFromFile loaded = ReadBook(Book(), std::vector<char>(file.begin(), file.end()));
            ASSERT_TRUE(loaded.AllCategories);
            ASSERT_EQ(SaveBook(loaded.TheBook), file);
        }
    }
}

}  // namespace
}  // namespace lindrel
