#include "Output.h"

#include "Failure.h"
#include "files.h"

#include <lvdata/analysis/files/files.h>

#include <cstddef>
#include <filesystem>
#include <system_error>
#include <utility>

namespace tool {
namespace {

constexpr std::size_t pieceSize = 65536;

void throwUnless(const lv::analysis::SaveResult& result, const std::string& name) {
    if (result.error == std::errc::broken_pipe) {
        throw ClosedPipe();
    }
    if (!result) {
        throw Failure(name, result.reason);
    }
}

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
    throwUnless(lv::analysis::writeDescriptor(descriptor_, text), "<stdout>");
}

void Output::prepareForMessage() {
    flush();
    if (beforeMessages_) {
        beforeMessages_();
    }
}

void writeResult(const std::string& file, std::string_view text) {
    if (file != standardStream) {
        throwUnless(lv::analysis::writeFile(std::filesystem::u8path(file), text), file);
        return;
    }
    Output output;
    output.write(text);
    output.flush();
}

}  // namespace tool
