#pragma once

#include <lvdata/xml/detail/element_reading.h>

#include <string>
#include <string_view>
#include <vector>

namespace lv::detail {

/// Appends a new last child element without a text node and returns its handle; null when `parent` is no element.
void* appendChild(void* parent, const char* name);

/// Appends a new last child element with a text node, an empty one included; the result is as above.
/// The appenders of `XMLElement` state the text of each type.
void* appendChild(void* parent, const char* name, const std::string& text);
void* appendChild(void* parent, const char* name, int value);
void* appendChild(void* parent, const char* name, unsigned int value);
void* appendChild(void* parent, const char* name, bool value);
void* appendChild(void* parent, const char* name, const std::vector<int>& values,
                  std::string_view separator = arraySeparator);
void* appendChild(void* parent, const char* name, const std::vector<unsigned int>& values,
                  std::string_view separator = arraySeparator);
void* appendChild(void* parent, const char* name, const char* text) = delete;  // it would be taken for a bool

/// The same for a caller that needs no handle, so that the element may become text at once. False when `parent` is no
/// element.
bool appendLeaf(void* parent, const char* name, const std::string& text);
bool appendLeaf(void* parent, const char* name, int value);
bool appendLeaf(void* parent, const char* name, unsigned int value);
bool appendLeaf(void* parent, const char* name, bool value);
bool appendLeaf(void* parent, const char* name, const std::vector<int>& values);
bool appendLeaf(void* parent, const char* name, const std::vector<unsigned int>& values);
bool appendLeaf(void* parent, const char* name, const char* text) = delete;

/// Gives an element its text, as the appenders above do: a text node added behind what it holds.
void setText(void* element, unsigned int value);
void setText(void* element, const std::vector<unsigned int>& values);

/// Creates or replaces an attribute; does nothing when the handle is no element.
void setAttribute(void* element, const char* name, const std::string& value);
void setAttribute(void* element, const char* name, int value);
void setAttribute(void* element, const char* name, unsigned int value);

}  // namespace lv::detail
