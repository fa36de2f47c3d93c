#include <lvdata/xml/detail/own_document.h>

#include <tinyxml2.h>

namespace lv::detail {

tinyxml2::XMLDocument* makeDocument() {
    return new tinyxml2::XMLDocument;
}

// Documents are read and printed from their nodes alone: the source is not looked at, and there are no pieces.

SourceForRecord::SourceForRecord(void* document, std::string_view /*source*/, const void* /*record*/)
    : document_(document) {}

SourceForRecord::~SourceForRecord() {
    document_ = nullptr;
}

void useSource(void* /*element*/, const void* /*record*/) {}

const SourceText* sourceInUse(const tinyxml2::XMLNode& /*node*/) {
    return nullptr;
}

void expectCompactText(void* /*document*/, const void* /*record*/) {}

void startPieces(void* /*document*/, const void* /*record*/) {}

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
