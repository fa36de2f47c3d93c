#include <benchmarks/bare.h>
#include <benchmarks/documents.h>
#include <benchmarks/styles.h>

#include <tinyxml2.h>

#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

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

Work styleWork(const Style& style, const std::string& operation, const std::string& text) {
    if (operation == "parse") {
        return [make = style.make, text] {
            static_cast<void>(make()->parse(text));
        };
    }
    const std::shared_ptr<Monitor> monitor = style.make();
    static_cast<void>(monitor->parse(text));
    return [monitor] {
        static_cast<void>(monitor->print());
    };
}

/// No work when there is no such style.
Work workOf(const std::string& operation, const std::string& style, const std::string& text) {
    if (style == "bare") {
        return bareWork(operation, text);
    }
    for (const Style& each : styles()) {
        if (each.name == style) {
            return styleWork(each, operation, text);
        }
    }
    return {};
}

std::string textNamed(const std::string& name) {
    for (const Document& document : allDocuments()) {
        if (document.name == name) {
            return document.text();
        }
    }
    return {};
}

/// No work when one of the words is unknown.
Work workOf(const std::vector<std::string>& words) {
    const bool known = words.size() == 4 && (words[0] == "parse" || words[0] == "print");
    const std::string text = known ? textNamed(words[2]) : std::string();
    return text.empty() ? Work() : workOf(words[0], words[1], text);
}

}  // namespace
}  // namespace benchmarks

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    const benchmarks::Work work = benchmarks::workOf(words);
    if (!work) {
        std::cerr << "usage: once parse|print bare|lvdata|plain|pugixml small|typical|wide|arrays TIMES\n";
        return EXIT_FAILURE;
    }
    for (int left = std::atoi(words[3].c_str()); left > 0; --left) {
        work();
    }
    return EXIT_SUCCESS;
}
