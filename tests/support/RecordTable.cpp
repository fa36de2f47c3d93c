#include <tests/support/RecordTable.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace lv::test {
namespace {

using Place = Description::Place;
using Repetition = Description::Repetition;
using Kind = Condition::Kind;

std::string code(const std::string& text) {
    return '`' + text + '`';
}

std::string pathTo(const std::string& parent, const std::string& step) {
    return parent.empty() ? step : parent + '/' + step;
}

/// What the words of a row are made from.
struct Row {
    const Description& node;
    std::string parent;  // the path of the parent from the root element, which has none

    [[nodiscard]] std::string path() const { return pathTo(parent, node.xpathStep()); }
};

/// The subjects of a description's conditions start at the described node; those of a table start at the root element.
std::string fromRoot(std::string subject, const Row& row) {
    std::string path = row.path();
    while (subject.rfind("..", 0) == 0) {
        const std::size_t slash = path.rfind('/');
        path.resize(slash == std::string::npos ? 0 : slash);
        subject.erase(0, 3);
    }
    return subject.empty() || subject == "." ? path : pathTo(path, subject);
}

/// One of several that share a flag: one inside the node if there is any.
std::string nearest(const std::vector<std::string>& subjects) {
    const auto inside = std::find_if(subjects.begin(), subjects.end(),
                                     [](const std::string& subject) { return subject.rfind("..", 0) != 0; });
    return inside == subjects.end() ? subjects.front() : *inside;
}

Condition asWritten(Condition condition, const Row& row) {
    if (condition.kind == Kind::isSet) {
        condition.subjects = {nearest(condition.subjects)};
    }
    for (std::string& subject : condition.subjects) {
        subject = code(fromRoot(subject, row));
    }
    for (Condition& alternative : condition.alternatives) {
        alternative = asWritten(alternative, row);
    }
    return condition;
}

std::string inWords(const Condition& condition, const Row& row) {
    return condition.kind == Kind::hlgSwitch ? "the [HLG switch](../format.md#the-hlg-switch) is on"
                                             : asWritten(condition, row).toString();
}

/// Whether the second condition allows all that the first one does, and more.
bool isNarrowerThan(const Condition& narrow, const Condition& wide) {
    const auto isAllowed = [&wide](const std::string& text) {
        return std::find(wide.texts.begin(), wide.texts.end(), text) != wide.texts.end();
    };
    return narrow.kind == Kind::oneOf && wide.kind == Kind::oneOf && narrow.subjects == wide.subjects &&
           narrow.texts.size() < wide.texts.size() && std::all_of(narrow.texts.begin(), narrow.texts.end(), isAllowed);
}

/// "when this and that"; empty when there are none. What a narrower condition implies is not said.
std::string whenAll(const std::vector<Condition>& conditions, const Row& row, std::string words = "") {
    for (const Condition& condition : conditions) {
        const bool isImplied = std::any_of(conditions.begin(), conditions.end(),
                                           [&](const Condition& other) { return isNarrowerThan(other, condition); });
        if (!isImplied) {
            words += (words.empty() ? "when " : " and ") + inWords(condition, row);
        }
    }
    return words;
}

/// "256 or 1024"
std::string entriesOf(const Description& node) {
    std::string words;
    for (const std::size_t length : node.lengths) {
        words += (words.empty() ? "" : " or ") + std::to_string(length);
    }
    return words;
}

std::string withComma(const std::string& words, const std::string& more) {
    return words.empty() || more.empty() ? words + more : words + ", " + more;
}

std::string withEntries(const std::string& words, const Description& node) {
    return node.lengths.empty() ? words : withComma(words, "with " + entriesOf(node) + " entries");
}

std::string written(const Row& row) {
    const Description& node = row.node;
    const std::string when = whenAll(node.writtenWhen, row, node.isOptional ? "when set" : "");
    const std::string rows = node.repetition == Repetition::rows ? "for every row" : "";
    const std::string words = withEntries(withComma(rows, when), node);
    return words.empty() ? "always" : words;
}

/// Without the subject when that is the row's own node alone: "exists".
std::string flag(const Row& row) {
    if (!row.node.flag) {
        return "";
    }
    const std::string words = inWords(*row.node.flag, row);
    const std::string own = code(row.path()) + ' ';
    return withEntries(words.rfind(own, 0) == 0 ? words.substr(own.size()) : words, row.node);
}

std::string text(const Description& node) {
    if (node.constant) {
        return code(*node.constant);
    }
    if (!node.record.empty()) {
        return "record";
    }
    constexpr std::array<const char*, 7> contents = {"",       "string",         "boolean",     "unsigned",
                                                     "signed", "unsigned array", "signed array"};
    return contents.at(static_cast<std::size_t>(node.content));
}

std::string scale(const Quantity& quantity) {
    return quantity.factor == 1 ? "" : "× " + std::to_string(quantity.factor);
}

std::string unit(const Quantity& quantity) {
    return quantity.unit == unknownUnit ? "not recorded" : std::string(quantity.unit);
}

/// That of the quantity, and that of the other one where it is different.
std::string ofQuantities(std::string (*wordsOf)(const Quantity&), const Row& row) {
    if (!row.node.quantity) {
        return "";
    }
    std::string usual = wordsOf(*row.node.quantity);
    std::string words = usual;
    for (const Description::QuantityWhen& other : row.node.otherQuantities) {
        if (wordsOf(other.quantity) != usual) {
            words += ", or " + wordsOf(other.quantity) + " when " + inWords(other.condition, row);
        }
    }
    return words;
}

std::string element(const Description& node) {
    const std::string step = code(node.xpathStep());
    return node.record.empty() ? step : '[' + step + "](" + node.record + ".md)";
}

std::vector<std::string> cells(const Row& row) {
    return {element(row.node),
            row.parent.empty() ? "" : code(row.parent),
            text(row.node),
            entriesOf(row.node),
            ofQuantities(&scale, row),
            ofQuantities(&unit, row),
            "",
            written(row),
            whenAll(row.node.readWhen, row),
            flag(row)};
}

/// What nested records hold is on their own pages.
void addRows(MarkdownTable& table, const Description& parent, const std::string& path) {
    for (const Description& child : parent.children) {
        const Row row = {child, path};
        table.rows.push_back(cells(row));
        if (child.record.empty()) {
            addRows(table, child, row.path());
        }
    }
}

}  // namespace

MarkdownTable recordTableOf(const Description& record) {
    MarkdownTable table = {{"Element", "In", "Text", "Entries", "Scale", "Unit", "Member", "Written", "Read", "Flag"}};
    addRows(table, record, "");
    return table;
}

}  // namespace lv::test
