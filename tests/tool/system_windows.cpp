#include "system.h"

#include <lvdata/analysis/files/windows/Handle.h>

#include <array>
#include <system_error>

#include <fcntl.h>
#include <io.h>

#include <windows.h>

namespace {

namespace fs = std::filesystem;

using lv::analysis::Handle;

std::wstring wide(const std::string& text) {
    return fs::u8path(text).wstring();
}

/// As the program takes it apart again: backslashes count only in front of a quotation mark.
std::string quoted(const std::string& word) {
    std::string result = "\"";
    std::size_t backslashes = 0;
    for (const char letter : word) {
        if (letter == '"') {
            result.append(backslashes + 1, '\\');
        }
        backslashes = letter == '\\' ? backslashes + 1 : 0;
        result += letter;
    }
    return result.append(backslashes, '\\') + '"';
}

std::wstring commandLine(const Process& process) {
    std::string line = quoted(process.program);
    for (const std::string& argument : process.arguments) {
        line += ' ' + quoted(argument);
    }
    return wide(line);
}

/// A file that the process gets as one of its standard streams.
Handle streamOf(const fs::path& path, DWORD access, DWORD disposition) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return Handle(::CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, disposition,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
}

/// Variables of this process, which those that it starts inherit; gone at the end.
class Variables {
public:
    explicit Variables(const Process& process) : process_(process) {
        for (const auto& [name, value] : process.variables) {
            ::SetEnvironmentVariableW(wide(name).c_str(), wide(value).c_str());
        }
    }
    ~Variables() {
        for (const auto& variable : process_.variables) {
            ::SetEnvironmentVariableW(wide(variable.first).c_str(), nullptr);
        }
    }
    Variables(const Variables&) = delete;
    Variables& operator=(const Variables&) = delete;
    Variables(Variables&&) = delete;
    Variables& operator=(Variables&&) = delete;

private:
    const Process& process_;
};

/// The process, once it is started.
Handle start(const Process& process) {
    const Handle input = streamOf(process.input, GENERIC_READ, OPEN_EXISTING);
    const Handle output = streamOf(process.output, FILE_APPEND_DATA, OPEN_ALWAYS);
    const Handle error = streamOf(process.error, GENERIC_WRITE, CREATE_ALWAYS);
    STARTUPINFOW streams{};
    streams.cb = sizeof(streams);
    streams.dwFlags = STARTF_USESTDHANDLES;
    streams.hStdInput = input.get();
    streams.hStdOutput = output.get();
    streams.hStdError = error.get();
    const Variables variables(process);
    std::wstring line = commandLine(process);
    PROCESS_INFORMATION started{};
    lv::analysis::require(::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                           process.folder.c_str(), &streams, &started) != 0);
    ::CloseHandle(started.hThread);
    return Handle(started.hProcess);
}

int waitFor(HANDLE process) {
    if (::WaitForSingleObject(process, secondsToRun * 1000) == WAIT_TIMEOUT) {
        ::TerminateProcess(process, notStarted);
        ::WaitForSingleObject(process, INFINITE);
    }
    DWORD exitCode = notStarted;
    ::GetExitCodeProcess(process, &exitCode);
    return static_cast<int>(exitCode);
}

}  // namespace

int exitCodeOf(const Process& process) {
    if (process.prepare) {
        return notStarted;  // a new process is no copy of this one
    }
    try {
        return waitFor(start(process).get());
    } catch (const std::system_error&) {
        return notStarted;
    }
}

fs::path makeTemporaryFolder() {
    static int made = 0;
    const std::string number = std::to_string(::GetCurrentProcessId()) + '-' + std::to_string(++made);
    fs::path folder = fs::temp_directory_path() / fs::u8path("lvdata-größe-日本-" + number);
    fs::create_directory(folder);
    return folder;
}

int makeFile(const fs::path& path) {
    return ::_wopen(path.c_str(), _O_CREAT | _O_WRONLY | _O_TRUNC | _O_BINARY, 0600);
}
