// A book and its plain model, to which everything is done alike. Every difference between the two throws
// std::logic_error with both values.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <set>
#include <sstream>
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

// What makes changes random.
struct Chance {
    std::function<int(int sides)> Roll;  // 0..sides - 1
    std::function<std::string()> Text;
};

// What becomes of a book that is saved and opened.
struct Reopened {
    Rereading Outcome;
    bool AmissInSilence;  // as another book, and the user is not asked
};

class BookAndModel {
  public:
    Book Real;
    PlainBook Plain;

    template <typename Seen, typename Expected>
    static void RequireEqual(const Seen& seen, const Expected& expected, const char* what) {
        if (seen == expected) return;
        std::ostringstream message;
        message << what << ": " << seen << " instead of " << expected;
        throw std::logic_error(message.str());
    }

    void RequireSame() const {
        for (int k = 1; k <= 12; ++k) {
            const PlainBook::Category& category = Plain.Of(k);
            RequireEqual(Real.CategoryNames(k), category.Name, "a name");
            RequireEqual(Real.CategoryCounts(k), category.Count, "a count");
            RequireEqual(Real.CategoryStarts(k), Plain.StartOf(k), "a start");
            RequireEqual(Listed(Real.Marks.SavedCheckLists(k)), Listed(category.Checked), "check marks");
        }
        RequireEqual(Real.Marks.CheckedCount(), Plain.CheckedCount, "number of check marks");
        RequireEqual(Real.EntryCount(), Plain.Total(), "number of entries");
        RequireEqual(Real.IsEmpty(), Plain.StartOf(12) == 1 && Plain.Of(12).Count == 0, "being empty");
        RequireEqual(Real.UpperBound(), Plain.Size(), "number of elements");
        for (int index = 1; index <= Plain.Size(); ++index) {
            RequireEqual(Real.SiteNames(index), Plain.At(index).first, "a site name");
            RequireEqual(Real.SiteURLs(index), Plain.At(index).second, "an address");
        }
    }

    // Both actions must throw the same fault or none. Returns whether they threw none.
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
        RequireEqual(seen.Number, expected.Number, "number of a fault");
        RequireEqual(seen.Line, expected.Line, "line of a fault");
        return seen.Number == -1;
    }

    // The kinds of change, 0..kChanges - 1; the last two only take entries out. Any may be refused.
    static constexpr int kChanges = 9;
    void Change(int kind, const Chance& chance) {
        const int k = chance.Roll(12) + 1;
        switch (kind) {
            case 0:
                return Rename(k, chance.Text());
            case 1:
                return SetText(chance, &Book::SetSiteName, &PlainBook::Row::first);
            case 2:
                return SetText(chance, &Book::SetSiteURL, &PlainBook::Row::second);
            case 3:
                return Move(k, chance);
            case 4:
            case 5:
                return Add(k, AnyRows(chance));
            case 6:
                return Check(k, AnyPositions(k, chance));
            case 7:
                return TakeOut(k, AnyPositions(k, chance), chance);
            default:
                return Delete(k, chance);
        }
    }

    // Opens a file. Returns whether it is a book; `report` becomes what the user is told of it.
    bool Load(const std::string& file, PlainReport& report) {
        PlainReport seen;
        const bool loaded = DoBoth(
            [&] {
                BookFromFile read = ReadBook(Real, std::vector<char>(file.begin(), file.end()));
                seen = {read.AllCategories, read.InNoCategory, read.Doubtful.Count, read.Doubtful.FirstLine};
                Real = std::move(read.TheBook);
            },
            [&] { report = PlainReader(file).Read(Plain); });
        if (loaded) {
            RequireEqual(seen.AllCategories, report.AllCategories, "all categories");
            RequireEqual(seen.InNoCategory, report.InNoCategory, "entries in no category");
            RequireEqual(seen.Doubtful, report.Doubtful, "doubtful lines");
            RequireEqual(seen.FirstDoubtful, report.FirstDoubtful, "first doubtful line");
        }
        RequireSame();
        return loaded;
    }

    // Saves, and opens the file in a copy; std::nullopt for a book that cannot be saved. What the user is
    // told after saving must be what happens, and the file must stay the same when it is saved again.
    std::optional<Reopened> SaveAndReopen() const {
        std::string file;
        std::string expected;
        if (!DoBoth([&] { file = SaveBook(Real); }, [&] { expected = Plain.File(); })) return std::nullopt;
        RequireEqual(file, expected, "the file");
        BookAndModel again = *this;
        PlainReport report;
        const bool loaded = again.Load(file, report);
        if (loaded) RequireEqual(SaveBook(again.Real), file, "the file that is saved again");
        const bool asked = !loaded || report.Doubtful > 0;
        const bool same = loaded && again.Plain.HasContentOf(Plain);
        const Reopened reopened{!same   ? Rereading::Lost
                                : asked ? Rereading::SameIfConfirmed
                                        : Rereading::Same,
                                !same && !asked};
        RequireEqual(static_cast<int>(HowItWillBeRead(Real)), static_cast<int>(reopened.Outcome),
                     "what is said after saving");
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
    static std::string Listed(const auto& positions) {
        std::string list;
        for (const auto position : positions) list += std::to_string(position) + " ";
        return list;
    }
    static std::vector<PlainBook::Row> AnyRows(const Chance& chance) {
        std::vector<PlainBook::Row> rows;
        for (int left = chance.Roll(3); left >= 0; --left) {
            const std::string name = chance.Text();
            rows.emplace_back(name, chance.Text());
        }
        return rows;
    }
    // Each position with a chance of one half.
    std::set<int> AnyPositions(int k, const Chance& chance) const {
        std::set<int> positions;
        for (int position = 1; position <= Plain.Of(k).Count; ++position)
            if (chance.Roll(2) == 1) positions.insert(position);
        return positions;
    }
    // 0..most + 1: the first and the last are refused.
    static int AnyNumber(int most, const Chance& chance) { return chance.Roll(std::max(most, 0) + 2); }

    void SetText(const Chance& chance, void (Book::*real)(int, std::string_view),
                 std::string PlainBook::Row::*plain) {
        const int index = AnyNumber(Plain.Size(), chance);
        const std::string text = chance.Text();
        DoBoth([&] { (Real.*real)(index, text); }, [&] { Plain.At(index).*plain = text; });
    }
    void Delete(int k, const Chance& chance) {
        const int position = AnyNumber(Plain.Of(k).Count, chance);
        const int count = chance.Roll(3) + 1;
        DoBoth([&] { Real.DeleteEntry(k, position, count); }, [&] { Plain.Delete(k, position, count); });
    }
    void Move(int k, const Chance& chance) {
        const int offset = AnyNumber(Plain.Of(k).Count, chance) - 1;
        const int destination = chance.Roll(12) + 1;
        DoBoth([&] { Real.MoveEntry(k, offset, destination); }, [&] { Plain.Move(k, offset, destination); });
    }
    void Check(int k, const std::set<int>& positions) {
        Real.Marks.Save(k, {positions.begin(), positions.end()});
        Real.Marks.SetCheckedCount(static_cast<int>(positions.size()));
        Plain.Of(k).Checked = positions;
        Plain.CheckedCount = static_cast<int>(positions.size());
    }
    // Deletes rows, or moves them to another category.
    void TakeOut(int k, const std::set<int>& positions, const Chance& chance) {
        const int destination = chance.Roll(2) == 0 ? 0 : chance.Roll(12) + 1;
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
