#include "Folder.h"

#include <lvdata/analysis/files/files.h>

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

// The command as a user runs it.

namespace lv::test {
namespace {

using testing::HasSubstr;
using testing::Not;

class CommandOnWindows : public testing::Test {
protected:
    /// Runs it in the folder and returns its exit code. What it prints goes to the files "output" and "error".
    [[nodiscard]] DWORD run(const std::string& arguments) const {
        Streams streams(folder);
        std::wstring words = std::filesystem::u8path('"' + std::string(LVDATA_TOOL) + "\" " + arguments).wstring();
        STARTUPINFOW start = streams.startupInfo();
        PROCESS_INFORMATION process{};
        if (::CreateProcessW(nullptr, words.data(), nullptr, nullptr, TRUE, 0, nullptr, folder.path("").c_str(), &start,
                             &process) == 0) {
            return ::GetLastError() + 1000;
        }
        ::WaitForSingleObject(process.hProcess, INFINITE);
        DWORD exitCode = 0;
        ::GetExitCodeProcess(process.hProcess, &exitCode);
        ::CloseHandle(process.hProcess);
        ::CloseHandle(process.hThread);
        return exitCode;
    }

    void copySample(const std::string& name) const {
        std::filesystem::copy_file(std::filesystem::u8path(LVDATA_STUDIO), folder.path(name));
    }

    Folder folder;

private:
    /// Files in place of the standard streams.
    class Streams {
    public:
        explicit Streams(const Folder& folder)
            : output_(create(folder.path("output"))),
              error_(create(folder.path("error"))) {}
        ~Streams() {
            ::CloseHandle(output_);
            ::CloseHandle(error_);
        }
        Streams(const Streams&) = delete;
        Streams& operator=(const Streams&) = delete;
        Streams(Streams&&) = delete;
        Streams& operator=(Streams&&) = delete;

        [[nodiscard]] STARTUPINFOW startupInfo() const {
            STARTUPINFOW start{};
            start.cb = sizeof(start);
            start.dwFlags = STARTF_USESTDHANDLES;
            start.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
            start.hStdOutput = output_;
            start.hStdError = error_;
            return start;
        }

    private:
        static HANDLE create(const std::filesystem::path& path) {
            SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
            return ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                                 FILE_ATTRIBUTE_NORMAL, nullptr);
        }

        HANDLE output_;
        HANDLE error_;
    };
};

TEST_F(CommandOnWindows, PrintsItsVersionWithoutCarriageReturn) {
    EXPECT_EQ(run("--version"), 0U);
    EXPECT_THAT(folder.read("output"), HasSubstr("lvdata "));
    EXPECT_THAT(folder.read("output"), Not(HasSubstr("\r")));
}

TEST_F(CommandOnWindows, PrintsADocumentAsItIsWithoutCarriageReturn) {
    copySample("Größe 日本.xml");
    EXPECT_EQ(run("format \"Größe 日本.xml\""), 0U);
    EXPECT_EQ(folder.read("output"), folder.read("Größe 日本.xml"));
}

TEST_F(CommandOnWindows, SaysInUTF8WhichFileIsMissing) {
    EXPECT_EQ(run("show \"Größe 日本.xml\""), 2U);
    EXPECT_EQ(folder.read("error"), "Größe 日本.xml: error: No such file or directory\n");
}

TEST_F(CommandOnWindows, ReplacesAFile) {
    copySample("日本.xml");
    folder.write("ausgabe-ß.xml", "old");
    EXPECT_EQ(run("format \"日本.xml\" -o \"ausgabe-ß.xml\""), 0U);
    EXPECT_EQ(folder.read("ausgabe-ß.xml"), folder.read("日本.xml"));
}

TEST_F(CommandOnWindows, DoesNotWriteOverAnInputUnderAnotherSpelling) {
    copySample("Studio.xml");
    EXPECT_EQ(run("report Studio.xml -o STUDIO.XML"), 2U);
    EXPECT_THAT(folder.read("error"), HasSubstr("one of the inputs"));
    EXPECT_EQ(folder.read("Studio.xml").substr(0, 5), "<?xml");
}

TEST_F(CommandOnWindows, ConvertsAFolder) {
    std::filesystem::create_directory(folder.path("Ordner-ä"));
    copySample("Ordner-ä/日本.xml");
    EXPECT_EQ(run("convert --to jsonl Ordner-ä"), 0U) << folder.read("error");
    EXPECT_THAT(folder.read("output"), HasSubstr("日本.xml"));
}

}  // namespace
}  // namespace lv::test
