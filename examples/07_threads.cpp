// Threads: any number of them may read or print one record; a record that one of them changes belongs to it alone.

#include <lvdata/lvdata.h>

#include <array>
#include <cstddef>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr std::size_t threadCount = 4;

/// The work of one thread: a copy of the shared record, which shares nothing with it, with a value of its own.
std::string withBrightness(const lv::MonitorParameter& shared, unsigned int brightness) {
    lv::MonitorParameter own = shared;
    own.brightness.set(brightness);
    return own.toXMLString(false, false);
}

}  // namespace

int main() {
    lv::MonitorParameter shared;
    shared.redGain_x(0.985);  // filled before the threads start; from now on only read

    std::array<std::string, threadCount> texts;  // a place for each thread
    std::vector<std::thread> threads;
    for (std::size_t index = 0; index < threadCount; ++index) {
        threads.emplace_back([&shared, &text = texts.at(index), index] {
            text = withBrightness(shared, 100 + static_cast<unsigned int>(index));
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }

    for (const std::string& text : texts) {
        std::cout << text << '\n';
    }
    std::cout << "shared brightness set: " << (shared.brightness.hasValue ? "yes" : "no") << '\n';
}
