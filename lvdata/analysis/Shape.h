#pragma once

#include <lvdata/core/Description.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

class Shape;

/// A condition of a description whose subjects are looked up: prepared for checking documents.
struct Question {
    /// The path from the place of the condition to one of its subjects.
    struct Subject {
        std::size_t up = 0;                ///< The number of parents to go up,
        std::vector<const Shape*> down{};  ///< then along these.
    };

    const Condition* condition = nullptr;  ///< The condition.
    std::vector<Subject> subjects{};       ///< One for each of its subjects.
    std::vector<Question> alternatives{};  ///< One for each of its alternatives.
};

/// A node of a description, prepared for visiting documents: with its parent, its key in JSON, and questions instead of
/// conditions. It never changes, so any number of threads may use it. Made by `Catalogue`.
class Shape {
public:
    /// The root of a description, which must outlive the shape.
    explicit Shape(const Description& root);

    Shape(const Shape&) = delete;
    Shape& operator=(const Shape&) = delete;
    Shape(Shape&&) = delete;
    Shape& operator=(Shape&&) = delete;
    ~Shape() = default;

    /// The library's description of it.
    [[nodiscard]] const Description& facts() const { return facts_; }

    /// The shape of the parent element; null for a root.
    [[nodiscard]] const Shape* parent() const { return parent_; }

    /// The key in JSON: the name in snake case; "value" for a text. Of a keyed element the name without its key.
    [[nodiscard]] const std::string& key() const { return key_; }

    /// `Description::xpathStep`, made once.
    [[nodiscard]] const std::string& step() const { return step_; }

    /// Its possible content, in the order of writing.
    [[nodiscard]] const std::vector<std::unique_ptr<Shape>>& children() const { return children_; }

    /// The element of that name whose key, if it has one, is `keyText`; null when there is none.
    [[nodiscard]] const Shape* element(std::string_view name, std::string_view keyText) const;

    /// A child element of that name, whatever its key; null when there is none. The search begins at `previous`, one of
    /// `children` or null, so that it is short when a document is visited in the order of writing.
    [[nodiscard]] const Shape* firstElement(std::string_view name, const Shape* previous = nullptr) const;

    /// The attribute of that name; null when there is none.
    [[nodiscard]] const Shape* attribute(std::string_view name) const;

    /// Whether it has text: a content, or a child that is its text.
    [[nodiscard]] bool takesText() const;

    /// The index among the children of its parent.
    [[nodiscard]] std::size_t index() const { return index_; }

    /// `Description::writtenWhen`, `readWhen` and `flag`, prepared. For the flag there is at most one question.
    [[nodiscard]] const std::vector<Question>& writtenWhen() const { return writtenWhen_; }
    [[nodiscard]] const std::vector<Question>& readWhen() const { return readWhen_; }
    [[nodiscard]] const std::vector<Question>& flag() const { return flag_; }

    /// One for each of `Description::otherQuantities`.
    [[nodiscard]] const std::vector<Question>& otherQuantities() const { return otherQuantities_; }

    /// "MonitorInfo/AssetInfo/@Version", for messages: names alone, without the numbers of rows.
    [[nodiscard]] std::string path() const;

private:
    Shape(const Description& facts, const Shape* parent, std::size_t index);
    void prepareQuestions();
    [[nodiscard]] std::vector<Question> questionsOf(const std::vector<Condition>& conditions) const;
    [[nodiscard]] Question questionOf(const Condition& condition) const;
    [[nodiscard]] Question::Subject subjectOf(const std::string& xpath) const;
    [[nodiscard]] const Shape* childOf(const std::string& xpathStep) const;

    const Description& facts_;
    const Shape* parent_;
    std::size_t index_;
    std::string key_;
    std::string step_;
    std::vector<std::unique_ptr<Shape>> children_{};
    std::vector<Question> writtenWhen_{};
    std::vector<Question> readWhen_{};
    std::vector<Question> flag_{};
    std::vector<Question> otherQuantities_{};
};

}  // namespace lv::analysis
