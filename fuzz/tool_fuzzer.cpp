#include <fuzz/support/harness.h>
#include <fuzz/support/lossy_text.h>

#include <lvdata/analysis/printable.h>
#include <tools/lvdata/Failure.h>
#include <tools/lvdata/format.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include <CLI/CLI.hpp>

// Any bytes as the file that `lvdata format` is given. It refuses them (its exit code 2), naming the file and changing
// nothing, or it writes a document (exit code 0) that it formats as itself. Any other end is a find.

namespace lv::fuzz {
namespace {

namespace fs = std::filesystem;

/// A folder of the process's own, which goes with it.
class Folder {
public:
    Folder() : path_(fs::temp_directory_path() / "lvdata-fuzz-XXXXXX") {
        if (::mkdtemp(path_.data()) == nullptr) {
            throw fs::filesystem_error("mkdtemp", path_, std::error_code(errno, std::generic_category()));
        }
    }

    ~Folder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    Folder(Folder&&) = delete;
    Folder& operator=(Folder&&) = delete;

    [[nodiscard]] std::string file(const std::string& name) const { return path_ + '/' + name; }

    [[nodiscard]] auto entryCount() const {
        return std::distance(fs::directory_iterator(path_), fs::directory_iterator());
    }

private:
    std::string path_;
};

void write(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

std::string read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Runs "lvdata format" with these arguments; the message when it refuses.
std::optional<std::string> format(std::vector<std::string> arguments) {
    CLI::App application;
    const tool::Subcommand format = tool::addFormat(application);
    std::reverse(arguments.begin(), arguments.end());  // CLI11 takes them from the end
    arguments.emplace_back("format");
    try {
        application.parse(arguments);
        format.run();
        return std::nullopt;
    } catch (const tool::Failure& failure) {
        return failure.what();
    }
}

class Run {
public:
    explicit Run(const Folder& folder)
        : folder_(folder),
          input_(folder.file("in.xml")),
          output_(folder.file("out.xml")) {}

    void check(const std::string& document) const {
        write(input_, document);
        write(output_, untouched);
        const std::optional<std::string> refusal = format({input_, "-o", output_});
        checkFiles(document);
        if (refusal) {
            checkRefusal(*refusal);
        } else {
            checkFormatted(read(output_), !mayHoldLossyText(document));
        }
    }

private:
    void checkFiles(const std::string& document) const {
        checkEqual(read(input_), document, "the input stays as it is");
        fuzz::check(folder_.entryCount() == 2, "no other file is left");
    }

    void checkRefusal(const std::string& message) const {
        const std::string start = input_ + ": error: ";
        checkEqual(message.substr(0, start.size()), start, "the message names the file");
        fuzz::check(message.size() > start.size(), "the message gives a reason");
        fuzz::check(lv::analysis::printable(message).find('\n') == std::string::npos, "the message is one line");
        checkEqual(read(output_), untouched, "the output stays as it was");
    }

    void checkFormatted(const std::string& once, bool lossless) const {
        const std::string twice = formatted(once, {});
        checkEqual(formatted(twice, {}), twice, "what was formatted twice is formatted as itself");
        checkEqual(formatted(formatted(once, {"--compact"}), {}), twice, "compact text says the same");
        if (lossless) {
            checkEqual(twice, once, "what was formatted is formatted as itself");
        }
    }

    [[nodiscard]] std::string formatted(const std::string& document, std::vector<std::string> options) const {
        write(input_, document);
        options.insert(options.end(), {input_, "-o", output_});
        const std::optional<std::string> refusal = format(options);
        fuzz::check(!refusal, "what was formatted is accepted, not refused with " + refusal.value_or(""));
        return read(output_);
    }

    static constexpr const char* untouched = "what was there before";
    const Folder& folder_;
    std::string input_;
    std::string output_;
};

}  // namespace
}  // namespace lv::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const lv::fuzz::Folder folder;
    lv::fuzz::Run(folder).check(lv::fuzz::textOf(data, size));
    return 0;
}
