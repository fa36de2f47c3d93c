#pragma once

#include <lvdata/core/Description.h>
#include <lvdata/core/ParseResult.h>
#include <lvdata/export.h>
#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/XMLNode.h>
#include <lvdata/xml/property.h>

#include <string>

namespace lv {

/// The base of every record: converts the record to XML text and back, and holds what all records share.
///
/// A record is a plain value: created with its defaults, filled by the application or by parsing, printed any number of
/// times; a copy shares nothing with its source. In a document it is one element, its root element, at document level
/// or inside another record's element. Only one thread may use a record at a time, or any number of threads if all of
/// them only read or print it; every call works on its own document.
///
/// Failures are return values: only the standard library throws (`std::bad_alloc`), and nothing is logged.
class LVDATA_EXPORT DataObject {
public:
    /// Records may be destroyed through a pointer to this class.
    virtual ~DataObject();

    /// Reads the record from its root element. False, with the record unchanged, when the element is invalid or has a
    /// different name (compared exactly). Otherwise true. Every child is optional: an existing child replaces the
    /// member and sets its flag, a missing one clears the flag and keeps the earlier value. A string whose element has
    /// no text keeps its value with the flag set; a number without text counts as missing. The documentation of each
    /// record says where it differs. Children that the record does not know are ignored.
    virtual bool parseXMLElement(XMLElement element) = 0;

    /// Appends the record as a new last child of `parent`, a document or an element, and returns its root element. The
    /// record itself is unchanged. When the parent cannot have children, nothing happens and the result is invalid.
    virtual XMLElement appendXMLElement(XMLNode& parent) const = 0;

    /// Reads the record from a whole XML document in UTF-8. False, with the record unchanged, when the XML library
    /// refuses the text or `parseXMLElement` refuses the document's first element. `text` may be a member of this
    /// record.
    ///
    /// When memory runs out (`std::bad_alloc`), each value and each flag is either unchanged or as in the document, and
    /// a list may end with an incomplete row. The record stays usable, and parsing again reads it completely.
    bool parseXMLString(const std::string& text);

    /// The same as `parseXMLString`, with the reason and the line when the text is refused.
    ParseResult parseXML(const std::string& text);

    /// The record as a whole XML document in UTF-8: with an XML declaration when `declaration` is true, indented when
    /// `pretty` is true, otherwise compact. The record is unchanged, even when memory runs out (`std::bad_alloc`).
    [[nodiscard]] std::string toXMLString(bool declaration, bool pretty) const;

    /// Appends a root element of that name to a document or an element; invalid when the parent cannot take it.
    XMLElement appendRootXMLElement(const std::string& name, XMLNode& parent) const;

    /// Sets the attributes "Version" and "MinorVersion" to the values of `version` and `minorVersion`, whatever their
    /// flags, and returns the element. Does nothing if the element is invalid.
    XMLElement appendVersionAttribute(XMLElement element) const;

    /// Reads both attributes into `version` and `minorVersion`. A missing or empty one clears the flag and keeps the
    /// number. No number is refused: a record read from a document with a different version writes that document's
    /// numbers back.
    void parseVersionAttribute(XMLElement element);

    /// The version of the record's format, attribute "Version" of the root element. A fresh record holds the number of
    /// its class with a clear flag; after parsing, the flag says whether the document had a number. Always written.
    property<unsigned int> version;

    /// The minor version of the record's format, attribute "MinorVersion" of the root element. A fresh record holds the
    /// number of its class with a clear flag; after parsing, the flag says whether the document had a number. Always
    /// written.
    property<unsigned int> minorVersion;

    /// Whether `ParameterSetting` and `TargetSetting` write their element "HLGSystemGamma". The switch of the record
    /// that is printed applies to all records inside it; their own switches are neither used nor changed. The switch is
    /// not part of documents, and parsing does not change it.
    bool writeHLGSystemGamma = false;

protected:
    /// \param major  the version of the record's class
    /// \param minor  its minor version
    DataObject(unsigned int major, unsigned int minor) : version{major, false}, minorVersion{minor, false} {}

    /// Copied only as part of a whole record, never by itself. The copy shares nothing with its source.
    DataObject(const DataObject&) = default;

    /// Assigned only as part of a whole record.
    DataObject& operator=(const DataObject&) = default;

    /// Moved only as part of a whole record.
    DataObject(DataObject&&) = default;

    /// Moved only as part of a whole record.
    DataObject& operator=(DataObject&&) = default;
};

}  // namespace lv
