#pragma once

#include <lvdata/core/Description.h>

#include <string>
#include <vector>

namespace tinyxml2 {
class XMLDocument;
class XMLElement;
}  // namespace tinyxml2

namespace lv::test {

/// A node of a description together with those that it stands in, the root first. It finds its like in a document: of
/// the rows of a list the first.
class DescribedNode {
public:
    /// The root; the description must outlive all nodes.
    explicit DescribedNode(const Description& root) : path_{&root} {}

    [[nodiscard]] const Description& operator*() const { return *path_.back(); }
    [[nodiscard]] const Description* operator->() const { return path_.back(); }

    [[nodiscard]] std::vector<DescribedNode> children() const;
    [[nodiscard]] bool hasParent() const { return path_.size() > 1; }
    [[nodiscard]] DescribedNode parent() const;

    /// The node that an XPath expression of a condition means. Throws std::out_of_range when there is none, or several.
    [[nodiscard]] DescribedNode at(const std::string& xpath) const;

    /// "MonitorInfo/AssetInfo/@Version", for messages.
    [[nodiscard]] std::string name() const;

    /// Whether it is in the document; of a text, whether there is one.
    [[nodiscard]] bool isIn(tinyxml2::XMLDocument& document) const;

    /// Creates or replaces its text in the document, which has what it stands in.
    void setText(tinyxml2::XMLDocument& document, const std::string& text) const;

    /// Its text in the document; empty when it has none.
    [[nodiscard]] std::string text(tinyxml2::XMLDocument& document) const;

    void removeFrom(tinyxml2::XMLDocument& document) const;

    /// The element that it is, or is in; null when that is not in the document.
    [[nodiscard]] tinyxml2::XMLElement* elementIn(tinyxml2::XMLDocument& document) const;

private:
    [[nodiscard]] DescribedNode child(const Description& description) const;
    [[nodiscard]] DescribedNode step(const std::string& step) const;

    std::vector<const Description*> path_;
};

/// The node and all that it holds, in the order of writing.
[[nodiscard]] std::vector<DescribedNode> withDescendants(const DescribedNode& node);

/// The same without what nested records hold, which those describe themselves.
[[nodiscard]] std::vector<DescribedNode> ownNodes(const Description& record);

}  // namespace lv::test
