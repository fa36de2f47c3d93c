#include <lvdata/analysis/utf8.h>
#include <lvdata/analysis/well_formed.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>

#include <expat.h>

namespace lv::analysis {
namespace {

struct Delete {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, Delete>;

void takeDeclaration(void* encoding, const XML_Char* /*version*/, const XML_Char* name, int /*standalone*/) {
    if (name != nullptr) {
        *static_cast<std::string*>(encoding) = name;
    }
}

/// With a default handler, internal entities are handed over instead of being expanded.
void ignore(void* /*user*/, const XML_Char* /*text*/, int /*length*/) {}

/// The reason in words; those of the parser where they are clear.
std::string reasonOf(XML_Error error) {
    switch (error) {
    case XML_ERROR_INVALID_TOKEN:
        return "a character that XML does not allow here";
    case XML_ERROR_NO_ELEMENTS:
        return "the document ends inside an element";
    case XML_ERROR_SYNTAX:
        return "there is text where the root element belongs";
    case XML_ERROR_TAG_MISMATCH:
        return "the end tag does not match the start tag";
    case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
        return "something follows the root element";
    default:
        return XML_ErrorString(error);
    }
}

XMLVerdict::Fault faultOf(XML_Parser parser) {
    return {static_cast<int>(XML_GetCurrentLineNumber(parser)), reasonOf(XML_GetErrorCode(parser))};
}

/// In pieces, since the parser counts bytes with an int.
bool parseAll(XML_Parser parser, const std::string& text) {
    constexpr std::size_t pieceSize = std::size_t{1} << 24U;
    std::size_t position = 0;
    do {
        const std::size_t size = std::min(pieceSize, text.size() - position);
        const bool isLast = position + size == text.size();
        // NOLINTNEXTLINE(*-pointer-arithmetic)
        if (XML_Parse(parser, text.data() + position, static_cast<int>(size), isLast ? 1 : 0) != XML_STATUS_OK) {
            return false;
        }
        position += size;
    } while (position < text.size());
    return true;
}

}  // namespace

XMLVerdict judgeXML(const std::string& text) {
    XMLVerdict verdict;
    const Parser parser(XML_ParserCreate("UTF-8"));
    if (parser == nullptr) {
        throw std::bad_alloc();
    }
    XML_SetUserData(parser.get(), &verdict.declaredEncoding);
    XML_SetXmlDeclHandler(parser.get(), &takeDeclaration);
    XML_SetDefaultHandler(parser.get(), &ignore);
    if (!parseAll(parser.get(), text)) {
        if (XML_GetErrorCode(parser.get()) == XML_ERROR_NO_MEMORY) {
            throw std::bad_alloc();
        }
        const bool isText = isUTF8(text);  // other bytes are reported separately: they are kept
        verdict.fault = isText ? std::optional(faultOf(parser.get())) : std::nullopt;
    }
    return verdict;
}

}  // namespace lv::analysis
