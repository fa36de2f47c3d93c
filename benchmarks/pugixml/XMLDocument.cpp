#include <lvdata/xml/XMLDocument.h>

namespace lv {

XMLDocument::XMLDocument(void* document) : XMLNode(document) {}

XMLDocument::~XMLDocument() = default;

}  // namespace lv
