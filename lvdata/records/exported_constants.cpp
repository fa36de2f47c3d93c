#include <lvdata/records/EveryRecord.h>
#include <lvdata/xml/XMLNode.h>

#include <array>

// For a DLL. GCC exports a constant of a class only where its address is taken, and programs that are compiled without
// optimisation ask the DLL for it.
namespace lv {
namespace {

template <class... Records>
constexpr std::array<const char* const*, sizeof...(Records)> namesOf(RecordTypes<Records...> /*list*/) {
    return {&Records::rootElementName...};
}

[[gnu::used]] constexpr auto names = namesOf(EveryRecord());
[[gnu::used]] constexpr std::array types = {&XMLNode::documentType, &XMLNode::elementType, &XMLNode::otherType};

}  // namespace
}  // namespace lv
