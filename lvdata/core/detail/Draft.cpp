#include <lvdata/core/detail/Draft.h>

#include <algorithm>
#include <iterator>
#include <string>

namespace lv::detail {
namespace {

using Members = std::vector<const void*>;
using Path = std::vector<const DraftNode*>;

/// The nodes from the root to this one.
Path pathTo(const DraftNode* node) {
    Path path;
    for (; node != nullptr; node = node->parent) {
        path.insert(path.begin(), node);
    }
    return path;
}

/// From one node to another: up to the last that both paths have, then down.
std::string xpath(const DraftNode& from, const DraftNode& to) {
    const Path start = pathTo(&from);
    const Path end = pathTo(&to);
    const auto [up, down] = std::mismatch(start.begin(), start.end(), end.begin(), end.end());
    std::string path;
    for (auto step = up; step != start.end(); ++step) {
        path += path.empty() ? ".." : "/..";
    }
    for (auto step = down; step != end.end(); ++step) {
        path += (path.empty() ? "" : "/") + (*step)->facts.xpathStep();
    }
    return path.empty() ? "." : path;
}

/// A string is found when it is there; the other contents need a text.
bool isFoundWithoutText(const Description& facts) {
    return facts.content == Description::Content::none || facts.content == Description::Content::string;
}

Condition isFound(const DraftNodes& nodes, const DraftNode& node) {
    Condition condition;
    condition.kind = isFoundWithoutText(nodes.front()->facts) ? Condition::Kind::exists : Condition::Kind::hasText;
    for (const DraftNode* const found : nodes) {
        condition.subjects.push_back(xpath(node, *found));
    }
    return condition;
}

/// A gate that asks for the node's own flag makes it optional, as operations that consult the flag do.
void moveOwnFlag(Description& description) {
    const auto asksForOwnFlag = [](const Condition& condition) {
        const auto& subjects = condition.subjects;
        return condition.kind == Condition::Kind::isSet &&
               std::find(subjects.begin(), subjects.end(), ".") != subjects.end();
    };
    auto& conditions = description.writtenWhen;
    const auto found = std::find_if(conditions.begin(), conditions.end(), asksForOwnFlag);
    if (found != conditions.end()) {
        conditions.erase(found);
        description.isOptional = true;
    }
}

template <class T>
const T* endOf(const T* begin, std::size_t count) {
    return std::next(begin, static_cast<std::ptrdiff_t>(count));
}

}  // namespace

const DraftCondition* draftComparison(Draft& draft, Condition::Kind kind, const void* subject,
                                      const std::string_view* texts, std::size_t count) {
    DraftCondition condition{{kind}, Members{subject}};
    std::transform(texts, endOf(texts, count), std::back_inserter(condition.words.texts),
                   [](std::string_view text) { return std::string(text); });
    return draft.keep(std::move(condition));
}

const DraftCondition* draftComparison(Draft& draft, Condition::Kind kind, const void* subject,
                                      const unsigned int* numbers, std::size_t count) {
    DraftCondition condition{{kind}, Members{subject}};
    std::transform(numbers, endOf(numbers, count), std::back_inserter(condition.words.texts),
                   [](unsigned int number) { return std::to_string(number); });
    return draft.keep(std::move(condition));
}

const DraftCondition* draftOfOne(Draft& draft, Condition::Kind kind, const void* subject) {
    return draft.keep({{kind}, Members{subject}});
}

const DraftCondition* draftEntries(Draft& draft, std::size_t entries, const void* const* subjects, std::size_t count) {
    DraftCondition condition{{Condition::Kind::haveEntries}};
    std::copy_n(subjects, count, std::back_inserter(condition.subjects));
    condition.words.entries = entries;
    return draft.keep(std::move(condition));
}

const DraftCondition* draftAnyOf(Draft& draft, const DraftCondition* const* alternatives, std::size_t count) {
    DraftCondition condition{{Condition::Kind::anyOf}};
    std::copy_n(alternatives, count, std::back_inserter(condition.alternatives));
    return draft.keep(std::move(condition));
}

const DraftCondition* draftHLGSwitch(Draft& draft) {
    return draft.keep({{Condition::Kind::hlgSwitch}});
}

const DraftCondition* draftRule(Draft& draft, const char* words, const void* const* subjects, std::size_t count) {
    DraftCondition condition{{Condition::Kind::rule}};
    condition.words.rule = words;
    std::copy_n(subjects, count, std::back_inserter(condition.subjects));
    return draft.keep(std::move(condition));
}

DraftNode& Draft::addChild(DraftNode& parent) {
    DraftNode& child = descendants_.emplace_back();
    child.parent = &parent;
    parent.children.push_back(&child);
    return child;
}

DraftNodes Draft::nodesOf(const void* member) const {
    const auto found = nodes_.find(member);
    return found == nodes_.end() ? DraftNodes() : found->second;
}

Condition Draft::finished(const DraftCondition& draft, const DraftNode& node) const {
    Condition condition = draft.words;
    for (const void* const member : draft.subjects) {
        if (nodesOf(member).empty()) {
            condition.subjects.emplace_back("?");  // the visit names it nowhere; tests look for this
        }
        for (const DraftNode* const subject : nodesOf(member)) {
            condition.subjects.push_back(xpath(node, *subject));
        }
    }
    condition.alternatives = finished(draft.alternatives, node);
    return condition;
}

std::vector<Condition> Draft::finished(const DraftConditions& draft, const DraftNode& node) const {
    std::vector<Condition> conditions;
    std::transform(draft.begin(), draft.end(), std::back_inserter(conditions),
                   [&](const DraftCondition* each) { return finished(*each, node); });
    return conditions;
}

Description Draft::finished(const DraftNode& node) const {
    Description description = node.facts;
    description.writtenWhen = finished(node.writtenWhen, node);
    moveOwnFlag(description);
    description.readWhen = finished(node.readWhen, node);
    for (const DraftQuantityWhen& other : node.otherQuantities) {
        description.otherQuantities.push_back({finished(*other.when, node), *other.quantity});
    }
    if (node.flagWhen != nullptr) {
        description.flag = finished(*node.flagWhen, node);
    } else if (!node.flagNodes.empty()) {
        description.flag = isFound(node.flagNodes, node);
    }
    for (const DraftNode* const child : node.children) {  // a nested record has its own
        description.children.push_back(finished(*child));
    }
    return description;
}

}  // namespace lv::detail
