#include <lvdata/xml/detail/own_document.h>

namespace lv::detail {

// Documents are printed from their nodes alone: there are no pieces.

void startPieces(void* /*document*/, const void* /*record*/) {}

void useSource(void* /*element*/, const void* /*record*/) {}

void finishElement(void* /*element*/) {}

}  // namespace lv::detail
