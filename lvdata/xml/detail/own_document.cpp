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
    const void* reader = nullptr;  // the record that may use the source
    std::optional<SourceText> source;
    bool sourceIsInUse = false;

    const void* writer = nullptr;               // the record that the document is made for
    std::optional<Printer> pieces;              // elements printed one behind the other
    tinyxml2::XMLNode* piecesParent = nullptr;  // whose last children they are; null when there are none
};

/// Null when the document is somebody else's. Asked for every array, so without the search of a dynamic_cast.
template <class Document>
auto* toOwnDocument(Document* document) {
    using Own = std::conditional_t<std::is_const_v<Document>, const OwnDocument, OwnDocument>;
    const bool own = document != nullptr && typeid(*document) == typeid(OwnDocument);
    return own ? static_cast<Own*>(document) : nullptr;
}

tinyxml2::XMLText* appendTextNode(tinyxml2::XMLNode& parent, const char* text) {
    tinyxml2::XMLText* const node = parent.GetDocument()->NewText(text);
    parent.InsertEndChild(node);
    return node;
}

void place(OwnDocument* document) {
    if (document != nullptr && document->piecesParent != nullptr) {
        Printer::markAsPrinted(*appendTextNode(*document->piecesParent, document->pieces->text().c_str()));
        document->piecesParent = nullptr;
        document->pieces->clear();
    }
}

/// The printer of pieces, ready for a new last child of `parent`; null where pieces are not started.
Printer* piecesOf(tinyxml2::XMLNode& parent) {
    OwnDocument* const own = toOwnDocument(parent.GetDocument());
    if (own == nullptr || !own->pieces) {
        return nullptr;
    }
    if (own->piecesParent != &parent) {
        place(own);
        own->piecesParent = &parent;
    }
    return &*own->pieces;
}

}  // namespace

tinyxml2::XMLDocument* makeDocument() {
    return new OwnDocument;
}

SourceForRecord::SourceForRecord(void* document, std::string_view source, const void* record) : document_(document) {
    OwnDocument* const own = toOwnDocument(toDocument(document));
    const tinyxml2::XMLElement* const root = own == nullptr ? nullptr : own->FirstChildElement();
    if (root != nullptr) {
        own->source.emplace(source, root->Value());
        own->reader = record;
    }
}

SourceForRecord::~SourceForRecord() {
    if (OwnDocument* const own = toOwnDocument(toDocument(document_))) {
        own->source.reset();
        own->sourceIsInUse = false;
    }
}

void useSource(void* element, const void* record) {
    tinyxml2::XMLElement* const root = toElement(element);
    OwnDocument* const own = root == nullptr ? nullptr : toOwnDocument(root->GetDocument());
    if (own != nullptr && own->source && own->reader == record) {
        own->sourceIsInUse = true;
    }
}

const SourceText* sourceInUse(const tinyxml2::XMLNode& node) {
    const OwnDocument* const own = toOwnDocument(node.GetDocument());
    return own != nullptr && own->sourceIsInUse ? &*own->source : nullptr;
}

void expectCompactText(void* document, const void* record) {
    if (OwnDocument* const own = toOwnDocument(toDocument(document))) {
        own->writer = record;
    }
}

void startPieces(void* document, const void* record) {
    OwnDocument* const own = toOwnDocument(toDocument(document));
    if (own != nullptr && own->writer == record && !own->pieces) {
        own->pieces.emplace(true);
    }
}

bool appendPiece(void* parent, const char* name, const std::string& text) {
    tinyxml2::XMLElement* const element = toElement(parent);
    Printer* const pieces = element == nullptr ? nullptr : piecesOf(*element);
    if (pieces != nullptr) {
        pieces->OpenElement(name, true);
        pieces->pushText(text.c_str());
        pieces->CloseElement(true);
    }
    return pieces != nullptr;
}

void finishElement(void* element) {
    tinyxml2::XMLElement* const finished = toElement(element);
    Printer* const pieces = finished == nullptr ? nullptr : piecesOf(*finished->Parent());
    if (pieces != nullptr) {
        finished->Accept(pieces);
        finished->Parent()->DeleteChild(finished);
    }
}

void placePieces(void* document) {
    place(toOwnDocument(toDocument(document)));
}

tinyxml2::XMLElement* appendElement(tinyxml2::XMLNode& parent, const char* name) {
    place(toOwnDocument(parent.GetDocument()));
    tinyxml2::XMLElement* const child = parent.GetDocument()->NewElement(name);
    parent.InsertEndChild(child);
    return child;
}

void appendText(tinyxml2::XMLNode& parent, const char* text) {
    place(toOwnDocument(parent.GetDocument()));
    appendTextNode(parent, text);
}

}  // namespace lv::detail
