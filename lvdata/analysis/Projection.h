#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/Position.h>
#include <lvdata/analysis/Sink.h>
#include <lvdata/analysis/Tree.h>

namespace lv::analysis {

/// Gives the natural values of a document that a record printed (`Tree::ofPrinted`) to a sink: one object whose only
/// key is that of the root element. docs/json.md describes the conversion. Visits the document once.
void project(const Tree& printed, const Shape& root, Sink& sink);

/// The same of one element of such a document, without a key.
void projectElement(const Node& element, const Shape& shape, Sink& sink);

/// Whether elements of this shape are a plain value and not an object: they can only have a text, and the attribute
/// that is their key.
[[nodiscard]] bool isPlain(const Shape& shape);

/// The shape of the element's text: the element itself, or the one of its texts that is read now, or else the first.
/// Null when it has no text.
[[nodiscard]] const Shape* textShapeAt(const Position& element);

/// The key of a keyed element in the object of all of them: "limited109_red".
[[nodiscard]] std::string keyAmongKeyed(const Shape& keyed);

}  // namespace lv::analysis
