#pragma once

#include <memory>
#include <string>

#include <libxml/xmlschemas.h>

namespace lv::test {

/// An XML Schema, in the hands of libxml2.
class XMLSchema {
public:
    /// Fails the test when the text is not a schema.
    explicit XMLSchema(const std::string& text);

    /// Why the schema refuses the document; empty when it does not.
    [[nodiscard]] std::string refusalOf(const std::string& document) const;

private:
    std::unique_ptr<xmlSchema, decltype(&xmlSchemaFree)> schema_;
};

}  // namespace lv::test
