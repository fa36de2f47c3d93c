#include "files.h"
#include "system.h"

#include <filesystem>

#include <fcntl.h>
#include <io.h>

#include <windows.h>

#include <shellapi.h>

namespace tool {
namespace {

std::string inUTF8(const wchar_t* text) {
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string converted(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, converted.data(), size, nullptr, nullptr);
    converted.pop_back();  // the NUL
    return converted;
}

std::optional<FileIdentity> identityOf(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION facts{};
    if (::GetFileType(file) != FILE_TYPE_DISK || ::GetFileInformationByHandle(file, &facts) == 0) {
        return std::nullopt;
    }
    return FileIdentity{facts.dwVolumeSerialNumber, std::uint64_t{facts.nFileIndexHigh} << 32U | facts.nFileIndexLow};
}

}  // namespace

std::vector<std::string> wordsOf(int argumentCount, char** arguments) {
    int count = 0;
    wchar_t** const wide = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (wide == nullptr) {
        return {arguments, arguments + argumentCount};
    }
    std::vector<std::string> words;
    for (int index = 0; index < count; ++index) {
        words.push_back(inUTF8(wide[index]));
    }
    ::LocalFree(static_cast<void*>(wide));
    return words;
}

void prepareProcess() {
    ::SetConsoleOutputCP(CP_UTF8);
    for (const int descriptor : {standardInput, standardOutput, standardError}) {
        ::_setmode(descriptor, _O_BINARY);
    }
}

void endByClosedPipe() {}

bool isTerminal(int descriptor) {
    return ::_isatty(descriptor) != 0;
}

std::optional<FileIdentity> identityOf(const std::string& file) {
    if (file == standardStream) {
        return identityOf(::GetStdHandle(STD_INPUT_HANDLE));
    }
    constexpr DWORD sharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE const opened = ::CreateFileW(std::filesystem::u8path(file).c_str(), FILE_READ_ATTRIBUTES, sharedByAll,
                                        nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    const auto identity = identityOf(opened);
    ::CloseHandle(opened);
    return identity;
}

std::optional<std::tm> timeInUTC(std::time_t time) {
    std::tm day{};
    return ::gmtime_s(&day, &time) == 0 ? std::optional(day) : std::nullopt;
}

std::optional<std::tm> localTime(std::time_t time) {
    std::tm day{};
    return ::localtime_s(&day, &time) == 0 ? std::optional(day) : std::nullopt;
}

}  // namespace tool
