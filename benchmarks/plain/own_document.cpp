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

void finishElement(void* /*element*/) {}

}  // namespace lv::detail
