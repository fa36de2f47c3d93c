#pragma once

#include <lvdata/analysis/Tree.h>
#include <lvdata/analysis/check/Collector.h>
#include <lvdata/analysis/check/PathStack.h>
#include <lvdata/analysis/wording.h>

#include <optional>
#include <string>
#include <string_view>

namespace lv::analysis {

/// Makes findings about the nodes of the element where a walk is.
class Reporter {
public:
    /// The collector must outlive the reporter.
    explicit Reporter(Collector& collector) : collector_(collector) {}

    /// The way to the element, which the walk keeps up.
    [[nodiscard]] PathStack& path() { return path_; }

    /// Whether the rule of that id is looked for.
    [[nodiscard]] bool isWanted(std::string_view id) const { return collector_.isWanted(id); }

    /// Whether another finding of that rule would be listed. Call this before work that only the message needs.
    [[nodiscard]] bool isListing(std::string_view id) const { return collector_.isListing(id); }

    /// A finding about the element where the walk is, or about its text or its markup.
    void addHere(std::string_view id, int line, const std::string& message) {
        collector_.add(id, line, collector_.isListing(id) ? path_.text() : "", message);
    }

    /// A finding about an attribute of that element, or about an element or text in it.
    void add(std::string_view id, const Node& node, const std::string& message,
             std::optional<Severity> severity = std::nullopt) {
        const bool isListed = collector_.isListing(id, severity);
        collector_.add(id, node.line, isListed ? path_.text() + stepTo(node) : "", message, severity);
    }

private:
    static std::string stepTo(const Node& node) {
        switch (node.kind) {
        case Node::Kind::element:
            return '/' + excerpt(node.name);
        case Node::Kind::attribute:
            return "/@" + excerpt(node.name);
        default:
            return "";
        }
    }

    Collector& collector_;
    PathStack path_{};
};

}  // namespace lv::analysis
