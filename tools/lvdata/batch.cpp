#include "batch.h"

#include "Failure.h"
#include "InputCount.h"
#include "OrderedWork.h"
#include "Progress.h"
#include "count_option.h"
#include "files.h"
#include "messages.h"

#include <algorithm>
#include <new>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <variant>

namespace tool {
namespace {

using Prepare = std::function<Delivery(const Input&)>;

/// The message of a failure.
using Message = std::string;

/// An input, or the message why it could not be found.
using Found = std::variant<Input, Message>;

/// A result to deliver, or a message instead.
using Prepared = std::variant<Delivery, Message>;

std::optional<Found> nextFound(InputWalk& inputs) {
    try {
        auto input = inputs.next();
        return input ? std::optional<Found>(std::move(*input)) : std::nullopt;
    } catch (const Failure& failure) {
        return failure.what();
    }
}

Prepared prepareInput(const Input& input, const Prepare& prepare) {
    try {
        return prepare(input);
    } catch (const Failure& failure) {
        return failure.what();
    } catch (const std::bad_alloc&) {
        return Failure(inputName(input.file), "out of memory").what();
    } catch (const std::exception& error) {
        return Failure(inputName(input.file), error.what()).what();
    }
}

Prepared prepareFound(const Found& found, const Prepare& prepare) {
    const Input* const input = std::get_if<Input>(&found);
    return input == nullptr ? Prepared(std::get<Message>(found)) : prepareInput(*input, prepare);
}

/// Delivers on the calling thread, and shows the progress.
class Delivering {
public:
    Delivering(const InputOptions& inputs, Output& output) : output_(output), progress_(terminalWriter()) {
        if (progress_.isShown()) {
            count_.emplace(inputs);
        }
        output_.callBeforeMessages([this] { progress_.hide(); });
        if (output_.isTerminal()) {
            output_.callBeforeWriting([this] { progress_.hide(); });
        }
    }

    ~Delivering() {
        output_.callBeforeWriting({});
        output_.callBeforeMessages({});
    }
    Delivering(const Delivering&) = delete;
    Delivering& operator=(const Delivering&) = delete;
    Delivering(Delivering&&) = delete;
    Delivering& operator=(Delivering&&) = delete;

    void deliver(const Prepared& prepared) {
        const Message* const message = std::get_if<Message>(&prepared);
        status_ = worst(status_, message == nullptr ? std::get<Delivery>(prepared)() : report(*message));
        if (output_.isTerminal()) {
            output_.flush();
        }
        progress_.show(++done_, count_ ? count_->total() : std::nullopt);
    }

    ExitStatus finish() {
        output_.flush();
        return status_;
    }

private:
    /// Earlier results are written before the message, for the case that both go to the same terminal or file.
    ExitStatus report(const Message& message) {
        output_.prepareForMessage();
        printMessage(message);
        return ExitStatus::failed;
    }

    Output& output_;
    Progress progress_;
    std::optional<InputCount> count_;
    std::size_t done_ = 0;
    ExitStatus status_ = ExitStatus::done;
};

void deliverAlone(InputWalk& inputs, const Prepare& prepare, Delivering& delivering) {
    while (const auto found = nextFound(inputs)) {
        delivering.deliver(prepareFound(*found, prepare));
    }
}

void deliverFromThreads(InputWalk& inputs, const Prepare& prepare, std::size_t jobs, Delivering& delivering) {
    constexpr std::size_t resultsPerJob = 8;  // one slow document does not stop the other threads
    OrderedWork<Found, Prepared> work([&inputs] { return nextFound(inputs); },
                                      [&prepare](const Found& found) { return prepareFound(found, prepare); }, jobs,
                                      jobs * resultsPerJob);
    while (const auto prepared = work.take()) {
        delivering.deliver(*prepared);
    }
}

}  // namespace

std::size_t processorCount() {
    return std::max(1U, std::thread::hardware_concurrency());
}

std::size_t jobsOf(const BatchOptions& options) {
    return std::min(options.jobs, processorCount());
}

void addBatchOptions(CLI::App& command, BatchOptions& options) {
    addInputOptions(command, options.inputs);
    constexpr CountRange range{1, 1024};
    addCountOption(command, "-j,--jobs", options.jobs, range,
                   "Maximum number of documents to work on at a time (default and limit: the number of processors)");
}

ExitStatus runBatch(const InputOptions& options, std::size_t jobs, Output& output, const Prepare& prepare) {
    Delivering delivering(options, output);
    InputWalk inputs(options);
    if (jobs > 1) {
        deliverFromThreads(inputs, prepare, jobs, delivering);
    } else {
        deliverAlone(inputs, prepare, delivering);
    }
    return delivering.finish();
}

}  // namespace tool
