#include <lvdata/xml/detail/own_document.h>

#include <tinyxml2.h>

namespace lv::detail {

tinyxml2::XMLDocument* makeDocument() {
    return new tinyxml2::XMLDocument;
}

// Documents are read and printed from their nodes alone: the source is not looked at, and there are no pieces.

SourceInUse::SourceInUse(void* document, std::string_view /*source*/) : document_(document) {}

SourceInUse::~SourceInUse() {
    document_ = nullptr;
}

const SourceText* sourceInUse(const tinyxml2::XMLNode& /*node*/) {
    return nullptr;
}

void expectCompactText(void* /*document*/) {}

void startPieces(void* /*document*/) {}

bool appendPiece(void* /*parent*/, const char* /*name*/, const std::string& /*text*/) {
    return false;
}

void finishElement(void* /*element*/) {}

void placePieces(void* /*document*/) {}

tinyxml2::XMLElement* appendElement(tinyxml2::XMLNode& parent, const char* name) {
    tinyxml2::XMLElement* const child = parent.GetDocument()->NewElement(name);
    parent.InsertEndChild(child);
    return child;
}

void appendText(tinyxml2::XMLNode& parent, const char* text) {
    parent.InsertEndChild(parent.GetDocument()->NewText(text));
}

}  // namespace lv::detail
