// A second book, written to be simple: two lists for the entries, every rule spelled out. What the real one
// refuses throws PlainFault here, before anything is changed.
#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace lindrel {

// The number of the fault, or 0 for a file that is no book; then the line at fault.
struct PlainFault {
    int Number = 0;
    long long Line = 0;
    bool operator==(const PlainFault&) const = default;
};

struct PlainBook {
    using Pair = std::pair<std::string, std::string>;

    std::array<std::string, 13> Names;  // from 1, as everything here
    std::array<int, 13> Counts{};
    std::vector<Pair> Entries;

    PlainBook() {
        for (int k = 1; k <= 12; ++k) NameOf(k) = "Project" + std::to_string(k);
    }

    std::string& NameOf(int k) { return Names[static_cast<std::size_t>(k)]; }
    int& CountOf(int k) { return Counts[static_cast<std::size_t>(k)]; }
    int CountOf(int k) const { return Counts[static_cast<std::size_t>(k)]; }
    int StartOf(int k) const {
        int start = 1;
        for (int before = 1; before < k; ++before) start += CountOf(before);
        return start;
    }
    int Total() const { return StartOf(13); }  // one more than all counts
    int Size() const { return static_cast<int>(Entries.size()); }
    Pair& At(int index) {
        if (index < 1 || index > Size()) throw PlainFault{9};
        return Entries[static_cast<std::size_t>(index - 1)];
    }

    void Add(int k, const Pair& entry) {
        const bool empty = Total() == 1;
        const int place = StartOf(k) + CountOf(k);
        if (Total() - 1 >= 32767) throw PlainFault{6};
        if (!empty && place > Size() + 1) throw PlainFault{9};
        if (empty) Entries.clear();
        Entries.insert(Entries.begin() + (place - 1), entry);
        ++CountOf(k);
    }

    void Delete(int k, int position, int count) {
        if (position < 1 || position + count - 1 > CountOf(k)) throw PlainFault{9};
        const int index = StartOf(k) + position - 1;
        if (index + count - 1 > Size()) throw PlainFault{9};
        Entries.erase(Entries.begin() + (index - 1), Entries.begin() + (index - 1 + count));
        if (Entries.empty()) Entries.emplace_back();
        CountOf(k) -= count;
    }

    void Move(int source, int offset, int destination) {
        if (offset < 0 || offset >= CountOf(source)) throw PlainFault{9};
        if (source == destination) throw PlainFault{5};
        const int from = StartOf(source) + offset;
        const Pair moved = At(from);
        const int behind = StartOf(destination) + CountOf(destination);
        const int to = source > destination ? behind : behind - 1;
        if (to > Size()) throw PlainFault{9};
        Entries.erase(Entries.begin() + (from - 1));
        Entries.insert(Entries.begin() + (to - 1), moved);
        --CountOf(source);
        ++CountOf(destination);
    }

    std::string File() {
        std::string file;
        for (int k = 1; k <= 12; ++k) {
            file += "#" + NameOf(k) + "\r\n";
            for (int j = 0; j < CountOf(k); ++j) {
                const Pair& entry = At(StartOf(k) + j);
                file += entry.first + "\r\n" + entry.second + "\r\n";
            }
        }
        return file;
    }
};

// What is read from a file besides the book.
struct PlainReport {
    bool AllCategories = true;
    int InNoCategory = 0;
    int Doubtful = 0;
    long long FirstDoubtful = 0;  // 1-based line
    bool operator==(const PlainReport&) const = default;
};

class PlainReader {
  public:
    PlainReader(PlainBook& book, const std::string& file) : book_(book) {
        for (std::size_t at = 0; at < file.size();) {
            const std::size_t end = std::min(file.find('\n', at), file.size());
            std::string line = file.substr(at, end - at);
            if (end < file.size() && !line.empty() && line.back() == '\r') line.pop_back();
            lines_.push_back(line);
            at = end + 1;
        }
    }

    PlainReport Read() {
        const int lines = static_cast<int>(lines_.size());
        if (lines > 65546 || lines < 11) throw PlainFault{};
        // Half of what the headers leave; 0.5 is 0, 1.5 is 2, 2.5 is 2.
        estimate_ = (lines - 12) / 2;
        if ((lines - 12) % 2 == 1 && estimate_ % 2 == 1) ++estimate_;
        std::vector<int> headers;
        for (int line = 1; line <= lines; ++line)
            if (IsMarked(line)) headers.push_back(line);
        if (headers.size() > 12) headers = Choose(headers[12]);
        report_.AllCategories = headers.size() == 12;
        ReadEntries(headers);
        return report_;
    }

  private:
    const std::string& Line(int line) const { return lines_[static_cast<std::size_t>(line - 1)]; }
    int Lines() const { return static_cast<int>(lines_.size()); }
    bool IsMarked(int line) const { return !Line(line).empty() && Line(line)[0] == '#'; }

    bool IsAddress(int line) const {
        std::string text = Line(line);
        for (char& byte : text)
            if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
        return text.find("://") != std::string::npos || text.rfind("mailto:", 0) == 0 ||
               text.rfind("www.", 0) == 0;
    }
    bool MayBeAddress(int line) const {
        const std::string& text = Line(line);
        if (text.empty() || text.find('\\') != std::string::npos) return true;
        return text.find(' ') == std::string::npos && text.find_first_of(".:/@") != std::string::npos;
    }
    bool IsEntry(int line) const {
        if (line + 1 > Lines()) return false;
        if (IsMarked(line) && !IsAddress(line + 1)) return false;
        return !IsMarked(line + 1) || !IsAddress(line);
    }

    // The ways, at most two, to read the file from a line on with a number of headers to come.
    int Ways(int line, int headers) {
        if (line > Lines()) return headers == 0 ? 1 : 0;
        const auto known = ways_.find({line, headers});
        if (known != ways_.end()) return known->second;
        int ways = 0;
        if (IsMarked(line) && headers > 0) ways += Ways(line + 1, headers - 1);
        if (IsEntry(line)) ways += Ways(line + 2, headers);
        return ways_[{line, headers}] = std::min(ways, 2);
    }

    std::vector<int> Choose(int thirteenth) {
        if (!IsMarked(1) || Ways(2, 11) != 1) throw PlainFault{0, thirteenth};
        std::vector<int> headers = {1};
        for (int line = 2; line <= Lines();) {
            const int left = 12 - static_cast<int>(headers.size());
            if (IsMarked(line) && left > 0 && Ways(line + 1, left - 1) == 1) {
                headers.push_back(line++);
                continue;
            }
            if (IsMarked(line)) Doubt(line);
            if (IsMarked(line + 1) && MayBeAddress(line)) Doubt(line + 1);
            line += 2;
        }
        return headers;
    }
    void Doubt(int line) {
        if (++report_.Doubtful == 1) report_.FirstDoubtful = line;
    }

    void ReadEntries(const std::vector<int>& headers) {
        PlainBook read = book_;
        if (estimate_ > 0) read.Entries.assign(static_cast<std::size_t>(estimate_), {});
        int entry = 0;
        int k = 0;
        int count = 0;
        bool name = true;
        for (int line = 1; line <= Lines(); ++line) {
            if (std::find(headers.begin(), headers.end(), line) != headers.end()) {
                if (k > 0) read.CountOf(k) = count;
                read.NameOf(++k) = Line(line).substr(1);
                count = 0;
                continue;
            }
            if (name && entry == estimate_) throw PlainFault{0, line};
            if (name) ++count;
            if (name)
                read.At(++entry).first = Line(line);
            else
                read.At(entry).second = Line(line);
            name = !name;
        }
        read.CountOf(12) = count;
        if (read.StartOf(12) > 32768) throw PlainFault{};
        report_.InNoCategory = std::max(0, entry - (read.Total() - 1));
        book_ = read;
    }

    PlainBook& book_;
    std::vector<std::string> lines_;
    std::map<std::pair<int, int>, int> ways_;
    PlainReport report_;
    int estimate_ = 0;
};

}  // namespace lindrel
