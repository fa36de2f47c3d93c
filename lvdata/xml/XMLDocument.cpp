#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/Printer.h>
#include <lvdata/xml/detail/element_writing.h>
#include <lvdata/xml/detail/handle.h>

#include <algorithm>
#include <string_view>

#include <tinyxml2.h>

namespace lv {
namespace {

/// "XML_ERROR_MISMATCHED_ELEMENT" as "mismatched element".
std::string errorWords(std::string_view identifier) {
    constexpr std::string_view prefix = "XML_ERROR_";
    if (identifier.substr(0, prefix.size()) == prefix) {
        identifier.remove_prefix(prefix.size());
    }
    std::string words(identifier);
    constexpr char lowerCase = 0x20;  // the bit of a letter in ASCII
    std::transform(words.begin(), words.end(), words.begin(),
                   [](char character) { return character == '_' ? ' ' : static_cast<char>(character | lowerCase); });
    return words;
}

}  // namespace

XMLDocument::XMLDocument() : XMLNode(detail::toHandle(new tinyxml2::XMLDocument)), owned_(get()) {}

XMLDocument::XMLDocument(void* document) : XMLNode(document) {}

XMLDocument::~XMLDocument() {
    delete detail::toDocument(XMLNode(owned_));
}

bool XMLDocument::parseXMLString(const std::string& text) {
    tinyxml2::XMLDocument* const document = detail::toDocument(*this);
    if (document == nullptr) {
        return false;
    }
    const tinyxml2::XMLError error = document->Parse(text.c_str(), text.size());
    document->SetBOM(false);  // else the printer would put the mark after the declaration
    return error == tinyxml2::XML_SUCCESS;
}

std::string XMLDocument::parseErrorText() const {
    const tinyxml2::XMLDocument* const document = detail::toDocument(*this);
    const bool failed = document != nullptr && document->Error();
    return failed ? errorWords(document->ErrorName()) : std::string();
}

int XMLDocument::parseErrorLine() const {
    const tinyxml2::XMLDocument* const document = detail::toDocument(*this);
    return document == nullptr ? 0 : document->ErrorLineNum();
}

std::string XMLDocument::toXMLString(bool declaration, bool pretty) const {
    const tinyxml2::XMLDocument* const document = detail::toDocument(*this);
    if (document == nullptr) {
        return {};
    }
    detail::Printer printer(!pretty);
    if (declaration) {
        printer.addDeclaration();
    }
    document->Accept(&printer);
    return printer.text();
}

XMLElement XMLDocument::rootElement() const {
    tinyxml2::XMLDocument* const document = detail::toDocument(*this);
    return document == nullptr ? nullptr : detail::toHandle(document->FirstChildElement());
}

XMLElement XMLDocument::appendChild(const std::string& name) const {
    tinyxml2::XMLDocument* const document = detail::toDocument(*this);
    return document == nullptr ? nullptr : detail::toHandle(detail::appendElement(*document, name.c_str()));
}

}  // namespace lv
