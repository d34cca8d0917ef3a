// A folder for a test's files, removed with everything in it in the end.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "files/Files.h"

namespace lindrel::testing {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "lindrel-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;  // a program that still runs, such as a browser, may be writing here
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

inline std::string ContentOf(const std::filesystem::path& path) {
    const std::vector<char> bytes = ReadFileBytes(path);
    return {bytes.begin(), bytes.end()};
}

}  // namespace lindrel::testing
