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

/// How many threads there are for that: not more than processors.
[[nodiscard]] std::size_t jobsOf(const BatchOptions& options);

/// Brings the result of one input to its user, and tells what it amounts to.
using Delivery = std::function<ExitStatus()>;

/// `forEachInput` without its types, and with exactly that number of threads: `prepare` works on an input and returns
/// what is to be called in order.
ExitStatus runBatch(const InputOptions& inputs, std::size_t jobs, Output& output,
                    const std::function<Delivery(const Input&)>& prepare);

/// Works on every input, and returns the worst status: of `deliver`, and `failed` where an input could not be worked
/// on.
///
/// - `work(const Input&)` returns a result that can be moved. It is called on as many threads as there are jobs, for
/// one
///   job on the calling thread. What it throws is printed as a message in place of the result; the others go on.
/// - `deliver(Result&&)` returns the `ExitStatus` of one result. It is called on the calling thread, in the order of
/// the
///   inputs. What it writes goes to `output`. What it throws ends the batch and is passed on.
///
/// A few results for each job wait for their turn, and not more. `output` is flushed at the end. Progress is shown on
/// standard error where that is a terminal.
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
