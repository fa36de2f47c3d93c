#include <tests/analysis/any_record.h>
#include <tests/support/golden.h>

#include <lvdata/analysis/Projection.h>

#include <set>

// The keys of JSON are part of the format: they are listed, and none stands for two things.

namespace lv::test {
namespace {

using analysis::Shape;
using Place = Description::Place;
using Repetition = Description::Repetition;

bool isKeyed(const Shape& shape) {
    return shape.facts().repetition == Repetition::byKey;
}

/// The keys of the object that an element becomes, each as often as something has it. Texts of which an element has one
/// at a time share theirs, and so do keyed elements, whose own keys are in an object of their own.
std::multiset<std::string> keysOf(const Shape& shape) {
    std::multiset<std::string> keys;
    std::set<std::string> shared;
    for (const auto& child : shape.children()) {
        if (isKeyed(*child)) {
            shared.insert(child->key());
            keys.insert(child->key() + '.' + keyAmongKeyed(*child));
        } else if (child->facts().place == Place::text) {
            shared.insert(child->key());
        } else {
            keys.insert(child->key());
        }
    }
    keys.insert(shared.begin(), shared.end());
    return keys;
}

void expectDistinctKeys(const Shape& shape) {
    const std::multiset<std::string> keys = keysOf(shape);
    for (const std::string& key : keys) {
        EXPECT_EQ(keys.count(key), 1U) << shape.path() << ": " << key;
    }
    for (const auto& child : shape.children()) {
        expectDistinctKeys(*child);
    }
}

void list(const Shape& shape, const std::string& path, std::string& lines) {
    for (const auto& child : shape.children()) {
        const std::string name = isKeyed(*child) ? child->key() + '.' + keyAmongKeyed(*child) : child->key();
        const std::string line = path + '.' + name + (child->facts().repetition == Repetition::rows ? "[]" : "");
        lines += isPlain(shape) || lines.find('\n' + line + '\n') != std::string::npos ? "" : line + '\n';
        if (child->facts().record.empty()) {  // a nested record is listed by itself
            list(*child, line, lines);
        }
    }
}

std::string allKeys() {
    std::string lines;
    for (const auto& entry : catalogue().entries()) {
        lines += entry.shape->key() + '\n';
        list(*entry.shape, entry.shape->key(), lines);
    }
    return lines;
}

void expectKeyedArePlain(const Shape& shape) {
    EXPECT_TRUE(!isKeyed(shape) || isPlain(shape)) << shape.path();
    for (const auto& child : shape.children()) {
        expectKeyedArePlain(*child);
    }
}

}  // namespace

TEST(JSONKeys, AreDistinctInEachObject) {
    for (const auto& entry : catalogue().entries()) {
        expectDistinctKeys(*entry.shape);
    }
}

TEST(JSONKeys, AreThoseThatAreListed) {
    EXPECT_EQ(allKeys(), contentOf(LVDATA_KEYS_FILE)) << "keys may be added; those that are there must stay";
}

TEST(JSONKeys, OfKeyedElementsHavePlainValues) {
    for (const auto& entry : catalogue().entries()) {
        expectKeyedArePlain(*entry.shape);
    }
}

}  // namespace lv::test
