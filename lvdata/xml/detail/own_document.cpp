#include <lvdata/xml/detail/Printer.h>
#include <lvdata/xml/detail/handle.h>
#include <lvdata/xml/detail/own_document.h>

#include <optional>
#include <type_traits>
#include <typeinfo>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

class OwnDocument final : public tinyxml2::XMLDocument {
public:
    std::optional<SourceText> source;
    bool compactTextExpected = false;
    std::optional<Printer> pieces;  // kept from piece to piece for its buffer
};

/// Null when the document is somebody else's. Asked for every array, so without the search of a dynamic_cast.
template <class Document>
auto* toOwnDocument(Document* document) {
    using Own = std::conditional_t<std::is_const_v<Document>, const OwnDocument, OwnDocument>;
    const bool own = document != nullptr && typeid(*document) == typeid(OwnDocument);
    return own ? static_cast<Own*>(document) : nullptr;
}

void replaceByText(tinyxml2::XMLElement& element, const char* text) {
    tinyxml2::XMLNode* const parent = element.Parent();
    tinyxml2::XMLText* const printed = element.GetDocument()->NewText(text);
    Printer::markAsPrinted(*printed);
    parent->InsertAfterChild(&element, printed);
    parent->DeleteChild(&element);
}

}  // namespace

tinyxml2::XMLDocument* makeDocument() {
    return new OwnDocument;
}

SourceInUse::SourceInUse(void* document, std::string_view source) : document_(document) {
    OwnDocument* const own = toOwnDocument(toDocument(document));
    const tinyxml2::XMLElement* const root = own == nullptr ? nullptr : own->FirstChildElement();
    if (root != nullptr) {
        own->source.emplace(source, root->Value());
    }
}

SourceInUse::~SourceInUse() {
    if (OwnDocument* const own = toOwnDocument(toDocument(document_))) {
        own->source.reset();
    }
}

const SourceText* sourceInUse(const tinyxml2::XMLNode& node) {
    const OwnDocument* const own = toOwnDocument(node.GetDocument());
    return own != nullptr && own->source ? &*own->source : nullptr;
}

void expectCompactText(void* document) {
    if (OwnDocument* const own = toOwnDocument(toDocument(document))) {
        own->compactTextExpected = true;
    }
}

void startPieces(void* document) {
    OwnDocument* const own = toOwnDocument(toDocument(document));
    if (own != nullptr && own->compactTextExpected) {
        own->pieces.emplace(true);
    }
}

void finishElement(void* handle) {
    tinyxml2::XMLElement* const element = toElement(handle);
    OwnDocument* const own = element == nullptr ? nullptr : toOwnDocument(element->GetDocument());
    if (own != nullptr && own->pieces) {
        own->pieces->ClearBuffer();
        element->Accept(&*own->pieces);
        replaceByText(*element, own->pieces->CStr());
    }
}

}  // namespace lv::detail
