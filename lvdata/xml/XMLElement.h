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
/// A handle like `XMLNode`. Every operation needs an element: a wrapper of any other node behaves like an invalid one.
/// No operation reports an error, and only `std::bad_alloc` is thrown. After a failure the returned wrapper is invalid
/// and the output argument unchanged, so calls can be chained without checks. A missing child, a missing attribute and
/// an invalid element cannot be distinguished. Only one thread at a time may use a document and the wrappers into it.
///
/// Names and texts are C strings in the XML library: they end at the first NUL.
class LVDATA_EXPORT XMLElement : public XMLNode {
public:
    /// An invalid wrapper, which has no element.
    XMLElement() = default;

    /// Wraps a node passed as `XMLNode` takes it, and converts from it. A node that is not an element behaves like an
    /// invalid wrapper.
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
    /// Each getter returns this element when the value was found, otherwise an invalid one, and leaves `out` unchanged.
    /// @{

    /// Reads the text. Found whenever the element is valid; if it has no text, `out` still stays unchanged.
    XMLElement getStringValue(std::string& out) const;

    /// Reads a signed number. Found when the text is not empty; `lexical_cast` converts it.
    XMLElement getIntValue(int& out) const;

    /// Reads an unsigned number. Found when the text is not empty; `lexical_cast` converts it.
    XMLElement getUIntValue(unsigned int& out) const;

    /// Reads a boolean. Found when the text is not empty; true exactly for "true" and "TRUE".
    XMLElement getBoolValue(bool& out) const;

    /// Reads signed numbers. Found when the text is not empty. It is split as by `split_string`, and `out` is replaced
    /// by the numbers in the pieces that are not empty: "1||2|" gives two numbers.
    XMLElement getIntArray(std::vector<int>& out, const std::string& separator) const;

    /// Reads unsigned numbers, as `getIntArray` reads signed ones.
    XMLElement getUIntArray(std::vector<unsigned int>& out, const std::string& separator) const;
    /// @}

    /// \name Reading a child's text
    /// The getters above, applied to the first child element of that name. Arrays are always split at "|", whatever
    /// separator is given, since all documents use it.
    /// Each returns the child when the value was found, otherwise an invalid element, and leaves `out` unchanged.
    /// @{

    /// Reads the child's text. Found whenever there is such a child; if it has no text, `out` still stays unchanged.
    XMLElement getStringValue(const std::string& name, std::string& out) const;

    /// Reads a signed number from the child. Found when its text is not empty.
    XMLElement getIntValue(const std::string& name, int& out) const;

    /// Reads an unsigned number from the child. Found when its text is not empty.
    XMLElement getUIntValue(const std::string& name, unsigned int& out) const;

    /// Reads a boolean from the child. Found when its text is not empty; true exactly for "true" and "TRUE".
    XMLElement getBoolValue(const std::string& name, bool& out) const;

    /// Reads signed numbers from the child. Found when its text is not empty. `separator` is ignored: it is always "|".
    XMLElement getIntArray(const std::string& name, std::vector<int>& out, const std::string& separator) const;

    /// Reads unsigned numbers from the child. Found when its text is not empty. `separator` is ignored: it is always
    /// "|".
    XMLElement getUIntArray(const std::string& name, std::vector<unsigned int>& out,
                            const std::string& separator) const;
    /// @}

    /// \name Reading into a property
    /// The same getters. They set the flag to whether the value was found; if it was not, the value stays unchanged.
    /// Arrays are always split at "|".
    /// @{

    /// Reads this element's text; sets the flag to whether the element is valid.
    XMLElement getStringValue(property<std::string>& out) const;

    /// Reads this element's text as a signed number; sets the flag to whether the text is not empty.
    XMLElement getIntValue(property<int>& out) const;

    /// Reads this element's text as an unsigned number; sets the flag to whether the text is not empty.
    XMLElement getUIntValue(property<unsigned int>& out) const;

    /// Reads this element's text as a boolean; sets the flag to whether the text is not empty.
    XMLElement getBoolValue(property<bool>& out) const;

    /// Reads this element's text as signed numbers split at "|"; sets the flag to whether the text is not empty.
    /// `separator` is ignored.
    XMLElement getIntArray(property<std::vector<int>>& out, const std::string& separator) const;

    /// Reads this element's text as unsigned numbers split at "|"; sets the flag to whether the text is not empty.
    /// `separator` is ignored.
    XMLElement getUIntArray(property<std::vector<unsigned int>>& out, const std::string& separator) const;

    /// Reads the child's text; sets the flag to whether there is such a child.
    XMLElement getStringValue(const std::string& name, property<std::string>& out) const;

    /// Reads a signed number from the child; sets the flag to whether it was found.
    XMLElement getIntValue(const std::string& name, property<int>& out) const;

    /// Reads an unsigned number from the child; sets the flag to whether it was found.
    XMLElement getUIntValue(const std::string& name, property<unsigned int>& out) const;

    /// Reads a boolean from the child; sets the flag to whether it was found.
    XMLElement getBoolValue(const std::string& name, property<bool>& out) const;

    /// Reads signed numbers from the child, split at "|"; sets the flag to whether they were found. `separator` is
    /// ignored.
    XMLElement getIntArray(const std::string& name, property<std::vector<int>>& out,
                           const std::string& separator) const;

    /// Reads unsigned numbers from the child, split at "|"; sets the flag to whether they were found. `separator` is
    /// ignored.
    XMLElement getUIntArray(const std::string& name, property<std::vector<unsigned int>>& out,
                            const std::string& separator) const;
    /// @}

    /// \name Attributes
    /// The getters return this element when the attribute was found, otherwise an invalid one with `out` untouched; for
    /// a property, the flag says the same. The setters return this wrapper; if it is not an element, nothing is set.
    /// @{

    /// Reads an attribute. Found when it exists, even if it is empty.
    XMLElement getAttributeString(const std::string& name, std::string& out) const;

    /// Reads an attribute as a signed number. Found when it is not empty.
    XMLElement getAttributeInt(const std::string& name, int& out) const;

    /// Reads an attribute as an unsigned number. Found when it is not empty.
    XMLElement getAttributeUInt(const std::string& name, unsigned int& out) const;

    /// Reads an attribute; sets the flag to whether it exists.
    XMLElement getAttributeString(const std::string& name, property<std::string>& out) const;

    /// Reads an attribute as a signed number; sets the flag to whether it exists and is not empty.
    XMLElement getAttributeInt(const std::string& name, property<int>& out) const;

    /// Reads an attribute as an unsigned number; sets the flag to whether it exists and is not empty.
    XMLElement getAttributeUInt(const std::string& name, property<unsigned int>& out) const;

    /// Creates or replaces an attribute.
    XMLElement setAttributeString(const std::string& name, const std::string& value) const;

    /// Creates or replaces an attribute with a number in decimal.
    XMLElement setAttributeInt(const std::string& name, int value) const;

    /// Creates or replaces an attribute with an unsigned number in decimal.
    XMLElement setAttributeUInt(const std::string& name, unsigned int value) const;
    /// @}

    /// \name Appending children
    /// Each appends a new last child element and returns it. On an invalid element, nothing happens and the result is
    /// invalid.
    /// @{

    /// Appends a child without a text: "<A/>".
    XMLElement appendChild(const std::string& name) const;

    /// Appends a child with a text, which may be empty: "<A></A>".
    XMLElement appendChildString(const std::string& name, const std::string& text) const;

    /// Appends a child with a number in decimal.
    XMLElement appendChildInt(const std::string& name, int value) const;

    /// Appends a child with an unsigned number in decimal.
    XMLElement appendChildUInt(const std::string& name, unsigned int value) const;

    /// Appends a child with the text "true" or "false".
    XMLElement appendChildBool(const std::string& name, bool value) const;

    /// Appends a child with numbers in decimal, the separator between neighbours; an empty array gives an empty text.
    XMLElement appendChildIntArray(const std::string& name, const std::vector<int>& values,
                                   const std::string& separator) const;

    /// Appends a child with unsigned numbers in decimal, the separator between neighbours; an empty array gives an
    /// empty text.
    XMLElement appendChildUIntArray(const std::string& name, const std::vector<unsigned int>& values,
                                    const std::string& separator) const;

    /// The same for a list in braces, which may be empty: `appendChildIntArray("Values", {}, "|")`.
    XMLElement appendChildIntArray(const std::string& name, std::initializer_list<int> values,
                                   const std::string& separator) const {
        return appendChildIntArray(name, std::vector<int>(values), separator);
    }

    /// The same for a list in braces, which may be empty: `appendChildUIntArray("Values", {}, "|")`.
    XMLElement appendChildUIntArray(const std::string& name, std::initializer_list<unsigned int> values,
                                    const std::string& separator) const {
        return appendChildUIntArray(name, std::vector<unsigned int>(values), separator);
    }
    /// @}

    /// \name Appending a property
    /// A set property is appended like its value, and the new child is returned. If nothing is appended, the result is
    /// an invalid element.
    /// @{

    /// Appends the text when it is set; otherwise an empty child ("<A/>") if `writeEmpty` is true, or nothing.
    XMLElement appendChildString(const std::string& name, const property<std::string>& text, bool writeEmpty) const;

    /// Appends the number when it is set; otherwise an empty child ("<A/>") if `writeEmpty` is true, or nothing.
    XMLElement appendChildInt(const std::string& name, const property<int>& value, bool writeEmpty) const;

    /// Appends the unsigned number when it is set; otherwise an empty child ("<A/>") if `writeEmpty` is true, or
    /// nothing.
    XMLElement appendChildUInt(const std::string& name, const property<unsigned int>& value, bool writeEmpty) const;

    /// Appends the boolean when it is set; otherwise an empty child ("<A/>") if `writeEmpty` is true, or nothing.
    XMLElement appendChildBool(const std::string& name, const property<bool>& value, bool writeEmpty) const;

    /// Appends the numbers when they are set; otherwise nothing.
    XMLElement appendChildIntArray(const std::string& name, const property<std::vector<int>>& values,
                                   const std::string& separator) const;

    /// Appends the unsigned numbers when they are set; otherwise nothing.
    XMLElement appendChildUIntArray(const std::string& name, const property<std::vector<unsigned int>>& values,
                                    const std::string& separator) const;
    /// @}
};

}  // namespace lv
