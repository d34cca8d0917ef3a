#include "book/OutputFile.h"

#include "book/Faults.h"
#include "book/Files.h"

namespace lindrel {

OutputFile::OutputFile(const std::filesystem::path& path)
    : path_(path), stream_(path, std::ios::binary | std::ios::trunc) {
    if (!stream_) throw FileFault(WideText(path_), L"A fájl nem hozható létre");
}

void OutputFile::Write(std::string_view bytes) {
    stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    Check();
}

void OutputFile::Close() {
    stream_.close();
    Check();
}

void OutputFile::Check() {
    if (!stream_) throw FileFault(WideText(path_), L"A fájl nem írható");
}

}  // namespace lindrel
