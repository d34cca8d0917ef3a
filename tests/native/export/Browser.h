// A page in a real browser without a window, which reports what is on it.
#pragma once

#include <cstdlib>
#include <sstream>
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

inline std::vector<std::string> SplitAt(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream rest(text + separator);
    for (std::string part; std::getline(rest, part, separator);) parts.push_back(part);
    return parts;
}

// What a script that is added to the page reports between "[[" and "]]".
inline std::string ReportOn(std::string_view page) {
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
    const TemporaryFolder folder;
    WriteFileBytes(folder.Path() / "page.htm", std::string(page) + std::string(kProbe));
    const std::string command =
        "cd '" + folder.Path().string() +
        "' && HOME=\"$PWD\" timeout -k 5 100 chromium --headless --no-sandbox --disable-gpu "
        "--disable-dev-shm-usage --user-data-dir=profile --dump-dom \"file://$PWD/page.htm\" >report 2>log";
    if (std::system(command.c_str()) != 0) throw std::runtime_error("the browser failed: " + command);
    const std::string report = ContentOf(folder.Path() / "report");
    const std::size_t start = report.find("[[");
    const std::size_t end = report.find("]]", start);
    if (end == std::string::npos) throw std::runtime_error("the page says nothing: " + report);
    return report.substr(start + 2, end - start - 2);
}

inline PageInBrowser OpenInBrowser(std::string_view page) {
    const std::vector<std::string> parts = SplitAt(ReportOn(page), '|');
    return {parts.at(0),
            SplitAt(parts.at(1), ';'),
            SplitAt(parts.at(2), ';'),
            parts.at(3),
            parts.at(4),
            parts.at(5),
            parts.at(6)};
}

}  // namespace lindrel::testing
