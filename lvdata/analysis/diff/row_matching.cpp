#include <lvdata/analysis/diff/row_matching.h>

#include <lvdata/core/quantities.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace lv::analysis {
namespace {

using Rows = std::vector<const Node*>;

/// The text of the row's child element; no value when there is none.
std::optional<std::string_view> childText(const Node& row, const Shape& child) {
    for (const Node& each : childrenOf(row)) {
        if (each.kind == Node::Kind::element && each.name == child.facts().name) {
            const Node* const text = textOf(each);
            return text == nullptr ? std::string_view() : text->text;
        }
    }
    return std::nullopt;
}

/// Whether each row has a unique text there.
bool areTold(const Rows& rows, const Shape& child) {
    std::unordered_set<std::string_view> seen;
    return std::all_of(rows.begin(), rows.end(), [&](const Node* row) {
        const auto text = childText(*row, child);
        return text && seen.insert(*text).second;
    });
}

bool isIndex(const Shape& shape) {
    return shape.facts().name == "Index" && shape.facts().content == Description::Content::unsignedNumber;
}

bool isShownColour(const Shape& shape) {
    const auto& quantity = shape.facts().quantity;
    return quantity && (*quantity == quantities::codeValue || *quantity == quantities::inkAmount);
}

/// The child whose text identifies the rows; null when they are matched by position.
const Shape* keyOf(const Shape& row, const Rows& before, const Rows& after) {
    for (const auto& child : row.children()) {
        const bool tells =
            isIndex(*child) || (isShownColour(*child) && areTold(before, *child) && areTold(after, *child));
        if (tells) {
            return child.get();
        }
    }
    return nullptr;
}

/// The step of a row, of which `earlier` others of the list have the same key.
std::string keyedStep(const Shape& row, const Shape& key, std::optional<std::string_view> text, std::size_t earlier) {
    const std::string& name = key.facts().name;
    std::string step = row.facts().name;
    if (!text) {
        return step + "[not(" + name + ")][" + std::to_string(earlier + 1) + ']';
    }
    step += '[' + name + '=' + (isIndex(key) ? std::string(*text) : '\'' + std::string(*text) + '\'') + ']';
    return step + (earlier == 0 ? "" : '[' + std::to_string(earlier + 1) + ']');
}

RowPairs matchByPlace(const Shape& row, const Rows& before, const Rows& after) {
    RowPairs pairs;
    for (std::size_t place = 0; place < std::max(before.size(), after.size()); ++place) {
        pairs.rows.push_back({place < before.size() ? before[place] : nullptr,
                              place < after.size() ? after[place] : nullptr,
                              row.facts().name + '[' + std::to_string(place + 1) + ']'});
    }
    return pairs;
}

/// Matches the rows of two lists by a text in them.
class KeyedMatching {
public:
    KeyedMatching(const Shape& row, const Shape& key) : row_(row), key_(key) {}

    RowPairs match(const Rows& before, const Rows& after) {
        addAfter(after);
        for (const Node* const each : before) {
            take(*each);
        }
        addRest(after);
        return std::move(pairs_);
    }

private:
    /// The rows of the second list that have one key.
    struct Group {
        std::vector<std::size_t> places{};
        std::size_t taken = 0;  // by rows of the first list; more than there are, when that has more
    };

    using Key = std::optional<std::string_view>;

    void addAfter(const Rows& after) {
        for (std::size_t place = 0; place < after.size(); ++place) {
            groups_[childText(*after[place], key_)].places.push_back(place);
        }
        after_ = &after;
        isTaken_.resize(after.size());
    }

    void take(const Node& before) {
        const Key text = childText(before, key_);
        Group& group = groups_[text];
        const std::string step = keyedStep(row_, key_, text, group.taken);
        const Node* partner = nullptr;
        if (group.taken < group.places.size()) {
            const std::size_t place = group.places[group.taken];
            partner = (*after_)[place];
            isTaken_[place] = true;
            pairs_.isReordered = pairs_.isReordered || place < nextPlace_;
            nextPlace_ = place + 1;
        }
        ++group.taken;
        pairs_.rows.push_back({&before, partner, step});
    }

    void addRest(const Rows& after) {
        for (std::size_t place = 0; place < after.size(); ++place) {
            if (!isTaken_[place]) {
                const Key text = childText(*after[place], key_);
                const std::string step = keyedStep(row_, key_, text, groups_[text].taken++);
                pairs_.rows.push_back({nullptr, after[place], step});
            }
        }
    }

    const Shape& row_;
    const Shape& key_;
    const Rows* after_ = nullptr;
    std::unordered_map<Key, Group> groups_{};
    std::vector<bool> isTaken_{};
    std::size_t nextPlace_ = 0;
    RowPairs pairs_{};
};

}  // namespace

RowPairs matchRows(const Shape& row, const Rows& before, const Rows& after) {
    const Shape* const key = keyOf(row, before, after);
    return key == nullptr ? matchByPlace(row, before, after) : KeyedMatching(row, *key).match(before, after);
}

}  // namespace lv::analysis
