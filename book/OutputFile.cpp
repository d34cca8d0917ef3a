#include "book/OutputFile.h"

#include <cstddef>
#include <utility>

namespace lindrel {

namespace {
constexpr std::size_t kBlockBytes = 65536;
}

OutputFile::OutputFile(const std::filesystem::path& path) : file_(File::ForWriting(path)) {}

OutputFile::~OutputFile() {
    try {
        WritePending();
    } catch (...) {
        // Without Close() there is another exception on its way, which must not be replaced.
    }
}

void OutputFile::Write(std::string_view bytes) {
    pending_.append(bytes);
    if (pending_.size() >= kBlockBytes) WritePending();
}

void OutputFile::Close() {
    WritePending();
    file_.Close();
}

void OutputFile::WritePending() {
    // Emptied first, so that the destructor does not try again what could not be written.
    const std::string bytes = std::exchange(pending_, {});
    file_.Write(bytes);
}

}  // namespace lindrel
