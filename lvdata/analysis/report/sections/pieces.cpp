#include <lvdata/analysis/report/sections.h>
#include <lvdata/analysis/utf8.h>

#include <algorithm>

namespace lv::analysis {
namespace {

/// Where the text ends after that many characters; its size when it has no more.
std::size_t endOf(std::string_view text, std::size_t characters) {
    std::size_t end = 0;
    for (std::size_t count = 0; count < characters && end < text.size(); ++count) {
        end += std::max<std::size_t>(1, characterLength(text.substr(end)));
    }
    return end;
}

View marked(const char* symbol, const char* word, const char* className) {
    return View::Members{{"symbol", symbol}, {"word", word}, {"class", className}};
}

}  // namespace

std::string shortened(std::string_view text, std::size_t most) {
    const std::string whole = inUTF8(text);
    const std::size_t end = endOf(whole, most);
    return end == whole.size() ? whole : whole.substr(0, end) + "…";
}

View textView(std::string_view text) {
    const std::string part = shortened(text);
    return View::Members{{"text", part}, {"full", part == inUTF8(text) ? std::string_view() : text}};
}

View textView(std::string_view text, std::string_view otherwise) {
    return textView(text.empty() ? otherwise : text);
}

void addFact(View::Items& facts, const char* label, std::string_view text) {
    if (!text.empty()) {
        facts.push_back(View::Members{{"label", label}, {"value", textView(text)}});
    }
}

View markView(Mark mark) {
    switch (mark) {
    case Mark::passes:
        return marked("✓", "Pass", "passes");
    case Mark::fails:
        return marked("✗", "Fail", "fails");
    case Mark::notAvailable:
        return marked("?", "n/a", "missing");
    case Mark::none:
        break;
    }
    return marked("", "No limit", "unjudged");
}

View verdictMarkView(Mark mark) {
    switch (mark) {
    case Mark::notAvailable:
        return marked("?", "Incomplete", "missing");
    case Mark::none:
        return marked("–", "No limits", "unjudged");
    case Mark::passes:
    case Mark::fails:
        break;
    }
    return markView(mark);
}

std::string counted(std::size_t number, std::string_view noun) {
    return std::to_string(number) + " " + std::string(noun) + (number == 1 ? "" : "s");
}

std::string countsText(const Verdict& verdict) {
    const std::size_t all = verdict.passed + verdict.failed + verdict.notAvailable;
    if (all == 0) {
        return "No figure has a limit";
    }
    std::string text = std::to_string(verdict.passed) + " of " + counted(all, "figure") + " within the limits";
    text += verdict.failed == 0 ? "" : ", " + std::to_string(verdict.failed) + " outside";
    text += verdict.notAvailable == 0 ? "" : ", " + std::to_string(verdict.notAvailable) + " without a value";
    return text;
}

}  // namespace lv::analysis
