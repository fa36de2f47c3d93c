#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/detail/Reader.h>
#include <lvdata/core/detail/Writer.h>
#include <lvdata/xml/detail/own_document.h>

#include <string>
#include <typeinfo>

namespace lv::detail {

/// Whether the record is of exactly that class. A class that the application derives may look at the document before or
/// behind what it inherits, and so must find it whole.
template <class Record>
[[nodiscard]] bool isOfOwnClass(const Record& record) {
    return typeid(record) == typeid(Record);
}

/// What every record's `parseXMLElement` does: refuses an element of another name, then reads the version attributes
/// and what the record's visit names.
template <class Record, class Visit>
[[nodiscard]] bool parseRecord(Record& record, const std::string& rootName, const XMLElement& element, Visit visit) {
    if (element.elementName() != rootName) {
        return false;
    }
    if (isOfOwnClass(record)) {
        useSource(element.get(), static_cast<const DataObject*>(&record));
    }
    record.parseVersionAttribute(element);
    Reader io(element.get());
    visit(io, record);
    return true;
}

/// What every record's `appendXMLElement` does: appends the root element with its version attributes, then what the
/// record's visit names. `writeHLGSystemGamma` is the switch in force: the record's own, or that of the record it is
/// nested in.
template <class Record, class Visit>
XMLElement appendRecord(const Record& record, const std::string& rootName, XMLNode& parent, bool writeHLGSystemGamma,
                        Visit visit) {
    if (isOfOwnClass(record)) {
        startPieces(parent.get(), static_cast<const DataObject*>(&record));
    }
    XMLElement root = record.appendRootXMLElement(rootName, parent);
    record.appendVersionAttribute(root);
    Writer io(root.get(), writeHLGSystemGamma);
    visit(io, record);
    return root;
}

template <class Record, class Visit>
XMLElement appendRecord(const Record& record, const std::string& rootName, XMLNode& parent, Visit visit) {
    return appendRecord(record, rootName, parent, record.writeHLGSystemGamma, visit);
}

}  // namespace lv::detail
