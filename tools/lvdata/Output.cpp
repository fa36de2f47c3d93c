#include "Output.h"

#include "Failure.h"
#include "files.h"
#include "replace_file.h"

#include <cstddef>
#include <system_error>
#include <utility>

namespace tool {
namespace {

constexpr std::size_t pieceSize = 65536;

}  // namespace

Output::~Output() {
    try {
        flush();
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): as documented
    }
}

void Output::write(std::string_view text) {
    pending_ += text;
    if (pending_.size() >= pieceSize) {
        flush();
    }
}

void Output::flush() {
    if (pending_.empty()) {
        return;
    }
    if (beforeWriting_) {
        beforeWriting_();
    }
    const std::string text = std::exchange(pending_, {});
    try {
        writeAll(descriptor_, text);
    } catch (const std::system_error& error) {
        if (error.code() == std::errc::broken_pipe) {
            throw ClosedPipe();
        }
        throw Failure("<stdout>", error.code().message());
    }
}

void writeResult(const std::string& file, std::string_view text) {
    if (file != standardStream) {
        writeOutput(file, text);
        return;
    }
    Output output;
    output.write(text);
    output.flush();
}

}  // namespace tool
