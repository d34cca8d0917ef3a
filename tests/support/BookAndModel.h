// A book and its plain model, to which everything is done alike. Every difference between the two throws
// std::logic_error.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/Book.h"
#include "book/BookFile.h"
#include "edit/CheckedRuns.h"
#include "faults/Faults.h"
#include "tests/support/PlainBook.h"

namespace lindrel::testing {

// What decides about changes at random.
struct Chance {
    std::function<int(int sides)> Roll;  // 0..sides - 1
    std::function<std::string()> Text;
};

// How a book's file is read.
struct Reopened {
    Rereading Outcome;
    bool AmissInSilence;  // as another book, and the user is not asked
};

class BookAndModel {
  public:
    Book Real;
    PlainBook Plain;

    static void Require(bool good, const char* what) {
        if (!good) throw std::logic_error(std::string("the book and its model differ in ") + what);
    }

    void RequireSame() const {
        for (int k = 1; k <= 12; ++k) {
            const PlainBook::Category& category = Plain.Of(k);
            Require(Real.CategoryNames(k) == category.Name, "a name");
            Require(Real.CategoryCounts(k) == category.Count, "a count");
            Require(Real.CategoryStarts(k) == Plain.StartOf(k), "a start");
            const auto& checked = Real.Marks.SavedCheckLists(k);
            Require(
                std::equal(checked.begin(), checked.end(), category.Checked.begin(), category.Checked.end()),
                "check marks");
        }
        Require(Real.Marks.CheckedCount() == Plain.CheckedCount, "the number of check marks");
        Require(Real.EntryCount() == Plain.Total(), "the number of entries");
        Require(Real.IsEmpty() == (Plain.StartOf(12) == 1 && Plain.Of(12).Count == 0), "being empty");
        Require(Real.UpperBound() == Plain.Size(), "the number of elements");
        for (int index = 1; index <= Plain.Size(); ++index) {
            Require(Real.SiteNames(index) == Plain.At(index).first, "a site name");
            Require(Real.SiteURLs(index) == Plain.At(index).second, "an address");
        }
    }

    // Both must throw the same fault or none; whether it was none.
    template <typename RealAction, typename PlainAction>
    static bool DoBoth(RealAction real, PlainAction plain) {
        PlainFault expected{-1};
        PlainFault seen{-1};
        try {
            plain();
        } catch (const PlainFault& fault) {
            expected = fault;
        }
        try {
            real();
        } catch (const Fault& fault) {
            seen = {fault.Number()};
        } catch (const MalformedBook& malformed) {
            seen = {0, malformed.Line()};
        }
        Require(seen == expected, "faults");
        return seen.Number == -1;
    }

    // The kinds of change, 0..kChanges - 1; the last two only take entries out. Any may be refused.
    static constexpr int kChanges = 9;
    void Change(int kind, const Chance& chance) {
        const int k = chance.Roll(12) + 1;
        const auto number = [&](int most) { return chance.Roll(std::max(most, 0) + 2); };  // 0..most + 1
        switch (kind) {
            case 0:
                return Rename(k, chance.Text());
            case 1:
                return SetText(number(Plain.Size()), chance.Text(), &Book::SetSiteName,
                               &PlainBook::Row::first);
            case 2:
                return SetText(number(Plain.Size()), chance.Text(), &Book::SetSiteURL,
                               &PlainBook::Row::second);
            case 3:
                return Move(k, number(Plain.Of(k).Count) - 1, chance.Roll(12) + 1);
            case 4:
            case 5:
                return Add(k, AnyRows(chance));
            case 6:
                return Check(k, Some(k, chance));
            case 7:
                return TakeOut(k, Some(k, chance), chance.Roll(2) == 0 ? 0 : chance.Roll(12) + 1);
            default:
                return Delete(k, number(Plain.Of(k).Count), chance.Roll(3) + 1);
        }
    }

    // Opens a file; whether it is a book. `report` becomes what is said of it.
    bool Load(const std::string& file, PlainReport& report) {
        PlainReport seen;
        const bool loaded = DoBoth(
            [&] {
                BookFromFile read = ReadBook(Real, std::vector<char>(file.begin(), file.end()));
                seen = {read.AllCategories, read.InNoCategory, read.Doubtful.Count, read.Doubtful.FirstLine};
                Real = std::move(read.TheBook);
            },
            [&] { report = PlainReader(file).Read(Plain); });
        Require(!loaded || seen == report, "what is said of a file");
        RequireSame();
        return loaded;
    }

    // Saves, and opens the file in a copy; std::nullopt for a book that cannot be saved. What the user is
    // told after saving must be what happens, and the file must stay the same when it is saved again.
    std::optional<Reopened> SaveAndReopen() const {
        std::string file;
        std::string expected;
        if (!DoBoth([&] { file = SaveBook(Real); }, [&] { expected = Plain.File(); })) return std::nullopt;
        Require(file == expected, "the file");
        BookAndModel again = *this;
        PlainReport report;
        const bool loaded = again.Load(file, report);
        Require(!loaded || SaveBook(again.Real) == file, "the file that is saved again");
        const bool asked = !loaded || report.Doubtful > 0;
        const bool same = loaded && again.Plain.HasContentOf(Plain);
        const Reopened reopened{!same   ? Rereading::Lost
                                : asked ? Rereading::SameIfConfirmed
                                        : Rereading::Same,
                                !same && !asked};
        Require(HowItWillBeRead(Real) == reopened.Outcome, "what is said of saving");
        return reopened;
    }

    void Rename(int k, const std::string& name) {
        Real.SetCategoryName(k, name);
        Plain.Of(k).Name = name;
    }
    void Add(int k, const std::vector<PlainBook::Row>& rows) {
        std::vector<NewEntry> entries;
        for (const auto& [name, address] : rows) entries.push_back({name, address});
        DoBoth([&] { Real.AddEntry(k, entries); }, [&] { Plain.Add(k, rows); });
    }

  private:
    // Positions, each with a chance of one half.
    std::set<int> Some(int k, const Chance& chance) const {
        std::set<int> positions;
        for (int position = 1; position <= Plain.Of(k).Count; ++position)
            if (chance.Roll(2) == 1) positions.insert(position);
        return positions;
    }

    void SetText(int index, const std::string& text, void (Book::*real)(int, std::string_view),
                 std::string PlainBook::Row::*plain) {
        DoBoth([&] { (Real.*real)(index, text); }, [&] { Plain.At(index).*plain = text; });
    }
    static std::vector<PlainBook::Row> AnyRows(const Chance& chance) {
        std::vector<PlainBook::Row> rows;
        for (int left = chance.Roll(3); left >= 0; --left) {
            const std::string name = chance.Text();
            rows.emplace_back(name, chance.Text());
        }
        return rows;
    }
    void Delete(int k, int position, int count) {
        DoBoth([&] { Real.DeleteEntry(k, position, count); }, [&] { Plain.Delete(k, position, count); });
    }
    void Move(int source, int offset, int destination) {
        DoBoth([&] { Real.MoveEntry(source, offset, destination); },
               [&] { Plain.Move(source, offset, destination); });
    }
    void Check(int k, const std::set<int>& positions) {
        Real.Marks.Save(k, {positions.begin(), positions.end()});
        Real.Marks.SetCheckedCount(static_cast<int>(positions.size()));
        Plain.Of(k).Checked = positions;
        Plain.CheckedCount = static_cast<int>(positions.size());
    }
    // Deletes rows, or moves them to another category.
    void TakeOut(int k, const std::set<int>& positions, int destination) {
        if (positions.empty() || k == destination) return;  // which the program never asks for
        const auto runs = CheckedRuns(Plain.Of(k).Count, [&](int at) { return positions.contains(at); });
        if (destination == 0)
            DoBoth([&] { DeleteRuns(Real, k, runs); }, [&] { Plain.DeleteAll(k, positions); });
        else
            DoBoth([&] { MoveRuns(Real, k, runs, destination); },
                   [&] { Plain.MoveAll(k, positions, destination); });
    }
};

}  // namespace lindrel::testing
