// A plain model of the book and its file, written from their rules and without any of the program's code or
// tables: tests and fuzz targets make every change to both and compare them. Texts are bytes of Windows-1250;
// numbers are 1-based unless a comment says otherwise. What the program refuses throws PlainFault here, and
// changes nothing.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace lindrel::testing {

// The number of the fault, or 0 for a file that is no book; then the line at fault, 0 for none.
struct PlainFault {
    int Number = 0;
    long long Line = 0;
    bool operator==(const PlainFault&) const = default;
};

class PlainBook {
  public:
    using Row = std::pair<std::string, std::string>;  // name and address
    struct Category {
        std::string Name;
        int Count = 0;
        std::set<int> Checked = {};  // positions
    };

    std::array<Category, 12> Categories;
    std::vector<Row> Entries;  // may be more or fewer than the categories count, as in the program
    int CheckedCount = 0;

    PlainBook() {
        for (int k = 1; k <= 12; ++k) Of(k).Name = "Project" + std::to_string(k);
    }

    Category& Of(int k) { return Categories.at(static_cast<std::size_t>(k - 1)); }
    const Category& Of(int k) const { return Categories.at(static_cast<std::size_t>(k - 1)); }
    // Also of 13, a category that would come after the last one.
    int StartOf(int k) const {
        int start = 1;
        for (int before = 1; before < k; ++before) start += Of(before).Count;
        return start;
    }
    int Total() const { return StartOf(13) - 1; }
    int Size() const { return static_cast<int>(Entries.size()); }

    Row& At(int index) { return Entries[Offset(index)]; }
    const Row& At(int index) const { return Entries[Offset(index)]; }
    const Row& At(int k, int position) const { return At(StartOf(k) + position - 1); }

    void Add(int k, const std::vector<Row>& rows) {
        const int added = static_cast<int>(rows.size());
        const int index = StartOf(k) + Of(k).Count;
        if (Total() + added > 32767) throw PlainFault{6};
        if (Total() != 0 && index > Size() + 1) throw PlainFault{9};
        if (Total() == 0) Entries.clear();
        Entries.insert(Entries.begin() + (index - 1), rows.begin(), rows.end());
        Of(k).Count += added;
    }
    void Delete(int k, int position, int count = 1) {
        if (position < 1 || position + count - 1 > Of(k).Count) throw PlainFault{9};
        const int index = StartOf(k) + position - 1;
        if (index + count - 1 > Size()) throw PlainFault{9};
        Entries.erase(Entries.begin() + (index - 1), Entries.begin() + (index - 1 + count));
        if (Entries.empty()) Entries.emplace_back();
        Of(k).Count -= count;
    }
    // The offset is 0-based.
    void Move(int source, int offset, int destination) {
        if (offset < 0 || offset >= Of(source).Count) throw PlainFault{9};
        if (source == destination) throw PlainFault{5};
        const int from = StartOf(source) + offset;
        const Row moved = At(from);
        const int end = StartOf(destination) + Of(destination).Count;
        const int to = source > destination ? end : end - 1;
        if (to > Size()) throw PlainFault{9};
        Entries.erase(Entries.begin() + (from - 1));
        Entries.insert(Entries.begin() + (to - 1), moved);
        --Of(source).Count;
        ++Of(destination).Count;
        CheckedCount = 0;
    }

    // The next two leave check marks as they are.
    void DeleteAll(int k, const std::set<int>& positions) {
        PlainBook rest = *this;
        for (auto position = positions.rbegin(); position != positions.rend(); ++position)
            rest.Delete(k, *position);
        *this = rest;
    }
    void MoveAll(int source, const std::set<int>& positions, int destination) {
        std::vector<Row> moved;
        for (const int position : positions) moved.push_back(At(source, position));
        PlainBook changed = *this;
        changed.DeleteAll(source, positions);
        changed.Add(destination, moved);
        *this = changed;
    }
    void ForgetCheckMarks() {
        for (Category& category : Categories) category.Checked.clear();
        CheckedCount = 0;
    }

    std::string File() const {
        std::string file;
        for (int k = 1; k <= 12; ++k) {
            file += "#" + Of(k).Name + "\r\n";
            for (int position = 1; position <= Of(k).Count; ++position)
                file += At(k, position).first + "\r\n" + At(k, position).second + "\r\n";
        }
        return file;
    }
    // Names, counts and entries that the categories count.
    bool HasContentOf(const PlainBook& other) const {
        for (int k = 1; k <= 12; ++k) {
            if (Of(k).Name != other.Of(k).Name || Of(k).Count != other.Of(k).Count) return false;
            for (int position = 1; position <= Of(k).Count; ++position)
                if (At(k, position) != other.At(k, position)) return false;
        }
        return true;
    }

  private:
    std::size_t Offset(int index) const {
        if (index < 1 || index > Size()) throw PlainFault{9};
        return static_cast<std::size_t>(index - 1);
    }
};

// What the user is told of a file besides the book in it.
struct PlainReport {
    bool AllCategories = true;
    int InNoCategory = 0;
    int Doubtful = 0;             // lines
    long long FirstDoubtful = 0;  // line
    bool operator==(const PlainReport&) const = default;
};

class PlainReader {
  public:
    explicit PlainReader(const std::string& file) {
        for (std::size_t at = 0; at < file.size();) {
            const std::size_t end = std::min(file.find('\n', at), file.size());
            std::string line = file.substr(at, end - at);
            if (end < file.size() && !line.empty() && line.back() == '\r') line.pop_back();
            lines_.push_back(line);
            at = end + 1;
        }
    }

    // Puts the file's book in the place of the open one, of which a file with too few headers leaves a part.
    PlainReport Read(PlainBook& book) {
        if (Lines() > 65546 || Lines() < 11) throw PlainFault{};
        std::vector<int> headers;
        for (int line = 1; line <= Lines(); ++line)
            if (HasHeaderPrefix(line)) headers.push_back(line);
        if (headers.size() > 12) headers = Choose(headers[12]);
        report_.AllCategories = headers.size() == 12;
        ReadEntries(book, headers);
        return report_;
    }

  private:
    const std::string& Line(int line) const { return lines_[static_cast<std::size_t>(line - 1)]; }
    int Lines() const { return static_cast<int>(lines_.size()); }
    bool HasHeaderPrefix(int line) const { return Line(line).starts_with('#'); }

    bool IsAddress(int line) const {
        std::string text = Line(line);
        for (char& byte : text)
            if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
        return text.find("://") != std::string::npos || text.starts_with("mailto:") ||
               text.starts_with("www.");
    }
    bool MayBeAddress(int line) const {
        const std::string& text = Line(line);
        if (text.empty() || text.find('\\') != std::string::npos) return true;
        return text.find(' ') == std::string::npos && text.find_first_of(".:/@") != std::string::npos;
    }
    bool IsEntry(int line) const {
        if (line + 1 > Lines()) return false;
        if (HasHeaderPrefix(line) && !IsAddress(line + 1)) return false;
        return !HasHeaderPrefix(line + 1) || !IsAddress(line);
    }

    // The ways to read the file from a line on with a number of headers still to come; 2 for more than one.
    int Ways(int line, int headers) {
        if (line > Lines()) return headers == 0 ? 1 : 0;
        const auto known = ways_.find({line, headers});
        if (known != ways_.end()) return known->second;
        int ways = 0;
        if (HasHeaderPrefix(line) && headers > 0) ways += Ways(line + 1, headers - 1);
        if (IsEntry(line)) ways += Ways(line + 2, headers);
        return ways_[{line, headers}] = std::min(ways, 2);
    }

    // The headers of a file with more than twelve lines that look like one.
    std::vector<int> Choose(int thirteenth) {
        if (!HasHeaderPrefix(1) || Ways(2, 11) != 1) throw PlainFault{0, thirteenth};
        std::vector<int> headers = {1};
        for (int line = 2; line <= Lines();) {
            const int left = 12 - static_cast<int>(headers.size());
            if (HasHeaderPrefix(line) && left > 0 && Ways(line + 1, left - 1) == 1) {
                headers.push_back(line++);
                continue;
            }
            if (HasHeaderPrefix(line)) Doubt(line);
            if (HasHeaderPrefix(line + 1) && MayBeAddress(line)) Doubt(line + 1);
            line += 2;
        }
        return headers;
    }
    void Doubt(int line) {
        if (++report_.Doubtful == 1) report_.FirstDoubtful = line;
    }

    // The number of entries that the program makes room for: half of the other lines, where 0.5 is 0 and 1.5
    // and 2.5 are 2.
    int Estimate() const {
        const int half = (Lines() - 12) / 2;
        return (Lines() - 12) % 2 == 1 && half % 2 == 1 ? half + 1 : half;
    }

    void ReadEntries(PlainBook& book, const std::vector<int>& headers) {
        PlainBook read = book;
        read.ForgetCheckMarks();
        if (Estimate() > 0) read.Entries.assign(static_cast<std::size_t>(Estimate()), {});
        int entry = 0;
        int k = 0;
        int count = 0;
        bool name = true;
        for (int line = 1; line <= Lines(); ++line) {
            if (std::find(headers.begin(), headers.end(), line) != headers.end()) {
                if (k > 0) read.Of(k).Count = count;
                read.Of(++k).Name = Line(line).substr(1);
                count = 0;
                continue;
            }
            if (name && entry == Estimate()) throw PlainFault{0, line};
            if (name) ++count;
            if (name)
                read.At(++entry).first = Line(line);
            else
                read.At(entry).second = Line(line);
            name = !name;
        }
        read.Of(12).Count = count;
        if (read.StartOf(12) > 32768) throw PlainFault{};
        report_.InNoCategory = std::max(0, entry - read.Total());
        book = read;
    }

    std::vector<std::string> lines_;
    std::map<std::pair<int, int>, int> ways_;  // known ones, by line and headers
    PlainReport report_;
};

}  // namespace lindrel::testing
