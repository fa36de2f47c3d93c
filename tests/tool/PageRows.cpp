#include "PageRows.h"

#include <memory>

#include <libxml/HTMLparser.h>
#include <libxml/xpath.h>

namespace {

std::string taken(xmlChar* text) {
    const std::unique_ptr<xmlChar, void (*)(void*)> owned(text, xmlFree);
    return text == nullptr ? "" : reinterpret_cast<const char*>(text);  // NOLINT: bytes of UTF-8
}

/// Without the blanks and line breaks at both ends.
std::string trimmed(const std::string& text) {
    const std::size_t begin = text.find_first_not_of(" \n");
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(" \n") - begin + 1);
}

const xmlChar* xmlText(const char* text) {
    return reinterpret_cast<const xmlChar*>(text);  // NOLINT: bytes of UTF-8
}

bool isA(const xmlNode* node, const char* name) {
    return xmlStrcmp(node->name, xmlText(name)) == 0;
}

std::string contentOf(xmlNode* cell) {
    return trimmed(taken(xmlNodeGetContent(cell)));
}

PageRow rowOf(xmlNode* node) {
    PageRow row;
    for (xmlNode* child = node->children; child != nullptr; child = child->next) {
        if (isA(child, "th")) {
            row.heading = contentOf(child);
        } else if (isA(child, "td")) {
            row.cells.push_back(contentOf(child));
        }
    }
    return row;
}

}  // namespace

std::vector<PageRow> rowsOfPage(const std::string& page, const std::string& xpath) {
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(
        htmlReadMemory(page.data(), static_cast<int>(page.size()), nullptr, "UTF-8",
                       HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET),
        xmlFreeDoc);
    const std::unique_ptr<xmlXPathContext, void (*)(xmlXPathContext*)> context(xmlXPathNewContext(document.get()),
                                                                               xmlXPathFreeContext);
    const std::string rows = xpath + "//tr[td]";
    const std::unique_ptr<xmlXPathObject, void (*)(xmlXPathObject*)> found(
        xmlXPathEval(xmlText(rows.c_str()), context.get()), xmlXPathFreeObject);
    std::vector<PageRow> result;
    for (int index = 0; found && index < xmlXPathNodeSetGetLength(found->nodesetval); ++index) {
        result.push_back(rowOf(xmlXPathNodeSetItem(found->nodesetval, index)));
    }
    return result;
}
