#pragma once

#include <atomic>
#include <thread>
#include <vector>

namespace lv::test {

/// Does the work in eight threads that begin together, a few times over in each, and waits for all.
template <class Work>
void inThreads(Work work) {
    constexpr int threadCount = 8;
    constexpr int rounds = 10;
    std::atomic<int> missing = threadCount;
    const auto run = [&] {
        --missing;
        while (missing != 0) {
            std::this_thread::yield();
        }
        for (int round = 0; round < rounds; ++round) {
            work();
        }
    };
    std::vector<std::thread> threads;
    while (threads.size() < threadCount) {
        threads.emplace_back(run);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

}  // namespace lv::test
