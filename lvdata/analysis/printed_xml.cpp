#include <lvdata/analysis/printed_xml.h>

#include <array>
#include <cstddef>

namespace lv::analysis {
namespace {

struct Entity {
    std::string_view name;
    char character;
};

constexpr std::array<Entity, 5> entities = {
    {{"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}, {"&apos;", '\''}}};

/// Appends the character that the entity at the beginning stands for, and returns the length of the entity.
std::size_t unescapeOne(std::string_view text, std::string& out) {
    for (const Entity& entity : entities) {
        if (text.substr(0, entity.name.size()) == entity.name) {
            out += entity.character;
            return entity.name.size();
        }
    }
    out += text.front();
    return 1;
}

std::string unescaped(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::size_t plain = text.find('&');
        out += text.substr(0, plain);
        text.remove_prefix(plain == std::string_view::npos ? text.size() : plain);
        text.remove_prefix(text.empty() ? 0 : unescapeOne(text, out));
    }
    return out;
}

/// Reads along a text that a record printed.
class PrintedXML {
public:
    PrintedXML(TreeBuilder& builder, std::string_view text, std::deque<std::string>& unescaped)
        : builder_(builder),
          rest_(text),
          unescaped_(unescaped) {}

    void addAll() {
        while (!rest_.empty()) {
            if (rest_.front() != '<') {
                addText();
            } else if (rest_[1] == '/') {
                take(rest_.find('>') + 1);
                builder_.close();
            } else {
                addElement();
            }
        }
    }

private:
    std::string_view take(std::size_t length) {
        const std::string_view taken = rest_.substr(0, length);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    std::string_view resolved(std::string_view text) {
        return text.find('&') == std::string_view::npos ? text : unescaped_.emplace_back(unescaped(text));
    }

    void addText() {
        Node text;
        text.kind = Node::Kind::text;
        text.text = resolved(take(rest_.find('<')));
        builder_.add(text);
    }

    void addElement() {
        take(1);
        Node element;
        element.kind = Node::Kind::element;
        element.name = take(rest_.find_first_of(" />"));
        builder_.open(element);
        while (rest_.front() == ' ') {
            addAttribute();
        }
        if (take(1) == "/") {
            take(1);
            builder_.close();
        }
    }

    void addAttribute() {
        take(1);
        Node attribute;
        attribute.kind = Node::Kind::attribute;
        attribute.name = take(rest_.find('='));
        take(2);
        attribute.text = resolved(take(rest_.find('"')));
        take(1);
        builder_.add(attribute);
    }

    TreeBuilder& builder_;
    std::string_view rest_;
    std::deque<std::string>& unescaped_;
};

}  // namespace

void addPrinted(TreeBuilder& builder, std::string_view text, std::deque<std::string>& unescaped) {
    PrintedXML(builder, text, unescaped).addAll();
}

}  // namespace lv::analysis
