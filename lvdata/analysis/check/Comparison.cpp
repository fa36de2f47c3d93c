#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/Projection.h>
#include <lvdata/analysis/check/Comparison.h>
#include <lvdata/analysis/check/loss_findings.h>
#include <lvdata/analysis/check/plausibility.h>
#include <lvdata/analysis/check/value_findings.h>
#include <lvdata/analysis/wording.h>

#include <string>
#include <vector>

namespace lv::analysis {
namespace {

using Content = Description::Content;
using Kind = Node::Kind;
using Repetition = Description::Repetition;

bool isElement(const Node& node) {
    return node.kind == Kind::element;
}

/// The shape of a child element; null when its parent does not know it. `previous` is kept up for the next search.
const Shape* shapeOf(const Node& child, const Shape& parent, const Shape*& previous) {
    const Shape* found = parent.firstElement(child.name, previous);
    if (found != nullptr && found->facts().repetition == Repetition::byKey) {
        const Node* const key = attributeOf(child, found->facts().keyAttribute);
        found = key == nullptr ? nullptr : parent.element(child.name, key->text);
    }
    previous = found == nullptr ? previous : found;
    return found;
}

bool isBetter(const Node& candidate, const Node* chosen, const Shape& shape) {
    const bool isKeyed = shape.facts().repetition == Repetition::byKey;
    return chosen == nullptr || (isKeyed && textOf(candidate) != nullptr);
}

/// The printed row; the next one is then the one to match.
const Node* takeRow(const Node*& printed) {
    const Node* const row = printed;
    if (row != nullptr) {
        const bool isLast = row->next == nullptr || row->next->name != row->name;
        printed = isLast ? nullptr : row->next;
    }
    return row;
}

bool isXMLDeclaration(const Node& node) {
    return node.text.substr(0, 4) == "xml ";
}

void reportVersion(Reporter& reporter, const Shape& record, const Node& attribute) {
    const bool isMinor = attribute.name == "MinorVersion";
    const unsigned int known = isMinor ? record.facts().minorVersion : record.facts().version;
    const std::string number = inPlainForm(attribute.text, Content::unsignedNumber);
    if (!attribute.text.empty() && number != std::to_string(known)) {
        reporter.add("312", attribute,
                     std::string(attribute.name) + " is " + number + ", and this library's is " +
                         std::to_string(known));
    }
}

/// Whether it exists but is not read.
bool isIgnored(const Position& position) {
    return firstDenied(position.shape->readWhen(), position, {}) != nullptr;
}

bool isVersion(const Shape& attribute) {
    const bool isOfRecord = !attribute.parent()->facts().record.empty() || attribute.parent()->parent() == nullptr;
    return isOfRecord && (attribute.facts().name == "Version" || attribute.facts().name == "MinorVersion");
}

}  // namespace

Comparison::Comparison(const Tree& source, const Shape& root, const Tree& printed, Circumstances circumstances,
                       Collector& collector)
    : source_(source),
      root_(root),
      printed_(printed),
      reporter_(collector),
      unknownNames_(root),
      circumstances_(circumstances) {}

void Comparison::run() {
    const Node* const root = source_.root();
    for (const Node& node : childrenOf(source_.document())) {
        if (&node == root) {
            const PathStack::Step step(reporter_.path(), root->name);
            compareElements({root_, *root, *printed_.root()});
        } else {
            reportOutsideRoot(node);
        }
    }
}

void Comparison::reportOutsideRoot(const Node& node) {
    if (isElement(node)) {
        reporter_.add("303", node, "a second root element " + inQuotes(node.name) + " is dropped");
    } else if (node.kind == Kind::text && !node.text.empty()) {
        reporter_.add("308", node, "text outside the root element, " + inQuotes(node.text) + ", is dropped");
    } else if (node.kind != Kind::text && !isXMLDeclaration(node)) {
        reportMarkup(node);
    }
}

void Comparison::reportMarkup(const Node& node) {
    const char* const what = node.kind == Kind::comment ? "a comment is dropped: " : "markup is dropped: ";
    reporter_.add("307", node, what + inQuotes(node.text));
}

void Comparison::compareElements(const Pair& pair) {
    compareAttributes(pair);
    compareTexts(pair);
    compareChildren(pair);
    judgePlausibility(reporter_, {&pair.shape, &pair.source, pair.source.parent});
}

void Comparison::compareAttributes(const Pair& pair) {
    for (const Node& attribute : childrenOf(pair.source)) {
        if (attribute.kind != Kind::attribute) {
            break;
        }
        const Shape* const shape = pair.shape.attribute(attribute.name);
        if (shape == nullptr) {
            UnknownNames::reportAttribute(reporter_, pair.shape, attribute);
        } else {
            compareAttribute({shape, &attribute, &pair.source}, attributeOf(pair.printed, attribute.name));
        }
    }
    for (const Node& attribute : childrenOf(pair.printed)) {
        if (attribute.kind == Kind::attribute && attributeOf(pair.source, attribute.name) == nullptr) {
            reportAdded(attribute, pair.source);
        }
    }
}

void Comparison::compareAttribute(const Position& position, const Node* printed) {
    if (printed == nullptr) {
        reportDropped(reporter_, position, circumstances_);
        return;
    }
    compareValues(reporter_, position, *position.node, printed->text);
    if (isVersion(*position.shape)) {
        reportVersion(reporter_, *position.shape->parent(), *position.node);
    }
}

void Comparison::compareTexts(const Pair& pair) {
    const Shape* const textShape = textShapeAt({&pair.shape, &pair.source, pair.source.parent});
    const Node* const own = textShape == nullptr ? nullptr : textOf(pair.source);
    compareOwnTexts(pair, textShape, own);
    for (const Node& node : childrenOf(pair.source)) {
        const bool isText = node.kind == Kind::text && !node.text.empty();  // a CDATA section can be empty
        if (node.kind == Kind::comment || node.kind == Kind::other) {
            reportMarkup(node);
        } else if (isText && textShape == nullptr) {
            reporter_.add("308", node, "text where only elements belong, " + inQuotes(node.text) + ", is dropped");
        } else if (isText && &node != own) {
            reporter_.add("307", node, "further text, " + inQuotes(node.text) + ", is dropped");
        }
    }
}

void Comparison::compareOwnTexts(const Pair& pair, const Shape* textShape, const Node* own) {
    const Node* const printed = textShape == nullptr ? nullptr : textOf(pair.printed);
    if (textShape == nullptr || (own == nullptr && printed == nullptr)) {
        return;
    }
    const bool isOfElement = textShape == &pair.shape;
    const Position position =
        isOfElement ? Position{textShape, &pair.source, pair.source.parent} : Position{textShape, own, &pair.source};
    if (own == nullptr) {
        if (!printed->text.empty()) {
            reporter_.addHere("107", pair.source.line,
                              inQuotes(pair.source.name) + " has no text, so it counts as missing; " +
                                  inQuotes(printed->text) + " is written");
        }
        return;
    }
    const std::string_view written = printed == nullptr ? std::string_view() : printed->text;
    const bool isGone = printed == nullptr && !isOfElement;
    if (isGone || (isIgnored(position) && written != own->text)) {
        reportDropped(reporter_, position, circumstances_);
    } else {
        compareValues(reporter_, position, *own, written);
    }
}

std::vector<Comparison::Match> Comparison::matchesOf(const Pair& pair) {
    std::vector<Match> matches(pair.shape.children().size());
    const Shape* previous = nullptr;
    for (const Node& child : childrenOf(pair.source)) {
        const Shape* const found = isElement(child) ? shapeOf(child, pair.shape, previous) : nullptr;
        if (found != nullptr && isBetter(child, matches[found->index()].chosen, *found)) {
            matches[found->index()].chosen = &child;
        }
    }
    previous = nullptr;
    for (const Node& child : childrenOf(pair.printed)) {
        const Shape* const found = isElement(child) ? shapeOf(child, pair.shape, previous) : nullptr;
        if (found != nullptr && matches[found->index()].printed == nullptr) {
            matches[found->index()].printed = &child;
        }
    }
    return matches;
}

void Comparison::compareChildren(const Pair& pair) {
    std::vector<Match> matches = matchesOf(pair);
    const Shape* previous = nullptr;
    for (const Node& child : childrenOf(pair.source)) {
        if (!isElement(child)) {
            continue;
        }
        const Shape* const shape = shapeOf(child, pair.shape, previous);
        if (shape == nullptr) {
            unknownNames_.reportElement(reporter_, pair.shape, child);
            continue;
        }
        Match& match = matches[shape->index()];
        if (shape->facts().repetition == Repetition::rows) {
            compareRow({shape, &child, &pair.source}, ++match.rows, match.printed);
        } else if (&child != match.chosen) {
            reporter_.add("303", child, "element " + inQuotes(child.name) + " is repeated: this one is dropped");
        } else {
            compareChild({shape, &child, &pair.source}, match.printed);
        }
    }
    reportRest(pair, matches);
}

void Comparison::compareChild(const Position& position, const Node* printed) {
    if (printed == nullptr) {
        reportDropped(reporter_, position, circumstances_);
        return;
    }
    if (isGovernedByHLGSwitch(*position.shape) && !wasSwitchReported_) {
        wasSwitchReported_ = true;
        reporter_.add("313", *position.node,
                      inQuotes(position.node->name) + " is kept only by programs that set writeHLGSystemGamma");
    }
    const PathStack::Step step(reporter_.path(), position.shape->step());
    compareElements({*position.shape, *position.node, *printed});
}

void Comparison::compareRow(const Position& row, std::size_t number, const Node*& printed) {
    const PathStack::Step step(reporter_.path(), row.shape->step(), number);
    const bool isRead = firstDenied(row.shape->flag(), row, circumstances_) == nullptr;
    const bool isWritten = isRead && firstDenied(row.shape->writtenWhen(), row, circumstances_) == nullptr;
    const Node* const like = isWritten ? takeRow(printed) : nullptr;
    if (like == nullptr) {
        reportDroppedRow(reporter_, row, circumstances_);
    } else {
        compareElements({*row.shape, *row.node, *like});
    }
}

/// What is printed and has no match in the document.
void Comparison::reportRest(const Pair& pair, const std::vector<Match>& matches) {
    for (const Match& match : matches) {
        const bool isRow = match.rows > 0;
        if (match.printed != nullptr && isRow) {
            reporter_.addHere("109", pair.source.line, "a row is written that the document does not have");
        } else if (match.printed != nullptr && match.chosen == nullptr) {
            reportAdded(*match.printed, pair.source);
        }
    }
}

void Comparison::reportAdded(const Node& printed, const Node& parent) {
    const Node* const text = printed.kind == Kind::element ? textOf(printed) : &printed;
    const std::string value = text == nullptr ? "" : " as " + inQuotes(text->text);
    const char* const what = printed.kind == Kind::element ? "element " : "attribute ";
    reporter_.addHere("310", parent.line, what + inQuotes(printed.name) + " is missing and is added" + value);
}

}  // namespace lv::analysis
