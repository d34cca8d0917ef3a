// Nested folders with a path of more than 260 characters. The name of the last one ends with a full stop,
// which Windows drops unless it takes the path as it stands.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "files/Files.h"
#include "files/Folder.h"
#include "files/Path.h"
#include "window/Windows.h"

namespace lindrel::testing {

class DeepFolder {
  public:
    explicit DeepFolder(const std::filesystem::path& parent) {
        path_ = parent;
        for (const std::wstring& name : Names()) {
            path_ /= name;
            EXPECT_TRUE(CreateDirectoryW(ExactPath(path_).c_str(), nullptr));
        }
    }
    ~DeepFolder() {
        for (const auto& file : FilesIn(path_))
            EXPECT_TRUE(DeleteFileW(Joined(ExactPath(path_), file).c_str())) << file;
        for (std::size_t left = Names().size(); left > 0; --left, path_ = path_.parent_path())
            EXPECT_TRUE(RemoveDirectoryW(ExactPath(path_).c_str())) << path_;
    }
    DeepFolder(const DeepFolder&) = delete;
    DeepFolder& operator=(const DeepFolder&) = delete;

    static std::vector<std::wstring> Names() {
        constexpr std::size_t kLong = 90;
        return {std::wstring(kLong, L'a'), std::wstring(kLong, L'b'), std::wstring(kLong, L'c'), L"vége."};
    }
    const std::filesystem::path& Path() const { return path_; }
    void Write(const std::wstring& name, const std::string& bytes) const {
        WriteFileBytes(Joined(ExactPath(path_), name), bytes);
    }

  private:
    std::filesystem::path path_;
};

}  // namespace lindrel::testing
