#include "XMLSchema.h"

#include <gtest/gtest.h>

#include <libxml/parser.h>
#include <libxml/xmlerror.h>

namespace lv::test {
namespace {

/// The form that libxml2 2.12 changed has one more const.
#if LIBXML_VERSION >= 21200
using ErrorPointer = const xmlError*;
#else
using ErrorPointer = xmlErrorPtr;
#endif

void keepMessage(void* messages, ErrorPointer error) {
    *static_cast<std::string*>(messages) += error->message;
}

xmlSchema* parsedSchema(const std::string& text) {
    const std::unique_ptr<xmlSchemaParserCtxt, decltype(&xmlSchemaFreeParserCtxt)> parser(
        xmlSchemaNewMemParserCtxt(text.data(), static_cast<int>(text.size())), &xmlSchemaFreeParserCtxt);
    std::string messages;
    xmlSchemaSetParserStructuredErrors(parser.get(), &keepMessage, &messages);
    xmlSchema* const schema = xmlSchemaParse(parser.get());
    EXPECT_EQ(messages, "");
    return schema;
}

}  // namespace

XMLSchema::XMLSchema(const std::string& text) : schema_(parsedSchema(text), &xmlSchemaFree) {
    EXPECT_NE(schema_, nullptr);
}

std::string XMLSchema::refusalOf(const std::string& document) const {
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> parsed(
        xmlReadMemory(document.data(), static_cast<int>(document.size()), nullptr, nullptr,
                      XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE),
        &xmlFreeDoc);
    if (parsed == nullptr) {
        return "not well-formed";
    }
    const std::unique_ptr<xmlSchemaValidCtxt, decltype(&xmlSchemaFreeValidCtxt)> context(
        xmlSchemaNewValidCtxt(schema_.get()), &xmlSchemaFreeValidCtxt);
    std::string messages;
    xmlSchemaSetValidStructuredErrors(context.get(), &keepMessage, &messages);
    const bool isValid = xmlSchemaValidateDoc(context.get(), parsed.get()) == 0;
    return isValid ? "" : "refused: " + messages;
}

}  // namespace lv::test
