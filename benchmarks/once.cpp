#include <benchmarks/Monitor.h>
#include <benchmarks/bare.h>
#include <benchmarks/documents.h>

#include <tinyxml2.h>

#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <string>

// once OPERATION STYLE DOCUMENT TIMES: does one thing so many times, for tools that count instructions. What a single
// time costs is the difference between two runs.

namespace benchmarks {
namespace {

using Work = std::function<void()>;

Work bareWork(const std::string& operation, const std::string& text) {
    if (operation == "parse") {
        return [text] {
            tinyxml2::XMLDocument document;
            document.Parse(text.data(), text.size());
        };
    }
    const auto document = std::make_shared<tinyxml2::XMLDocument>();
    document->Parse(text.data(), text.size());
    return [document] {
        static_cast<void>(printBare(*document));
    };
}

Work monitorWork(std::unique_ptr<Monitor> (*make)(), const std::string& operation, const std::string& text) {
    if (operation == "parse") {
        return [make, text] {
            static_cast<void>(make()->parse(text));
        };
    }
    const std::shared_ptr<Monitor> monitor = make();
    static_cast<void>(monitor->parse(text));
    return [monitor] {
        static_cast<void>(monitor->print());
    };
}

Work workOf(const std::string& operation, const std::string& style, const std::string& text) {
    if (style == "bare") {
        return bareWork(operation, text);
    }
    return monitorWork(style == "plain" ? plainMonitor : libraryMonitor, operation, text);
}

std::string textNamed(const std::string& name) {
    for (const Document& document : allDocuments()) {
        if (document.name == name) {
            return document.text();
        }
    }
    return {};
}

}  // namespace
}  // namespace benchmarks

int main(int argc, char** argv) {
    if (argc != 5) {
        std::cerr << "usage: once parse|print bare|lvdata|plain small|typical|wide|arrays TIMES\n";
        return EXIT_FAILURE;
    }
    const benchmarks::Work work = benchmarks::workOf(argv[1], argv[2], benchmarks::textNamed(argv[3]));
    for (int left = std::atoi(argv[4]); left > 0; --left) {
        work();
    }
    return EXIT_SUCCESS;
}
