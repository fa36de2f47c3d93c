#pragma once

#include <lvdata/core/DataObject.h>
#include <lvdata/core/detail/Describer.h>
#include <lvdata/core/detail/MemberCollector.h>
#include <lvdata/core/detail/Reader.h>
#include <lvdata/core/detail/RecordParent.h>
#include <lvdata/core/detail/Writer.h>

#include <typeinfo>

namespace lv::detail {

/// The attributes of every record's root element.
template <class Io, class Record>
void visitVersion(Io& io, Record& record) {
    io.attribute("Version", record.version, quantities::version);
    io.attribute("MinorVersion", record.minorVersion, quantities::version);
}

/// What every record's `parseXMLElement` does: refuses an element of another name, then reads the version attributes
/// and what the record's visit names.
template <class Record, class Visit>
[[nodiscard]] bool parseRecord(Record& record, const char* rootName, const XMLElement& element, Visit visit) {
    Reader io = Reader::ofParameter(element);
    if (!io.isNamed(rootName)) {
        return false;
    }
    visitVersion(io, record);
    visit(io, record);
    return true;
}

/// Whether the record is of exactly that class, and not of one that is derived from it.
template <class Record>
[[nodiscard]] bool isOfClass(const DataObject& record) {
    return typeid(record) == typeid(Record);
}

/// What every record's `appendXMLElement` does: appends the root element with its version attributes, then what the
/// record's visit names.
///
/// A class that an application derives from the record may look at the document before or after what it inherits. So it
/// is written into nodes, and the writer that the library brings along for the whole text is not used.
///
/// \param isLibrarysOwn  whether the record is of one of the library's own classes
template <class Record, class Visit>
XMLElement appendRecord(const Record& record, const char* rootName, XMLNode& parent, Visit visit,
                        bool (*isLibrarysOwn)(const DataObject&) = &isOfClass<Record>) {
    const RecordParent* const own = RecordParent::ownOf(record, parent);
    const bool isOurs = own != nullptr && (own->isNested() || isLibrarysOwn(record));
    Writer io = isOurs ? own->writer().element(rootName)
                       : Writer(record.appendRootXMLElement(rootName, parent), record.writeHLGSystemGamma);
    visitVersion(io, record);
    visit(io, record);
    if (isOurs) {
        own->writer().finishElements();  // while the name lives
    }
    return io.xmlElement();
}

/// What every record's `describe` does.
template <class Record, class Visit>
[[gnu::cold]] [[nodiscard]] Description describeRecord(const char* rootName, Visit visit) {
    Record fresh;
    RecordDescriber describer(rootName, fresh.version.value, fresh.minorVersion.value);
    Describer io = describer.rootElement();
    visitVersion(io, fresh);
    visit(io, fresh);
    return describer.finish();
}

/// What every record's `==` does.
template <class Record, class Visit>
[[nodiscard]] bool areEqualRecords(const Record& left, const Record& right, Visit visit) {
    return areEqual(left, right, [visit](auto& io, const auto& record) {
        visitVersion(io, record);
        visit(io, record);
    });
}

}  // namespace lv::detail
