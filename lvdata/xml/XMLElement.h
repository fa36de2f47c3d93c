#pragma once

#include <lvdata/export.h>
#include <lvdata/xml/XMLNode.h>
#include <lvdata/xml/property.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace lv {

/// An element of an XML document, with typed access to its text, attributes and children.
///
/// A handle like `XMLNode`, narrowed to an element at every operation: a wrapper whose node is of another kind behaves
/// like an invalid one. No operation reports an error, and none throws anything but `std::bad_alloc`. After a failure
/// the returned wrapper is invalid and the output argument untouched, so calls can be chained without checks. A missing
/// child, a missing attribute and an invalid receiver look the same. One thread at a time, together with the document.
///
/// Names and text are C strings to the XML library: they end at their first NUL.
class LVDATA_EXPORT XMLElement : public XMLNode {
public:
    XMLElement() = default;

    /// Wraps a node passed as `XMLNode` takes it, and converts from it; one that is not an element behaves like
    /// an invalid wrapper.
    XMLElement(void* node) : XMLNode(node) {}  // NOLINT(google-explicit-constructor)

    /// The tag name; "" when invalid.
    [[nodiscard]] std::string elementName() const;

    /// The first child element of that name; invalid when there is none.
    [[nodiscard]] XMLElement getElement(const std::string& name) const;

    /// All child elements of that name in document order; empty when there are none.
    [[nodiscard]] std::vector<XMLElement> getElements(const std::string& name) const;

    /// \name Reading the element's own text
    /// The text is the first piece of text or CDATA section, unless a child element comes before it. Comments before it
    /// are ignored, and anything after it ends it. Whitespace-only text counts as absent; entities are resolved.
    /// Each getter returns this element when the value was found, otherwise an invalid one with `out` untouched.
    /// @{

    /// Found whenever the element is valid; without a text `out` stays untouched even so.
    XMLElement getStringValue(std::string& out) const;

    /// Found when the text is not empty; it is converted as `lexical_cast` does.
    XMLElement getIntValue(int& out) const;
    XMLElement getUIntValue(unsigned int& out) const;

    /// Found when the text is not empty; true exactly for "true" and "TRUE".
    XMLElement getBoolValue(bool& out) const;

    /// Found when the text is not empty. It is split as `split_string` does, and `out` is replaced by the numbers of
    /// the pieces that are not empty: "1||2|" gives two numbers.
    XMLElement getIntArray(std::vector<int>& out, const std::string& separator) const;
    XMLElement getUIntArray(std::vector<unsigned int>& out, const std::string& separator) const;
    /// @}

    /// \name Reading a child's text
    /// The getters above, applied to the first child element of that name. Arrays are always split at "|", whatever
    /// separator is given, since every document separates them so.
    /// @{
    XMLElement getStringValue(const std::string& name, std::string& out) const;
    XMLElement getIntValue(const std::string& name, int& out) const;
    XMLElement getUIntValue(const std::string& name, unsigned int& out) const;
    XMLElement getBoolValue(const std::string& name, bool& out) const;
    XMLElement getIntArray(const std::string& name, std::vector<int>& out, const std::string& separator) const;
    XMLElement getUIntArray(const std::string& name, std::vector<unsigned int>& out,
                            const std::string& separator) const;
    /// @}

    /// \name Reading into a property
    /// The same getters. The flag becomes whether the value was found; when it was not, the value stays as it was.
    /// Arrays are always split at "|".
    /// @{
    XMLElement getStringValue(property<std::string>& out) const;
    XMLElement getIntValue(property<int>& out) const;
    XMLElement getUIntValue(property<unsigned int>& out) const;
    XMLElement getBoolValue(property<bool>& out) const;
    XMLElement getIntArray(property<std::vector<int>>& out, const std::string& separator) const;
    XMLElement getUIntArray(property<std::vector<unsigned int>>& out, const std::string& separator) const;

    XMLElement getStringValue(const std::string& name, property<std::string>& out) const;
    XMLElement getIntValue(const std::string& name, property<int>& out) const;
    XMLElement getUIntValue(const std::string& name, property<unsigned int>& out) const;
    XMLElement getBoolValue(const std::string& name, property<bool>& out) const;
    XMLElement getIntArray(const std::string& name, property<std::vector<int>>& out,
                           const std::string& separator) const;
    XMLElement getUIntArray(const std::string& name, property<std::vector<unsigned int>>& out,
                            const std::string& separator) const;
    /// @}

    /// \name Attributes
    /// A string attribute is found when it exists, even if it is empty; a number only when it is not empty. The setters
    /// create or replace the attribute and return this wrapper. When it is not an element, nothing is set.
    /// @{
    XMLElement getAttributeString(const std::string& name, std::string& out) const;
    XMLElement getAttributeInt(const std::string& name, int& out) const;
    XMLElement getAttributeUInt(const std::string& name, unsigned int& out) const;
    XMLElement getAttributeString(const std::string& name, property<std::string>& out) const;
    XMLElement getAttributeInt(const std::string& name, property<int>& out) const;
    XMLElement getAttributeUInt(const std::string& name, property<unsigned int>& out) const;

    XMLElement setAttributeString(const std::string& name, const std::string& value) const;
    XMLElement setAttributeInt(const std::string& name, int value) const;
    XMLElement setAttributeUInt(const std::string& name, unsigned int value) const;
    /// @}

    /// \name Appending children
    /// Each appends a new last child element and returns it. On an invalid element nothing happens and the result is
    /// invalid. `appendChild` adds no text node ("<A/>"); the others always add one, even for an empty text
    /// ("<A></A>"). An array is written as its decimal numbers with the separator between neighbours.
    /// @{
    XMLElement appendChild(const std::string& name) const;
    XMLElement appendChildString(const std::string& name, const std::string& text) const;
    XMLElement appendChildInt(const std::string& name, int value) const;
    XMLElement appendChildUInt(const std::string& name, unsigned int value) const;
    XMLElement appendChildBool(const std::string& name, bool value) const;
    XMLElement appendChildIntArray(const std::string& name, const std::vector<int>& values,
                                   const std::string& separator) const;
    XMLElement appendChildUIntArray(const std::string& name, const std::vector<unsigned int>& values,
                                    const std::string& separator) const;

    /// The same for a list in braces, which may be empty: `appendChildIntArray("Values", {}, "|")`.
    XMLElement appendChildIntArray(const std::string& name, std::initializer_list<int> values,
                                   const std::string& separator) const {
        return appendChildIntArray(name, std::vector<int>(values), separator);
    }
    XMLElement appendChildUIntArray(const std::string& name, std::initializer_list<unsigned int> values,
                                    const std::string& separator) const {
        return appendChildUIntArray(name, std::vector<unsigned int>(values), separator);
    }
    /// @}

    /// \name Appending a property
    /// A set property is appended like its value. For an unset one an element without a text node is appended when
    /// `writeEmpty` is true; otherwise, and for every unset array, nothing is appended and the result is invalid.
    /// @{
    XMLElement appendChildString(const std::string& name, const property<std::string>& text, bool writeEmpty) const;
    XMLElement appendChildInt(const std::string& name, const property<int>& value, bool writeEmpty) const;
    XMLElement appendChildUInt(const std::string& name, const property<unsigned int>& value, bool writeEmpty) const;
    XMLElement appendChildBool(const std::string& name, const property<bool>& value, bool writeEmpty) const;
    XMLElement appendChildIntArray(const std::string& name, const property<std::vector<int>>& values,
                                   const std::string& separator) const;
    XMLElement appendChildUIntArray(const std::string& name, const property<std::vector<unsigned int>>& values,
                                    const std::string& separator) const;
    /// @}
};

}  // namespace lv
