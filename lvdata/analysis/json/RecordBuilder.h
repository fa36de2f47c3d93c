#pragma once

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/Sink.h>
#include <lvdata/analysis/json/EventPath.h>
#include <lvdata/analysis/json/JSON.h>
#include <lvdata/analysis/json/NodeArena.h>
#include <lvdata/xml/Limits.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// Converts natural values back to a record: a sink that takes what `project` gives, with the keys in any order and
/// from any source. It checks everything that the description says about keys, types, lengths and ranges, and stops at
/// the first error.
class RecordBuilder final : public Sink {
public:
    /// The catalogue must outlive the builder and its result.
    RecordBuilder(const Catalogue& catalogue, const Limits& limits) : catalogue_(catalogue), limits_(limits) {}

    /// Sets the line in the source of the next call, for messages: counted from 1; 0 when there are no lines.
    void setLine(int line) { line_ = line; }

    /// Whether there was an error. Then all further calls do nothing.
    [[nodiscard]] bool hasFailed() const { return error_.has_value(); }

    /// Refuses the source for a reason that the builder does not know.
    void fail(std::string reason);

    /// Refuses the source because it exceeds that limit.
    void failBeyond(Excess::What what, std::size_t limit);

    /// The record, once all values were given; otherwise the error.
    [[nodiscard]] FromJSON result() const;

    void beginObject() override;
    void key(std::string_view name) override;
    void endObject() override;

    /// The description determines the type of the entries, not the caller.
    void beginArray(Entries entries) override;
    void endArray() override;
    void string(std::string_view text) override;
    void number(std::string_view text, NumberKind kind) override;
    void boolean(bool value) override;
    void null() override;

private:
    /// The meaning of the keys of an open object, or of the entries of an open array.
    enum class Level {
        document,  ///< The only key is that of a root element.
        element,   ///< The keys of what an element can have.
        keyed,     ///< The keys of keyed elements.
        rows,      ///< Entries that are elements.
        numbers,   ///< Entries that are numbers.
    };

    /// The expected type of a value.
    enum class Expected { object, array, string, boolean, number, numberOrArray };

    /// An object or array that is open.
    struct Open {
        Level level = Level::document;
        const Shape* shape = nullptr;         // of the element that has the keys; of the rows; null for a document
        Node* node = nullptr;                 // that element; null when there is none
        const Shape* member = nullptr;        // the member of the last key
        std::vector<bool> seen{};             // by the index of the member
        std::vector<IndexedNode> children{};  // of the element
    };

    /// A text of numbers that is being read.
    struct Numbers {
        const Shape* shape = nullptr;  // of the text
        bool isArray = false;          // whether it was given as an array
        bool isPending = false;        // to be converted at the end of the document
        int line = 0;                  // where it begins
        std::size_t count = 0;         // of the numbers
        std::string text{};            // the numbers, joined
        std::vector<int> lines{};      // of each number that is to be converted later
    };

    /// Numbers whose quantity or shape depends on other parts of the document: converted at its end.
    struct Pending {
        Numbers numbers;
        const Shape* member;  // the element that is a plain value, or its text
        Node* text;           // gets the converted numbers
        std::string path;
    };

    void fail(std::string reason, int line, std::string path);
    Node& make(Node::Kind kind, std::string_view name, std::string text = {});
    [[nodiscard]] bool begins(Expected value, const std::string& found);
    [[nodiscard]] Expected expected() const;
    [[nodiscard]] static Expected expectedOfText(const Shape& member);
    [[nodiscard]] static bool hasAlternatives(const Shape& text);
    void push(Level level, const Shape* shape, Node* node);
    void beginElement();
    void endDocument();

    void keyOfDocument(std::string_view name);
    void keyOfMember(std::string_view name);
    [[nodiscard]] static std::vector<std::string> keysOf(const Open& open);
    void unknownKey(std::string_view name, const std::vector<std::string>& known);

    [[nodiscard]] Open& owner();
    void addChild(const Shape& member, Node& node);
    Node& addText(const Shape& member, std::string text);

    void beginNumbers(bool isArray);
    void addNumber(std::string_view text);
    void endNumbers();
    [[nodiscard]] bool hasRightLength(const Numbers& numbers, const Shape& shape, const std::string& path);
    void resolve(const Pending& pending);
    void convert(const Pending& pending, const Shape& shape, const Quantity* quantity);

    const Catalogue& catalogue_;
    const Limits limits_;
    std::size_t elements_ = 0;
    std::size_t nodes_ = 0;
    const Catalogue::Entry* entry_ = nullptr;
    NodeArena arena_{};
    Node* root_ = nullptr;
    bool isComplete_ = false;
    std::vector<Open> open_{};
    Numbers numbers_{};
    std::vector<Pending> pending_{};
    EventPath path_{};
    int line_ = 0;
    bool hlgSwitch_ = false;
    std::optional<JSONError> error_{};
};

}  // namespace lv::analysis
