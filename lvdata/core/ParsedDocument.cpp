#include <lvdata/core/DataObject.h>
#include <lvdata/core/ParsedDocument.h>
#include <lvdata/xml/detail/WrapperMark.h>
#include <lvdata/xml/detail/element_reading.h>

#include <utility>

namespace lv {
namespace {

using Outcome = ParseResult::Outcome;

ParseResult resultOf(const XMLDocument& document, bool isParsed) {
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
    : mayReadInPlace_(text.find("&#") == std::string::npos),
      isXML_(document_.parseXMLString(text)),
      parsed_(resultOf(document_, isXML_)) {}

std::string ParsedDocument::rootElementName() const {
    return document_.rootElement().elementName();
}

XMLView ParsedDocument::view() {
    mayReadInPlace_ = false;  // reading a text through the view moves it in memory
    return XMLView(document_);
}

ParseResult ParsedDocument::read(DataObject& record) {
    if (!isXML_) {
        return parsed_;
    }
    const XMLElement root = document_.rootElement();
    tinyxml2::XMLElement* const element = detail::toElement(root);
    ParseResult refused = parsed_;
    if (element != nullptr) {  // asked for now: the record may change the document
        refused = {Outcome::rootElementRefused, root.elementName(), detail::lineOf(element)};
    }
    const bool isAsParsed = std::exchange(mayReadInPlace_, false);
    const bool isRead = record.parseXMLElement(isAsParsed ? detail::WrapperMark::asParsed(element) : XMLElement(root));
    return isRead ? ParseResult() : refused;
}

}  // namespace lv
