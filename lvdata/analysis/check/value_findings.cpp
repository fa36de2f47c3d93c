#include <lvdata/analysis/check/numbers.h>
#include <lvdata/analysis/check/value_findings.h>
#include <lvdata/analysis/content.h>
#include <lvdata/analysis/wording.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace lv::analysis {
namespace {

using Content = Description::Content;

/// The rule that a text of a number breaks; empty for none.
std::string_view ruleOf(NumberText text) {
    switch (text) {
    case NumberText::noNumber:
        return "101";
    case NumberText::outOfRange:
        return "102";
    case NumberText::negative:
        return "103";
    case NumberText::restIgnored:
        return "104";
    case NumberText::otherSpelling:
        return "105";
    case NumberText::empty:
        return "108";
    case NumberText::canonical:
        break;
    }
    return "";
}

std::string limitsOf(Content content) {
    return isSigned(content) ? "-2147483648 to 2147483647" : "0 to 4294967295";
}

/// What is wrong with the text of a number, and how it is read.
std::string messageOf(NumberText text, std::string_view source, std::string_view readAs, Content content) {
    const std::string shown = inQuotes(source);
    const std::string reads = "reads as " + std::string(readAs);
    switch (text) {
    case NumberText::noNumber:
        return shown + " is not a number, " + reads;
    case NumberText::outOfRange:
        return shown + " is outside the range " + limitsOf(content) + ", " + reads;
    case NumberText::negative:
        return shown + " is negative, but the number is unsigned: " + reads;
    case NumberText::restIgnored:
        return "the text after the number in " + shown + " is ignored, " + reads;
    default:
        return shown + " is written back as " + std::string(readAs);
    }
}

std::string readNumber(std::string_view text, Content content) {
    return inPlainForm(text, isSigned(content) ? Content::signedNumber : Content::unsignedNumber);
}

void compareNumbers(Reporter& reporter, const Position& position, const Node& source, std::string_view printed) {
    const Content content = position.shape->facts().content;
    const NumberText text = judgeNumber(source.text, isSigned(content));
    if (text == NumberText::canonical || text == NumberText::empty) {
        reporter.add("109", source, inQuotes(source.text) + " is written back as " + inQuotes(printed));
    } else {
        reporter.add(ruleOf(text), source, messageOf(text, source.text, printed, content));
    }
}

void compareBooleans(Reporter& reporter, const Node& source, std::string_view printed) {
    if (source.text == "TRUE") {
        reporter.add("105", source, R"("TRUE" is written back as "true")");
    } else {
        reporter.add("106", source,
                     inQuotes(source.text) + R"( is neither "true" nor "false", reads as )" + std::string(printed));
    }
}

/// The text as parsing returns it: line ends become line feeds, and whitespace-only text of an element is dropped.
std::string asParsed(std::string_view printed, Node::Kind kind) {
    constexpr std::string_view whiteSpace = " \t\n\v\f\r";
    if (kind == Node::Kind::text && printed.find_first_not_of(whiteSpace) == std::string_view::npos) {
        return "";
    }
    std::string text;
    for (std::size_t index = 0; index < printed.size(); ++index) {
        const bool isReturn = printed[index] == '\r';
        index += isReturn && index + 1 < printed.size() && printed[index + 1] == '\n' ? 1 : 0;
        text += isReturn ? '\n' : printed[index];
    }
    return text;
}

void compareStrings(Reporter& reporter, const Position& position, const Node& source, std::string_view printed) {
    if (position.shape->facts().constant) {
        reporter.add("311", source, inQuotes(source.text) + " is written back as the constant " + inQuotes(printed));
    } else {
        reporter.add("109", source, inQuotes(source.text) + " is written back as " + inQuotes(printed));
    }
}

/// What was found in the pieces of an array, by kinds of number texts.
struct PieceFaults {
    struct Fault {
        std::size_t count = 0;
        std::size_t firstEntry = 0;
        std::string_view firstText{};
    };
    std::array<Fault, 7> byKind{};
};

PieceFaults faultsOf(std::string_view text, bool isSignedArray) {
    PieceFaults faults;
    for (std::size_t entry = 1, begin = 0; begin <= text.size(); ++entry) {
        const std::size_t end = std::min(text.find('|', begin), text.size());
        const std::string_view piece = text.substr(begin, end - begin);
        PieceFaults::Fault& fault = faults.byKind.at(static_cast<std::size_t>(judgeNumber(piece, isSignedArray)));
        if (fault.count++ == 0) {
            fault.firstEntry = entry;
            fault.firstText = piece;
        }
        begin = end + 1;
    }
    return faults;
}

std::string messageOf(NumberText text, const PieceFaults::Fault& fault, Content content) {
    const std::string others = fault.count > 1 ? " (and " + std::to_string(fault.count - 1) + " more)" : "";
    const std::string place = "entry " + std::to_string(fault.firstEntry) + others;
    if (text == NumberText::empty) {
        return place + " is empty: it is dropped, and later entries move up";
    }
    return place + ": " + messageOf(text, fault.firstText, readNumber(fault.firstText, content), content);
}

}  // namespace

bool judgeArray(Reporter& reporter, const Position& position, const Node& source) {
    const Content content = position.shape->facts().content;
    const PieceFaults faults = faultsOf(source.text, isSigned(content));
    bool isFaulty = false;
    for (std::size_t kind = 0; kind < faults.byKind.size(); ++kind) {
        const auto text = static_cast<NumberText>(kind);
        if (faults.byKind.at(kind).count > 0 && text != NumberText::canonical) {
            reporter.add(ruleOf(text), source, messageOf(text, faults.byKind.at(kind), content));
            isFaulty = true;
        }
    }
    return isFaulty;
}

namespace {

void compareArrays(Reporter& reporter, const Position& position, const Node& source, std::string_view printed) {
    if (!judgeArray(reporter, position, source)) {
        reporter.add("109", source, inQuotes(source.text) + " is written back as " + inQuotes(printed));
    }
}

}  // namespace

void compareValues(Reporter& reporter, const Position& position, const Node& source, std::string_view printed) {
    if (source.text == printed && printed.find('\r') == std::string_view::npos && !printed.empty() &&
        printed.front() > ' ') {
        return;  // true for most values
    }
    if (source.text == asParsed(printed, source.kind)) {
        return;
    }
    const Content content = position.shape->facts().content;
    if (source.text.empty() && content != Content::string) {
        const std::string name =
            source.kind == Node::Kind::attribute ? "attribute " + inQuotes(source.name) : "the text";
        reporter.add("107", source, name + " is empty, so it counts as missing; " + inQuotes(printed) + " is written");
        return;
    }
    switch (content) {
    case Content::unsignedNumber:
    case Content::signedNumber:
        compareNumbers(reporter, position, source, printed);
        break;
    case Content::boolean:
        compareBooleans(reporter, source, printed);
        break;
    case Content::unsignedArray:
    case Content::signedArray:
        compareArrays(reporter, position, source, printed);
        break;
    default:
        compareStrings(reporter, position, source, printed);
    }
}

}  // namespace lv::analysis
