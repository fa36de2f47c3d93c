#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/wording.h>

#include <algorithm>
#include <utility>

namespace lv::analysis {
namespace {

bool looksLikeJSON(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && (text[first] == '{' || text[first] == '[');
}

/// Whether the element holds one that the switch controls, at any depth that descriptions have.
bool holdsGoverned(const XMLView& element, const Shape& shape) {
    const Shape* previous = nullptr;
    for (XMLView child = element.firstChild(); child.isValid(); child = child.next()) {
        const bool isElement = child.kind() == XMLView::Kind::element;
        const Shape* const found = isElement ? shape.firstElement(child.value(), previous) : nullptr;
        if (found != nullptr && (isGovernedByHLGSwitch(*found) || holdsGoverned(child, *found))) {
            return true;
        }
        previous = found == nullptr ? previous : found;
    }
    return false;
}

}  // namespace

Document::Document(const std::string& text, const Catalogue& catalogue) {
    const std::size_t nul = text.find('\0');
    if (nul != std::string::npos) {
        refuse(Refusal::Kind::nulCharacter, lineAt(text, nul), "NUL character");
        return;
    }
    verdict_ = judgeXML(text);
    parsed_ = std::make_unique<ParsedDocument>(text);
    if (const ParseResult& result = parsed_->parseResult(); !result) {
        refuseAsXML(text, result);
        return;
    }
    readRecord(text, catalogue);
}

/// The strict parser has better messages. It accepts documents that are only nested too deeply.
void Document::refuseAsXML(const std::string& text, const ParseResult& result) {
    if (looksLikeJSON(text)) {
        refuse(Refusal::Kind::notXML, 0, "this is JSON, not XML (lvdata convert reads it)");
    } else if (result.outcome == ParseResult::Outcome::notXML && verdict_.fault) {
        refuse(Refusal::Kind::notXML, verdict_.fault->line, verdict_.fault->reason);
    } else {
        refuse(Refusal::Kind::notXML, result.line, result.reason);
    }
}

void Document::readRecord(const std::string& text, const Catalogue& catalogue) {
    const std::string root = parsed_->rootElementName();
    entry_ = catalogue.find(root);
    if (entry_ == nullptr) {
        const Tree tree(parsed_->view());
        refuse(Refusal::Kind::unknownRoot, tree.root()->line, root);
        return;
    }
    record_ = entry_->recordClass->make();
    const ParseResult result = parsed_->read(*record_);
    if (!result) {
        refuse(Refusal::Kind::unknownRoot, result.line, result.reason);
        return;
    }
    source_.emplace(parsed_->view());
    const bool isNamed = text.find("HLGSystemGamma") != std::string::npos;  // most documents do not have it
    record_->writeHLGSystemGamma = isNamed && hasHLGSystemGamma(parsed_->view(), *entry_->shape);
}

void Document::refuse(Refusal::Kind kind, int line, std::string reason) {
    refusal_ = Refusal{kind, line, std::move(reason)};
}

Tree Document::printed() const {
    return Tree::ofPrinted(record_->toXMLString(false, false));
}

bool isGovernedByHLGSwitch(const Shape& shape) {
    const auto& conditions = shape.facts().writtenWhen;
    return std::any_of(conditions.begin(), conditions.end(),
                       [](const Condition& condition) { return condition.kind == Condition::Kind::hlgSwitch; });
}

bool hasHLGSystemGamma(const XMLView& document, const Shape& root) {
    XMLView child = document.firstChild();
    while (child.isValid() && child.kind() != XMLView::Kind::element) {
        child = child.next();
    }
    return child.isValid() && holdsGoverned(child, root);
}

std::string unknownRootElement(std::string_view name) {
    std::string known;
    for (const RecordClass& each : RecordClasses()) {
        known += known.empty() ? "" : ", ";
        known += each.name;
    }
    return "unknown root element " + inQuotes(name) + "; known: " + known;
}

}  // namespace lv::analysis
