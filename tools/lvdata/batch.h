#pragma once

#include "ExitStatus.h"
#include "InputOptions.h"
#include "InputWalk.h"
#include "Output.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

#include <CLI/CLI.hpp>

namespace tool {

/// At least 1.
[[nodiscard]] std::size_t processorCount();

/// What a subcommand works on, and how many documents at a time.
struct BatchOptions {
    InputOptions inputs;
    std::size_t jobs = processorCount();  // at least 1
};

/// Adds the options of inputs and "--jobs", whose default and largest effect is the number of processors. The options
/// must outlive the command. Uses the command's `parse_complete_callback`.
void addBatchOptions(CLI::App& command, BatchOptions& options);

/// The number of threads for that: not more than there are processors.
[[nodiscard]] std::size_t jobsOf(const BatchOptions& options);

/// Writes the result of one input, and returns its status.
using Delivery = std::function<ExitStatus()>;

/// `forEachInput` without its types, and with exactly that number of threads: `prepare` processes an input and returns
/// the function to call in order.
ExitStatus runBatch(const InputOptions& inputs, std::size_t jobs, Output& output,
                    const std::function<Delivery(const Input&)>& prepare);

/// Processes every input, and returns the worst status: the one of `deliver`, or `failed` for an input that could not
/// be processed.
///
/// - `work(const Input&)` returns a result that can be moved. It is called on as many threads as there are jobs, for
/// one
///   job on the calling thread. An exception is printed as a message instead of the result; the other inputs are still
///   processed.
/// - `deliver(Result&&)` returns the `ExitStatus` of one result. It is called on the calling thread, in the order of
/// the
///   inputs. It writes to `output`. An exception ends the batch and is passed on.
///
/// Only a few results per job wait for their turn. `output` is flushed at the end. Progress is shown on standard error
/// where that is a terminal.
template <class Work, class Deliver>
ExitStatus forEachInput(const BatchOptions& options, Output& output, const Work& work, const Deliver& deliver) {
    return runBatch(options.inputs, jobsOf(options), output, [&work, &deliver](const Input& input) -> Delivery {
        using Result = std::decay_t<decltype(work(input))>;
        return [&deliver, result = std::make_shared<Result>(work(input))] {
            return deliver(std::move(*result));
        };
    });
}

}  // namespace tool
