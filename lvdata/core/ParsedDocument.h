#pragma once

#include <lvdata/core/ParseResult.h>
#include <lvdata/export.h>
#include <lvdata/xml/XMLDocument.h>

#include <string>

namespace lv {

class DataObject;

/// A text that was parsed as XML, to be read into a record: for whoever must look at the root element before they know
/// which record to make, and wants to know why a text is refused. `DataObject::parseXMLString` does both for a record
/// that is there already.
///
///     lv::ParsedDocument document(text);
///     if (document.rootElementName() == lv::MonitorInfo::rootElementName) {
///         lv::MonitorInfo monitor;
///         const lv::ParseResult result = document.read(monitor);
///
/// One thread at a time.
class LVDATA_EXPORT ParsedDocument {
public:
    /// Parses a whole XML document in UTF-8, as `XMLDocument::parseXMLString` does. The text is not needed any more
    /// afterwards.
    explicit ParsedDocument(const std::string& text);

    /// Why nothing can be read: `notXML` or `nothingThere`; otherwise done.
    [[nodiscard]] const ParseResult& parseResult() const { return parsed_; }

    /// The name of the root element; empty when there is none.
    [[nodiscard]] std::string rootElementName() const;

    /// Reads the record from the root element. When that is not possible the record is unchanged. A document can be
    /// read into any number of records; the first is read fastest.
    [[nodiscard]] ParseResult read(DataObject& record);

private:
    // Nobody had the nodes who might have changed them, and no attribute can hold a NUL. Found out first, so that the
    // text is in the processor's caches when the XML library copies it.
    bool mayReadInPlace_;
    XMLDocument document_;
    bool isXML_;
    ParseResult parsed_;
};

}  // namespace lv
