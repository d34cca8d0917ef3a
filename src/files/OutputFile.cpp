#include "files/OutputFile.h"

#include <utility>

namespace lindrel {

OutputFile::OutputFile(const Path& path) : file_(File::ForWriting(path)) {}

OutputFile::~OutputFile() {
    try {
        WritePending();
    } catch (...) {
        // Without Close() there is another exception on its way, which must not be replaced.
    }
}

void OutputFile::Write(std::string_view bytes) {
    if (pending_.size() + bytes.size() < kGoodPiece) {
        pending_.append(bytes);
        return;
    }
    WritePending();
    file_.Write(bytes);
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
