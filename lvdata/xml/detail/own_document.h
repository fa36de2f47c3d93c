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

/// While it lives, a record can read the arrays of a document from the text that the document was parsed from. Text and
/// document must outlive it.
class SourceForRecord {
public:
    /// \param record  the only one that may: the one that is asked to read the whole document
    SourceForRecord(void* document, std::string_view source, const void* record);
    ~SourceForRecord();
    SourceForRecord(const SourceForRecord&) = delete;
    SourceForRecord& operator=(const SourceForRecord&) = delete;
    SourceForRecord(SourceForRecord&&) = delete;
    SourceForRecord& operator=(SourceForRecord&&) = delete;

private:
    void* document_;
};

/// Takes the source into use, if there is one for that record. The document must not be changed from now on.
void useSource(void* element, const void* record);

/// The text in use for the document that the node belongs to; null when there is none.
[[nodiscard]] const SourceText* sourceInUse(const tinyxml2::XMLNode& node);

/// Announces that a document is made for nothing but the compact text of one record.
void expectCompactText(void* document, const void* record);

/// Where that was announced for that record: from now on, what the two functions below are given becomes its text at
/// once, and nobody finds it among the nodes.
void startPieces(void* document, const void* record);

/// Once pieces are started: prints a new last child element that holds nothing but a text, without making nodes of it.
/// False when nothing was done.
[[nodiscard]] bool appendPiece(void* parent, const char* name, const std::string& text);

/// Once pieces are started: prints a finished element, the last child of its parent, and leaves only its text in its
/// place, so that the nodes of a long list need the memory of one row. The handle dangles from then on.
void finishElement(void* element);

/// Puts the pieces printed so far where they belong, so that the document's nodes can be printed or others appended.
/// Nothing to do in a document without pieces.
void placePieces(void* document);

/// A new last child of `parent` in its own document, behind the pieces printed so far.
[[nodiscard]] tinyxml2::XMLElement* appendElement(tinyxml2::XMLNode& parent, const char* name);
void appendText(tinyxml2::XMLNode& parent, const char* text);

}  // namespace lv::detail
