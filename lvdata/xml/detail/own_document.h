#pragma once

#include <lvdata/xml/detail/SourceText.h>

#include <string>
#include <string_view>

namespace tinyxml2 {
class XMLDocument;
class XMLElement;
class XMLNode;
}  // namespace tinyxml2

namespace lv::detail {

/// A new document such as `XMLDocument` owns; to be deleted by the caller. The functions below know it from documents
/// of others, and do nothing with those.
[[nodiscard]] tinyxml2::XMLDocument* makeDocument();

/// While it lives, the arrays of a document are read from the text that it was parsed from. Text and document must
/// outlive it, and the document must not be changed meanwhile.
class SourceInUse {
public:
    SourceInUse(void* document, std::string_view source);
    ~SourceInUse();
    SourceInUse(const SourceInUse&) = delete;
    SourceInUse& operator=(const SourceInUse&) = delete;
    SourceInUse(SourceInUse&&) = delete;
    SourceInUse& operator=(SourceInUse&&) = delete;

private:
    void* document_;
};

/// The text in use for the document that the node belongs to; null when there is none.
[[nodiscard]] const SourceText* sourceInUse(const tinyxml2::XMLNode& node);

/// Announces that a document is made for nothing but one compact text.
void expectCompactText(void* document);

/// Where that was announced: from now on, what the two functions below are given becomes its text at once.
void startPieces(void* document);

/// Once pieces are started: prints a new last child element that holds nothing but a text, without making nodes of it.
/// False when nothing was done.
[[nodiscard]] bool appendPiece(void* parent, const char* name, const std::string& text);

/// Once pieces are started: prints a finished element, the last child of its parent, and leaves only its text in its
/// place, so that the nodes of a long list need the memory of one row. The handle dangles from then on.
void finishElement(void* element);

/// What follows appends nodes, or reads them: puts the pieces printed so far where they belong. Nothing to do in a
/// document without pieces.
void placePieces(void* document);

/// A new last child of `parent` in its own document, behind the pieces printed so far.
[[nodiscard]] tinyxml2::XMLElement* appendElement(tinyxml2::XMLNode& parent, const char* name);
void appendText(tinyxml2::XMLNode& parent, const char* text);

}  // namespace lv::detail
