#pragma once

#include <lvdata/analysis/Shape.h>
#include <lvdata/analysis/Tree.h>

#include <string>
#include <string_view>

namespace lv::analysis {

/// Where a described thing is in a document, or would be.
struct Position {
    const Shape* shape = nullptr;  ///< What it is. Never null.
    const Node* node = nullptr;    ///< It, or null when the document does not have it. For a text its text node.
    const Node* parent = nullptr;  ///< The element that it is in, or would be; null when that is missing, too.
};

/// The position of the child of that shape: of several elements the first, of a keyed element the last with a text.
[[nodiscard]] Position childAt(const Position& position, const Shape& child);

/// The position of a subject of a question that is asked at `asked`.
[[nodiscard]] Position subjectAt(const Question::Subject& subject, const Position& asked);

/// The value that a record holds after reading it, as text: the text of a string, a number in plain decimal, "true" or
/// "false", an array as it stands. The text of a fresh record where the document has none.
[[nodiscard]] std::string valueAt(const Position& position);

/// A text as a record writes back what it reads from it: a number in plain decimal, "true" or "false", strings and
/// arrays as they stand.
[[nodiscard]] std::string inPlainForm(std::string_view text, Description::Content content);

/// An answer about a document. Some rules exist only in words, so that only the record can answer.
enum class Answer { no, yes, unknown };

/// Settings that apply to all records of a document.
struct Circumstances {
    bool hlgSwitch = false;  ///< `DataObject::writeHLGSystemGamma` of the record that is printed.
};

/// The answer to a question that is asked at a position.
[[nodiscard]] Answer answer(const Question& question, const Position& position, const Circumstances& circumstances);

/// The first question with the answer no; null when there is none.
[[nodiscard]] const Question* firstDenied(const std::vector<Question>& questions, const Position& position,
                                          const Circumstances& circumstances);

/// The quantity that applies at the position; null for anything but numbers.
[[nodiscard]] const Quantity* quantityAt(const Position& position);

/// The number of entries of an array's text: of pieces between "|" that are not empty.
[[nodiscard]] std::size_t entriesIn(std::string_view text);

}  // namespace lv::analysis
