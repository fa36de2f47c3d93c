#include <tests/support/model/traits.h>

#include <algorithm>

namespace lv::test {
namespace {

using lv::Condition;

template <class T>
void addTo(std::vector<T>& all, const std::vector<T>& more) {
    for (const T& each : more) {
        if (std::count(all.begin(), all.end(), each) == 0) {
            all.push_back(each);
        }
    }
}

class Collector {
public:
    void collect(const Node& node) {
        if (node.rows != nullptr) {
            node.rows->resize(1);
            collect(*boundRow(node, 0));
            return;
        }
        addOwn(node);
        for (const auto& child : node.children) {
            collect(*child);
        }
    }

    [[nodiscard]] const TraitsByPath& traits() const { return traits_; }

private:
    void addOwn(const Node& node) {
        if (!node.facts->lengths.empty()) {
            addTo(traits_[node.path].lengths, node.facts->lengths);
        }
        addAll(node.facts->writtenWhen, node);
        addAll(node.facts->readWhen, node);
        if (node.facts->flag) {
            add(*node.facts->flag, node);
        }
    }

    void addAll(const std::vector<Condition>& conditions, const Node& node) {
        for (const Condition& condition : conditions) {
            add(condition, node);
        }
    }

    void add(const Condition& condition, const Node& node) {
        addAll(condition.alternatives, node);
        for (const Node* const subject : subjectsOf(condition, node)) {
            Traits& traits = traits_[subject->path];
            addTo(traits.texts, condition.texts);
            if (condition.kind == Condition::Kind::haveEntries) {
                addTo(traits.lengths, {condition.entries});
            }
        }
    }

    TraitsByPath traits_;
};

}  // namespace

TraitsByPath traitsOf(const Node& root) {
    Collector collector;
    collector.collect(root);
    return collector.traits();
}

}  // namespace lv::test
