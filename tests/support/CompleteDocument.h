#pragma once

#include <tests/support/DescribedNode.h>

#include <lvdata/core/Description.h>

#include <string>

#include <tinyxml2.h>

namespace lv::test {

/// A document with all that a description has: each element and attribute once, numbers that are not 0, arrays of a
/// length that counts. It can be changed so that conditions hold, or do not.
class CompleteDocument {
public:
    explicit CompleteDocument(const Description& root);

    [[nodiscard]] tinyxml2::XMLDocument& document() { return document_; }
    [[nodiscard]] std::string text();

    /// Whether the HLG switch is to be on when the record is printed.
    [[nodiscard]] bool hlgSwitch() const { return hlgSwitch_; }

    /// Makes the node be written: all conditions of it and of what it stands in hold.
    void makeWritten(const DescribedNode& node);

    /// Makes the conditions hold under which the node is read.
    void makeRead(const DescribedNode& node);

    void satisfy(const Condition& condition, const DescribedNode& node);

    /// Of several subjects that must all be right, only that one becomes wrong.
    void falsify(const Condition& condition, const DescribedNode& node, std::size_t subject = 0);

    void remove(const DescribedNode& node) { node.removeFrom(document_); }
    void setText(const DescribedNode& node, const std::string& text) { node.setText(document_, text); }

private:
    void add(const DescribedNode& node, tinyxml2::XMLElement& parent);
    void addChildren(const DescribedNode& node, tinyxml2::XMLElement& element);

    tinyxml2::XMLDocument document_;
    bool hlgSwitch_ = false;
};

/// A text that a document can have in that place, which is not that of a fresh record.
[[nodiscard]] std::string sampleText(const Description& node);

/// An array of that many entries.
[[nodiscard]] std::string sampleArray(std::size_t entries);

}  // namespace lv::test
