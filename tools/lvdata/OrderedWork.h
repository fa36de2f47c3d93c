#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace tool {

/// Runs tasks on threads and returns their results in the order of the tasks.
///
/// \tparam Task    what the source returns, copied to a thread
/// \tparam Result  what a thread returns for it, moved to the caller of `take`
template <class Task, class Result>
class OrderedWork {
public:
    /// The next task; no value at the end. Called by one thread at a time.
    using Source = std::function<std::optional<Task>()>;
    using Work = std::function<Result(const Task&)>;

    /// Starts the threads. At most `window` tasks are in progress, or done and not yet taken. Throws
    /// `std::system_error` when no thread can be started; fewer threads than requested are enough.
    OrderedWork(Source source, Work work, std::size_t threads, std::size_t window)
        : source_(std::move(source)),
          work_(std::move(work)),
          window_(window) {
        startThreads(threads);
    }

    /// Waits for the tasks in progress; the others are dropped.
    ~OrderedWork() {
        {
            const std::lock_guard lock(mutex_);
            isOver_ = true;
        }
        roomOrEnd_.notify_all();
        for (std::thread& thread : threads_) {
            thread.join();
        }
    }

    OrderedWork(const OrderedWork&) = delete;
    OrderedWork& operator=(const OrderedWork&) = delete;
    OrderedWork(OrderedWork&&) = delete;
    OrderedWork& operator=(OrderedWork&&) = delete;

    /// Waits for the next result in order; no value after the last. Throws what the source or the work threw; then
    /// there are no more results.
    std::optional<Result> take() {
        std::unique_lock lock(mutex_);
        resultOrEnd_.wait(lock, [this] { return failure_ || (slots_.empty() ? isOver_ : slots_.front().has_value()); });
        if (failure_) {
            std::rethrow_exception(failure_);
        }
        if (slots_.empty()) {
            return std::nullopt;
        }
        std::optional<Result> result = std::move(slots_.front());
        slots_.pop_front();
        ++taken_;
        lock.unlock();
        roomOrEnd_.notify_one();
        return result;
    }

private:
    struct Numbered {
        std::size_t number;
        Task task;
    };

    void startThreads(std::size_t count) {
        for (std::size_t index = 0; index < count; ++index) {
            try {
                threads_.emplace_back([this] { runThread(); });
            } catch (const std::system_error&) {
                if (threads_.empty()) {
                    throw;
                }
                return;
            }
        }
    }

    void runThread() {
        try {
            while (const std::optional<Numbered> next = begin()) {
                finish(next->number, work_(next->task));
            }
        } catch (...) {
            const std::lock_guard lock(mutex_);
            failure_ = std::current_exception();
            end();
        }
    }

    /// The next task, when there is room for its result.
    std::optional<Numbered> begin() {
        std::unique_lock lock(mutex_);
        roomOrEnd_.wait(lock, [this] { return isOver_ || slots_.size() < window_; });
        std::optional<Task> task = isOver_ ? std::nullopt : source_();
        if (!task) {
            end();
            return std::nullopt;
        }
        slots_.emplace_back();
        return Numbered{taken_ + slots_.size() - 1, std::move(*task)};
    }

    void end() {
        isOver_ = true;
        roomOrEnd_.notify_all();
        resultOrEnd_.notify_all();
    }

    void finish(std::size_t number, Result&& result) {
        const std::lock_guard lock(mutex_);
        slots_[number - taken_] = std::move(result);
        resultOrEnd_.notify_one();
    }

    Source source_;
    Work work_;
    std::size_t window_;
    std::mutex mutex_;  // protects all members below; held during calls of the source
    std::condition_variable roomOrEnd_;
    std::condition_variable resultOrEnd_;
    std::deque<std::optional<Result>> slots_;  // results of the tasks in progress or not yet taken, in order
    std::size_t taken_ = 0;
    bool isOver_ = false;  // no more tasks
    std::exception_ptr failure_;
    std::vector<std::thread> threads_;
};

}  // namespace tool
