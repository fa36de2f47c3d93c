#include <benchmarks/documents.h>

#include <lvdata/records/CandelaMap.h>

#include <tinyxml2.h>

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <new>
#include <string>

// The most memory that a parse and a print hold at a time, as a multiple of the document, and what is left of it
// afterwards. Counted at the global operators new and delete, which the libraries share with this program. Either may
// hold six times the document, a parse a quarter more than the XML library's own tree where that is larger (short
// elements are small beside their nodes), and both 16 KB besides: the pools of the XML library, however small a
// document.

namespace {

std::atomic<std::size_t> held{0};
std::atomic<std::size_t> most{0};

void* take(std::size_t size) {
    void* const memory = std::malloc(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    held += malloc_usable_size(memory);
    most = std::max<std::size_t>(most, held);
    return memory;
}

void release(void* memory) noexcept {
    held -= malloc_usable_size(memory);
    std::free(memory);
}

}  // namespace

void* operator new(std::size_t size) {
    return take(size);
}
void* operator new[](std::size_t size) {
    return take(size);
}
void operator delete(void* memory) noexcept {
    release(memory);
}
void operator delete[](void* memory) noexcept {
    release(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    release(memory);
}
void operator delete[](void* memory, std::size_t /*size*/) noexcept {
    release(memory);
}

namespace benchmarks {
namespace {

struct Use {
    std::size_t most;
    std::size_t left;
};

template <class Work>
Use measured(Work work) {
    const std::size_t before = held;
    most = before;
    work();
    return {most - before, held - before};
}

/// What the XML library holds for the document, as a multiple of it.
double treeOf(const std::string& text) {
    const Use use = measured([&text] {
        tinyxml2::XMLDocument document;
        document.Parse(text.data(), text.size());
    });
    return static_cast<double>(use.most) / static_cast<double>(text.size());
}

constexpr double usualLimit = 6;
constexpr double pools = 16384;

bool report(const std::string& what, const std::string& text, const Use& use, double multipleAllowed) {
    const double limit = multipleAllowed + pools / static_cast<double>(text.size());
    const double multiple = static_cast<double>(use.most) / static_cast<double>(text.size());
    const bool good = multiple <= limit && use.left == 0;
    std::cout << std::left << std::setw(20) << what << std::fixed << std::setprecision(2) << multiple
              << " times the document, limit " << limit << ", " << use.left << " bytes left"
              << (good ? "" : "   <- TOO MUCH") << '\n';
    return good;
}

bool reportDocument(const Document& document) {
    const std::string text = document.text();
    const Use parsing = measured([&text] {
        lv::MonitorInfo monitor;
        static_cast<void>(monitor.parseXMLString(text));
    });
    const Use printing = measured([&document] { static_cast<void>(document.text()); });
    const double treeAllowed = std::max(usualLimit, 1.25 * treeOf(text));
    const bool parsingIsGood = report("parse " + document.name, text, parsing, treeAllowed);
    return report("print " + document.name, text, printing, usualLimit) && parsingIsGood;
}

/// Numbers of one digit: what is held for each is large beside its text.
bool reportShortNumbers() {
    lv::CandelaMap map;
    map.uniformity.values.assign(500000, 7);
    map.uniformity.valid = true;
    const std::string text = map.toXMLString(false, false);
    const Use printing = measured([&map] { static_cast<void>(map.toXMLString(false, false)); });
    return report("print short numbers", text, printing, usualLimit);
}

}  // namespace
}  // namespace benchmarks

int main() {
    bool good = benchmarks::reportShortNumbers();
    for (const benchmarks::Document& document : benchmarks::allDocuments()) {
        good = benchmarks::reportDocument(document) && good;
    }
    return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
