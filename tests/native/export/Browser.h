// A real browser, without a window, that reports what is on an exported page.
#pragma once

#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "files/Files.h"
#include "tests/native/support/TemporaryFolder.h"

namespace lindrel::testing {

// What the browser finds on a page. Texts are UTF-8, percent-encoded like those of encodeURIComponent.
struct PageInBrowser {
    std::string Title;
    std::vector<std::string> Links;    // "address,text"
    std::vector<std::string> Targets;  // where the links lead, in full
    std::string Charset;
    std::string Elements;  // "A 3 BODY 1 ..."
    std::string Handlers;  // names of attributes with scripts
    std::string Ran;       // the value of window.ran, which only a script on the page can set
};

// Adds a script to the page that reports what is on it. Each browser has its own temporary profile.
class Browser {
  public:
    PageInBrowser Open(std::string_view page) const {
        constexpr std::string_view kProbe = R"(<script id=probe>
            const texts = encodeURIComponent, probe = document.getElementById('probe'), counts = {}, handlers = [];
            for (const element of document.querySelectorAll('*')) {
              if (element === probe) continue;
              counts[element.tagName] = (counts[element.tagName] || 0) + 1;
              for (const attribute of element.attributes)
                if (attribute.name.startsWith('on')) handlers.push(attribute.name);
            }
            const links = [...document.querySelectorAll('a')].map(
                a => texts(a.getAttribute('href')) + ',' + texts(a.textContent)).join(';');
            const targets = [...document.querySelectorAll('a')].map(a => texts(a.href)).join(';');
            const report = [texts(document.title), links, targets, document.characterSet,
                            Object.keys(counts).sort().map(tag => tag + ' ' + counts[tag]).join(' '),
                            handlers.join(' '), String(window.ran)];
            document.documentElement.textContent = '[[' + report.join('|') + ']]';
            </script>)";
        const std::filesystem::path file = folder_.Path() / "page.htm";
        WriteFileBytes(file, std::string(page) + std::string(kProbe));
        const std::string report = Between(Run("--dump-dom 'file://" + file.string() + "'"), "[[", "]]");
        PageInBrowser found;
        const std::vector<std::string> parts = SplitAt(report, '|');
        found.Title = parts.at(0);
        found.Links = SplitAt(parts.at(1), ';');
        found.Targets = SplitAt(parts.at(2), ';');
        found.Charset = parts.at(3);
        found.Elements = parts.at(4);
        found.Handlers = parts.at(5);
        found.Ran = parts.at(6);
        return found;
    }

  private:
    std::string Run(const std::string& arguments) const {
        const std::string command =
            "cd '" + folder_.Path().string() +
            "' && HOME=\"$PWD\" timeout -k 5 100 chromium --headless --no-sandbox --disable-gpu "
            "--disable-dev-shm-usage --user-data-dir=profile " +
            arguments + " 2>log";
        std::FILE* const pipe = ::popen(command.c_str(), "r");
        if (pipe == nullptr) throw std::runtime_error("no shell");
        std::string output;
        std::array<char, 65536> buffer{};
        while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), pipe))
            output.append(buffer.data(), got);
        const int status = ::pclose(pipe);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
            throw std::runtime_error("the browser failed: " + command);
        return output;
    }

    static std::vector<std::string> SplitAt(const std::string& text, char separator) {
        std::vector<std::string> parts;
        for (std::size_t start = 0; start <= text.size();) {
            const std::size_t end = std::min(text.find(separator, start), text.size());
            parts.push_back(text.substr(start, end - start));
            start = end + 1;
        }
        return parts;
    }

    static std::string Between(const std::string& text, std::string_view left, std::string_view right) {
        const std::size_t start = text.find(left);
        const std::size_t end = start == std::string::npos ? start : text.find(right, start);
        if (end == std::string::npos) throw std::runtime_error("the page says nothing: " + text);
        return text.substr(start + left.size(), end - start - left.size());
    }

    TemporaryFolder folder_;
};

}  // namespace lindrel::testing
