#pragma once

#include <string_view>

namespace lv::analysis {

/// Takes natural values one after the other: the values of JSON, in the order of a JSON text. Texts are views that are
/// valid during the call.
class Sink {
public:
    /// The type of the entries of an array.
    enum class Entries {
        objects,  ///< Objects.
        numbers,  ///< Numbers.
    };

    /// The kinds of numbers.
    enum class NumberKind {
        integer,   ///< A whole number.
        fraction,  ///< A number of a quantity that can have digits after the point; this one may have none.
    };

    Sink() = default;
    Sink(const Sink&) = delete;
    Sink& operator=(const Sink&) = delete;
    Sink(Sink&&) = delete;
    Sink& operator=(Sink&&) = delete;
    virtual ~Sink() = default;

    /// An object begins. Until its `endObject`, keys follow, each with a value after it.
    virtual void beginObject() = 0;

    /// The key of the value that comes next.
    virtual void key(std::string_view name) = 0;

    /// The innermost open object ends.
    virtual void endObject() = 0;

    /// An array begins. Until its `endArray`, its entries follow.
    virtual void beginArray(Entries entries) = 0;

    /// The innermost open array ends.
    virtual void endArray() = 0;

    /// A text, as bytes: in UTF-8 unless a record holds other bytes.
    virtual void string(std::string_view text) = 0;

    /// A number in decimal, as JSON writes it: "-0.7".
    virtual void number(std::string_view text, NumberKind kind) = 0;

    /// True or false.
    virtual void boolean(bool value) = 0;

    /// The value null.
    virtual void null() = 0;
};

}  // namespace lv::analysis
