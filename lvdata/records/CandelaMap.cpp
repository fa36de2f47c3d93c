#include <lvdata/core/detail/record.h>
#include <lvdata/records/CandelaMap.h>

namespace lv {
namespace {

template <class Io, class Entry>
void visitMap(Io& io, const char* name, Entry& entry) {
    auto map = io.element(name).writeWhen(entry.valid);
    map.value("Values", entry.values);
    map.value("UpdatedAt", entry.updatedAt);
    io.derive(entry.valid, !entry.values.empty());
}

constexpr auto visit = [](auto& io, auto& self) {
    visitMap(io, "Uniformity", self.uniformity);
    visitMap(io, "Brightness", self.brightness);
};

}  // namespace

CandelaMap::CandelaMap() : DataObject(1, 0) {}

bool CandelaMap::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement CandelaMap::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

}  // namespace lv
