#include <tests/support/model/conditions.h>
#include <tests/support/model/filling.h>
#include <tests/support/model/reading.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>

namespace lv::test {
namespace {

using lv::Condition;
using Lengths = std::vector<std::size_t>;

class Filler : public MemberVisitor {
public:
    explicit Filler(const TraitsByPath& traits) : traits_(&traits) {}

private:
    void visit(const std::string& path, const Place& place) override {
        const std::string name = path.substr(path.rfind('.') + 1);  // the whole path where there is no point
        std::visit([&](auto* value) { give(*value, name, traitsOf(path)); }, place);
    }

    void visitMembers(const Member& member, const std::string& path) override {
        Filler filler(*traits_);
        (member.isRecord ? filler : *this).visitAll(member.members, path + '.');
    }

    /// Enough for each text that decides what is written of a row.
    void visitRows(const std::string& path, Rows& rows) override {
        std::size_t size = 2;
        for (const auto& [memberPath, traits] : *traits_) {
            const bool isOfRow = memberPath.rfind(path + '.', 0) == 0 && memberPath.rfind('.') == path.size();
            size = std::max(size, isOfRow ? traits.texts.size() : 0);
        }
        rows.resize(size);
    }

    [[nodiscard]] Traits traitsOf(const std::string& path) const {
        const auto found = traits_->find(path);
        return found == traits_->end() ? Traits() : found->second;
    }

    static void give(bool& value, const std::string& /*name*/, const Traits& /*traits*/) { value = true; }

    void give(unsigned int& value, const std::string& /*name*/, const Traits& /*traits*/) { value = ++number_; }

    void give(int& value, const std::string& /*name*/, const Traits& /*traits*/) { value = nextSigned(); }

    void give(double& value, const std::string& /*name*/, const Traits& /*traits*/) {
        value = static_cast<double>(++number_) / 100.0;
    }

    void give(std::string& value, const std::string& name, const Traits& /*traits*/) {
        value = name + ' ' + std::to_string(++number_);
    }

    template <class Number>
    void give(std::vector<Number>& values, const std::string& name, const Traits& traits) {
        const Lengths lengths = traits.lengths.empty() ? Lengths{2, 3} : traits.lengths;
        values.resize(lengths.at(arrays_[lengths]++ % lengths.size()));
        for (Number& value : values) {
            give(value, name, traits);
        }
    }

    /// Every other one is negative.
    int nextSigned() {
        const int number = static_cast<int>(++number_);
        return number % 2 == 0 ? -number : number;
    }

    const TraitsByPath* traits_;
    unsigned int number_ = 10;  // so that no digit alone tells two of them apart
    std::map<Lengths, std::size_t> arrays_{};
};

/// A member that conditions compare, with the nodes that have those conditions.
struct Steering {
    const Node* subject;
    std::vector<const Node*> governed;
    std::vector<std::string> texts;
};

class Steerer {
public:
    /// \param root  of a record
    explicit Steerer(Node& root) {
        for (const auto& child : root.children) {
            collectChild(*child);
        }
    }

    /// What decides over a whole row goes first. Otherwise what comes later in the document does, so that those before
    /// can tell what they open.
    void steer() {
        std::reverse(steerings_.begin(), steerings_.end());
        std::stable_partition(steerings_.begin(), steerings_.end(), [](const Steering& each) {
            return each.subject->parent->facts->repetition == lv::Description::Repetition::rows;
        });
        for (const Steering& steering : steerings_) {
            choose(steering);
        }
    }

private:
    void collect(Node& node) {
        if (node.rows != nullptr) {
            collectRows(node);
            return;
        }
        addCondition(node);
        for (const auto& child : node.children) {
            collectChild(*child);
        }
    }

    /// Nested records are steered by themselves.
    void collectChild(Node& child) {
        if (child.facts->record.empty()) {
            collect(child);
        } else {
            addCondition(child);
            Steerer(child).steer();
        }
    }

    void collectRows(Node& list) {
        for (std::size_t index = 0; index < list.rows->size(); ++index) {
            rowNodes_.push_back(boundRow(list, index));
            collect(*rowNodes_.back());
        }
    }

    void addCondition(const Node& node) {
        for (const Condition& condition : node.facts->writtenWhen) {
            if (condition.kind == Condition::Kind::oneOf) {
                add(condition, node);
            }
        }
    }

    void add(const Condition& condition, const Node& node) {
        Steering& steering = steeringOf(*subjectsOf(condition, node).front());
        steering.governed.push_back(&node);
        for (const std::string& text : condition.texts) {
            if (std::count(steering.texts.begin(), steering.texts.end(), text) == 0) {
                steering.texts.push_back(text);
            }
        }
    }

    Steering& steeringOf(const Node& subject) {
        const auto found = std::find_if(steerings_.begin(), steerings_.end(),
                                        [&subject](const Steering& each) { return each.subject == &subject; });
        return found != steerings_.end() ? *found : steerings_.emplace_back(Steering{&subject, {}, {}});
    }

    /// Takes the text that opens most which is written nowhere else; of equal ones that which is used least.
    void choose(const Steering& steering) {
        const auto best = std::max_element(steering.texts.begin(), steering.texts.end(),
                                           [&](const std::string& left, const std::string& right) {
                                               return worthOf(left, steering) < worthOf(right, steering);
                                           });
        assign(placeOf(*steering.subject), *best);
        ++uses_[*best];
        for (const Node* const node : steering.governed) {
            if (isOpen(*node)) {
                written_.insert(node->facts);
            }
        }
    }

    std::pair<std::ptrdiff_t, int> worthOf(const std::string& text, const Steering& steering) {
        assign(placeOf(*steering.subject), text);
        const auto opened = std::count_if(steering.governed.begin(), steering.governed.end(), [this](const Node* node) {
            return isOpen(*node) && written_.count(node->facts) == 0;
        });
        return {opened, -uses_[text]};
    }

    static bool isOpen(const Node& node) {
        const bool isOutermost = node.parent == nullptr || !node.parent->facts->record.empty();
        return allHold(node.facts->writtenWhen, node, true) && (isOutermost || isOpen(*node.parent));
    }

    std::vector<Steering> steerings_;
    std::vector<std::unique_ptr<Node>> rowNodes_;
    std::set<const lv::Description*> written_;
    std::map<std::string, int> uses_;
};

}  // namespace

void fill(const Members& members, const TraitsByPath& traits) {
    Filler(traits).visitAll(members);
}

void steer(Node& root) {
    Steerer(root).steer();
}

}  // namespace lv::test
