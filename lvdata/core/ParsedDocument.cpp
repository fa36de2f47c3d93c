#include <lvdata/core/DataObject.h>
#include <lvdata/core/ParsedDocument.h>
#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/handle.h>

#include <utility>

namespace lv {
namespace {

ParseResult resultOf(const XMLDocument& document, bool isParsed) {
    using Outcome = ParseResult::Outcome;
    if (!isParsed) {
        std::string reason = document.parseErrorText();
        const Outcome outcome = reason == "empty document" ? Outcome::nothingThere : Outcome::notXML;
        return {outcome, std::move(reason), document.parseErrorLine()};
    }
    if (!document.rootElement().isValid()) {
        return {Outcome::nothingThere, "no root element", 0};
    }
    return {};
}

}  // namespace

ParsedDocument::ParsedDocument(const std::string& text)
    : parsed_(resultOf(document_, document_.parseXMLString(text))) {}

std::string ParsedDocument::rootElementName() const {
    return document_.rootElement().elementName();
}

ParseResult ParsedDocument::read(DataObject& record) {
    if (!parsed_) {
        return parsed_;
    }
    const XMLElement root = document_.rootElement();
    tinyxml2::XMLElement* const element = detail::toElement(root);
    const bool isAsParsed = std::exchange(isAsParsed_, false);
    if (record.parseXMLElement(isAsParsed ? detail::Handover::asParsed(element) : XMLElement(root))) {
        return {};
    }
    return {ParseResult::Outcome::otherRootElement, root.elementName(), detail::lineOf(element)};
}

}  // namespace lv
