#pragma once

#include <lvdata/xml/XMLElement.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv::test {

// The kinds of values that an element can hold, each with its text and with the operations of XMLElement that read and
// append it: tests that hold for all of them are written once. `Out` and `In` are the plain value or its property.

struct StringKind {
    using Value = std::string;
    static constexpr const char* name = "String";
    static constexpr const char* text = "new";
    static Value value() { return "new"; }
    static Value otherValue() { return "old"; }

    template <class Out>
    static XMLElement read(const XMLElement& element, Out& out) {
        return element.getStringValue(out);
    }
    template <class Out>
    static XMLElement readChild(const XMLElement& parent, const std::string& childName, Out& out) {
        return parent.getStringValue(childName, out);
    }
    static XMLElement append(const XMLElement& parent, const std::string& childName, const Value& in) {
        return parent.appendChildString(childName, in);
    }
    static XMLElement append(const XMLElement& parent, const std::string& childName, const property<Value>& in,
                             bool writeEmpty = false) {
        return parent.appendChildString(childName, in, writeEmpty);
    }
};

struct IntKind {
    using Value = int;
    static constexpr const char* name = "Int";
    static constexpr const char* text = "-17";
    static Value value() { return -17; }
    static Value otherValue() { return 9; }

    template <class Out>
    static XMLElement read(const XMLElement& element, Out& out) {
        return element.getIntValue(out);
    }
    template <class Out>
    static XMLElement readChild(const XMLElement& parent, const std::string& childName, Out& out) {
        return parent.getIntValue(childName, out);
    }
    static XMLElement append(const XMLElement& parent, const std::string& childName, const Value& in) {
        return parent.appendChildInt(childName, in);
    }
    static XMLElement append(const XMLElement& parent, const std::string& childName, const property<Value>& in,
                             bool writeEmpty = false) {
        return parent.appendChildInt(childName, in, writeEmpty);
    }
};

struct UIntKind {
    using Value = unsigned int;
    static constexpr const char* name = "UInt";
    static constexpr const char* text = "4294967295";
    static Value value() { return 4294967295U; }
    static Value otherValue() { return 9U; }

    template <class Out>
    static XMLElement read(const XMLElement& element, Out& out) {
        return element.getUIntValue(out);
    }
    template <class Out>
    static XMLElement readChild(const XMLElement& parent, const std::string& childName, Out& out) {
        return parent.getUIntValue(childName, out);
    }
    static XMLElement append(const XMLElement& parent, const std::string& childName, const Value& in) {
        return parent.appendChildUInt(childName, in);
    }
    static XMLElement append(const XMLElement& parent, const std::string& childName, const property<Value>& in,
                             bool writeEmpty = false) {
        return parent.appendChildUInt(childName, in, writeEmpty);
    }
};

struct BoolKind {
    using Value = bool;
    static constexpr const char* name = "Bool";
    static constexpr const char* text = "true";
    static Value value() { return true; }
    static Value otherValue() { return false; }

    template <class Out>
    static XMLElement read(const XMLElement& element, Out& out) {
        return element.getBoolValue(out);
    }
    template <class Out>
    static XMLElement readChild(const XMLElement& parent, const std::string& childName, Out& out) {
        return parent.getBoolValue(childName, out);
    }
    static XMLElement append(const XMLElement& parent, const std::string& childName, const Value& in) {
        return parent.appendChildBool(childName, in);
    }
    static XMLElement append(const XMLElement& parent, const std::string& childName, const property<Value>& in,
                             bool writeEmpty = false) {
        return parent.appendChildBool(childName, in, writeEmpty);
    }
};

struct IntArrayKind {
    using Value = std::vector<int>;
    static constexpr const char* name = "IntArray";
    static constexpr const char* text = "1|-2|3";
    static Value value() { return {1, -2, 3}; }
    static Value otherValue() { return {9}; }

    template <class Out>
    static XMLElement read(const XMLElement& element, Out& out) {
        return element.getIntArray(out, "|");
    }
    template <class Out>
    static XMLElement readChild(const XMLElement& parent, const std::string& childName, Out& out) {
        return parent.getIntArray(childName, out, "|");
    }
    template <class In>
    static XMLElement append(const XMLElement& parent, const std::string& childName, const In& in) {
        return parent.appendChildIntArray(childName, in, "|");
    }
};

struct UIntArrayKind {
    using Value = std::vector<unsigned int>;
    static constexpr const char* name = "UIntArray";
    static constexpr const char* text = "1|2|4294967295";
    static Value value() { return {1, 2, 4294967295U}; }
    static Value otherValue() { return {9}; }

    template <class Out>
    static XMLElement read(const XMLElement& element, Out& out) {
        return element.getUIntArray(out, "|");
    }
    template <class Out>
    static XMLElement readChild(const XMLElement& parent, const std::string& childName, Out& out) {
        return parent.getUIntArray(childName, out, "|");
    }
    template <class In>
    static XMLElement append(const XMLElement& parent, const std::string& childName, const In& in) {
        return parent.appendChildUIntArray(childName, in, "|");
    }
};

using SingleKinds = testing::Types<StringKind, IntKind, UIntKind, BoolKind>;
using NumberKinds = testing::Types<IntKind, UIntKind, BoolKind, IntArrayKind, UIntArrayKind>;
using AllKinds = testing::Types<StringKind, IntKind, UIntKind, BoolKind, IntArrayKind, UIntArrayKind>;

/// Names the kinds in the names of tests.
struct KindName {
    template <class Kind>
    static std::string GetName(int /*index*/) {
        return Kind::name;
    }
};

}  // namespace lv::test
