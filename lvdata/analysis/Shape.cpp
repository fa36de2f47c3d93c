#include <lvdata/analysis/Shape.h>
#include <lvdata/analysis/snake_case.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace lv::analysis {
namespace {

using Place = Description::Place;

std::string keyOf(const Description& facts) {
    return facts.place == Place::text ? "value" : snakeCase(facts.name);
}

bool isNamed(const Shape& shape, Place place, std::string_view name) {
    return shape.facts().place == place && shape.facts().name == name;
}

}  // namespace

Shape::Shape(const Description& root) : Shape(root, nullptr, 0) {
    prepareQuestions();
}

Shape::Shape(const Description& facts, const Shape* parent, std::size_t index)
    : facts_(facts),
      parent_(parent),
      index_(index),
      key_(keyOf(facts)),
      step_(facts.xpathStep()) {
    for (const Description& child : facts.children) {
        children_.push_back(std::unique_ptr<Shape>(new Shape(child, this, children_.size())));
    }
}

/// Called when all shapes exist, since conditions refer to any of them.
void Shape::prepareQuestions() {
    writtenWhen_ = questionsOf(facts_.writtenWhen);
    readWhen_ = questionsOf(facts_.readWhen);
    if (facts_.flag) {
        flag_.push_back(questionOf(*facts_.flag));
    }
    for (const Description::QuantityWhen& other : facts_.otherQuantities) {
        otherQuantities_.push_back(questionOf(other.condition));
    }
    for (const auto& child : children_) {
        child->prepareQuestions();
    }
}

std::vector<Question> Shape::questionsOf(const std::vector<Condition>& conditions) const {
    std::vector<Question> questions;
    std::transform(conditions.begin(), conditions.end(), std::back_inserter(questions),
                   [this](const Condition& condition) { return questionOf(condition); });
    return questions;
}

Question Shape::questionOf(const Condition& condition) const {
    Question question;
    question.condition = &condition;
    std::transform(condition.subjects.begin(), condition.subjects.end(), std::back_inserter(question.subjects),
                   [this](const std::string& xpath) { return subjectOf(xpath); });
    question.alternatives = questionsOf(condition.alternatives);
    return question;
}

Question::Subject Shape::subjectOf(const std::string& xpath) const {
    Question::Subject subject;
    const Shape* shape = this;
    std::istringstream steps(xpath);
    for (std::string each; std::getline(steps, each, '/');) {
        if (each == "..") {
            ++subject.up;
            shape = shape->parent_;
        } else if (each != ".") {
            shape = shape->childOf(each);
            subject.down.push_back(shape);
        }
    }
    return subject;
}

const Shape* Shape::childOf(const std::string& xpathStep) const {
    for (const auto& child : children_) {
        if (child->step_ == xpathStep) {
            return child.get();
        }
    }
    throw std::logic_error(path() + " has no " + xpathStep);
}

const Shape* Shape::element(std::string_view name, std::string_view keyText) const {
    for (const auto& child : children_) {
        if (isNamed(*child, Place::element, name) && child->facts().keyText == keyText) {
            return child.get();
        }
    }
    return nullptr;
}

const Shape* Shape::firstElement(std::string_view name, const Shape* previous) const {
    const std::size_t begin = previous == nullptr ? 0 : previous->index_;
    for (std::size_t step = 0; step < children_.size(); ++step) {
        const Shape& child = *children_[(begin + step) % children_.size()];
        if (isNamed(child, Place::element, name)) {
            return &child;
        }
    }
    return nullptr;
}

const Shape* Shape::attribute(std::string_view name) const {
    for (const auto& child : children_) {
        if (isNamed(*child, Place::attribute, name)) {
            return child.get();
        }
    }
    return nullptr;
}

bool Shape::takesText() const {
    return facts_.content != Description::Content::none ||
           std::any_of(children_.begin(), children_.end(),
                       [](const auto& child) { return child->facts().place == Place::text; });
}

std::string Shape::path() const {
    return (parent_ == nullptr ? "" : parent_->path() + '/') + step_;
}

}  // namespace lv::analysis
