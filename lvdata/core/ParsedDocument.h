#pragma once

#include <lvdata/core/ParseResult.h>
#include <lvdata/export.h>
#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/XMLView.h>

#include <string>

namespace lv {

class DataObject;

/// A text that was parsed as XML, to be read into a record. Use it when the root element determines which record to
/// create. If you already have the record, `DataObject::parseXML` does everything in one call.
///
///     lv::ParsedDocument document(text);
///     if (document.rootElementName() == lv::MonitorInfo::rootElementName) {
///         lv::MonitorInfo monitor;
///         const lv::ParseResult result = document.read(monitor);
///
/// Only one thread may use it at a time.
class LVDATA_EXPORT ParsedDocument {
public:
    /// Parses a whole XML document in UTF-8, as `XMLDocument::parseXMLString` does. The text is copied, so it need not
    /// outlive this call. `parseResult` says whether it was accepted.
    explicit ParsedDocument(const std::string& text);

    /// `done` if there is a root element to read from; otherwise `notXML` or `nothingThere`.
    [[nodiscard]] const ParseResult& parseResult() const { return parsed_; }

    /// The name of the root element; empty when there is none.
    [[nodiscard]] std::string rootElementName() const;

    /// Reads the record from the root element. When that is not possible, the record is unchanged and the result says
    /// why. A document can be read into any number of records; the first read is the fastest.
    [[nodiscard]] ParseResult read(DataObject& record);

    /// A view of the document itself; it has no nodes when the text was refused. Valid as long as this object. Read the
    /// record first: reading is slower after this call.
    [[nodiscard]] XMLView view();

private:
    // Whether arrays may be read the fast way: no other code had access to the nodes and could have changed them, and
    // no attribute can hold a NUL. The first member, so that the text is in the processor's caches when the XML library
    // copies it.
    bool mayReadInPlace_;
    XMLDocument document_;
    bool isXML_;
    ParseResult parsed_;
};

}  // namespace lv
