#pragma once

#include <string_view>

namespace lv::analysis {

/// Takes natural values one after the other: what JSON has, in the order in which a JSON text has it. Texts are views
/// that are valid during the call.
class Sink {
public:
    /// What the entries of an array are.
    enum class Entries {
        objects,  ///< Objects.
        numbers,  ///< Numbers.
    };

    /// What a number can be.
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

    /// An object begins: up to its `endObject` keys come, each with a value after it.
    virtual void beginObject() = 0;

    /// The key of the value that comes next.
    virtual void key(std::string_view name) = 0;

    /// The object that began last ends.
    virtual void endObject() = 0;

    /// An array begins: up to its `endArray` its entries come.
    virtual void beginArray(Entries entries) = 0;

    /// The array that began last ends.
    virtual void endArray() = 0;

    /// A text, as bytes: in UTF-8 unless a record holds other bytes.
    virtual void string(std::string_view text) = 0;

    /// A number in decimal, as JSON writes it: "-0.7".
    virtual void number(std::string_view text, NumberKind kind) = 0;

    /// True or false.
    virtual void boolean(bool value) = 0;

    /// Nothing.
    virtual void null() = 0;
};

}  // namespace lv::analysis
