// A file that is written piece by piece.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "files/File.h"
#include "files/Path.h"

namespace lindrel {

// Receives the bytes of a file, in order. The exporters write to one of these.
using ByteSink = std::function<void(std::string_view bytes)>;

// The number of bytes from which on a piece is written at once. File systems take large pieces faster.
inline constexpr std::size_t kGoodPiece = 1U << 20U;

// Buffers small pieces. Throws FileFault with the system's reason; what has been written so far stays in the
// file.
class OutputFile {
  public:
    // Creates the file, or empties an existing one.
    explicit OutputFile(const Path& path);
    // Writes what is still buffered, but only Close() reports a failure.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void Write(std::string_view bytes);
    void Close();

  private:
    void WritePending();

    File file_;
    std::string pending_;
};

}  // namespace lindrel
