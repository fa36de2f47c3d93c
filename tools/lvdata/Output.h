#pragma once

#include "system.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tool {

/// Thrown when the reader of standard output has closed the pipe, as in `lvdata ... | head -1`. The command then ends
/// without a message.
class ClosedPipe : public std::runtime_error {
public:
    ClosedPipe() : std::runtime_error("the reader of standard output is gone") {}
};

/// Standard output, written in large pieces. For one thread at a time.
class Output {
public:
    /// The signal SIGPIPE must be ignored, so that writing to a closed pipe fails with an error.
    explicit Output(int descriptor = standardOutput) : descriptor_(descriptor) {}

    /// Writes what is left and ignores errors: call `flush` first if you need to know about them.
    ~Output();

    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    Output(Output&&) = delete;
    Output& operator=(Output&&) = delete;

    /// Adds text; it is written in large pieces. Throws as `flush` does.
    void write(std::string_view text);

    /// Writes everything now. Throws `ClosedPipe` or `Failure`; what could not be written is then dropped.
    void flush();

    /// Writes everything now, before a message on standard error. Throws as `flush` does.
    void prepareForMessage();

    [[nodiscard]] bool isTerminal() const { return tool::isTerminal(descriptor_); }

    /// Sets a function that is called before text is written; an empty function removes it.
    void callBeforeWriting(std::function<void()> function) { beforeWriting_ = std::move(function); }

    /// Sets a function that `prepareForMessage` calls; an empty function removes it.
    void callBeforeMessages(std::function<void()> function) { beforeMessages_ = std::move(function); }

private:
    int descriptor_;
    std::string pending_;
    std::function<void()> beforeWriting_;
    std::function<void()> beforeMessages_;
};

/// Writes a text that is the whole result to the file, or to standard output if `file` is "-". Throws as
/// `Output::flush` does. How an existing file is replaced is described in `lvdata/analysis/files/files.h`.
void writeResult(const std::string& file, std::string_view text);

}  // namespace tool
