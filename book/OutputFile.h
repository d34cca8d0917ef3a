// A file that is written piece by piece, and the pieces' receiver that the writers of the program know.
#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <string_view>

namespace lindrel {

// Takes the bytes of a file in their order.
using ByteSink = std::function<void(std::string_view bytes)>;

class OutputFile {
  public:
    // Creates the file, in the place of an old one. Throws FileFault.
    explicit OutputFile(const std::filesystem::path& path);

    // Throw FileFault; what has been written so far stays in the file.
    void Write(std::string_view bytes);
    // Writes what is still buffered. A file that is not closed by this may end early.
    void Close();

  private:
    void Check();

    std::filesystem::path path_;
    std::ofstream stream_;
};

}  // namespace lindrel
