#pragma once

#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/Tree.h>
#include <lvdata/analysis/check/Reporter.h>
#include <lvdata/analysis/check/UnknownNames.h>

#include <cstddef>
#include <vector>

namespace lv::analysis {

/// Visits a document and the document that its record prints, and makes a finding for each difference.
///
/// Every node of both documents is visited: it has a matching node in the other document, or there is a finding about
/// it or about an element that holds it. So a document without a finding is written back unchanged.
class Comparison {
public:
    /// All must outlive the comparison.
    Comparison(const Tree& source, const Shape& root, const Tree& printed, Circumstances circumstances,
               Collector& collector);

    /// Compares the whole documents.
    void run();

private:
    /// An element of the document and the matching element that the record prints.
    struct Pair {
        const Shape& shape;
        const Node& source;
        const Node& printed;
    };

    /// The nodes that are read and printed for one of the shapes in an element.
    struct Match {
        const Node* chosen = nullptr;   // the element that is read, if the document has several
        const Node* printed = nullptr;  // the matching node; for rows, the first that is not matched yet
        std::size_t rows = 0;           // how many rows were seen
    };

    static std::vector<Match> matchesOf(const Pair& pair);
    void reportOutsideRoot(const Node& node);
    void compareElements(const Pair& pair);
    void compareAttributes(const Pair& pair);
    void compareAttribute(const Position& position, const Node* printed);
    void compareTexts(const Pair& pair);
    void compareOwnTexts(const Pair& pair, const Shape* textShape, const Node* own);
    void compareChildren(const Pair& pair);
    void compareChild(const Position& position, const Node* printed);
    void compareRow(const Position& row, std::size_t number, const Node*& printed);
    void reportMarkup(const Node& node);
    void reportAdded(const Node& printed, const Node& parent);
    void reportRest(const Pair& pair, const std::vector<Match>& matches);

    const Tree& source_;
    const Shape& root_;
    const Tree& printed_;
    Reporter reporter_;
    UnknownNames unknownNames_;
    Circumstances circumstances_;
    bool wasSwitchReported_ = false;
};

}  // namespace lv::analysis
