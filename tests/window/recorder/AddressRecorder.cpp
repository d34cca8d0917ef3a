// Stands in for the browser in tests: the shell starts it with the path of a file and an address, and it
// appends the address to the file as a line of UTF-8.
//     address_recorder.exe FILE ADDRESS
// Without arguments it appends a line to its own path with ".txt" behind it.

#include <windows.h>

#include <shellapi.h>

#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (words == nullptr) return 1;
    const std::wstring path = count > 1 ? std::wstring(words[1]) : std::wstring(words[0]) + L".txt";
    // If the shell splits an address, this shows: "|" comes between its parts.
    std::wstring line = count > 2 ? words[2] : L"started";
    for (int i = 3; i < count; ++i) line.append(L"|").append(words[i]);
    line += L'\n';

    const int length = WideCharToMultiByte(CP_UTF8, 0, line.data(), static_cast<int>(line.size()), nullptr, 0,
                                           nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, line.data(), static_cast<int>(line.size()), bytes.data(), length, nullptr,
                        nullptr);
    const HANDLE file =
        CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    const bool good = file != INVALID_HANDLE_VALUE &&
                      WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
                      written == bytes.size();
    if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
    return good ? 0 : 1;
}
