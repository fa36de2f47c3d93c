#include <lvdata/analysis/schemas/Constraint.h>
#include <lvdata/analysis/schemas/TypeList.h>
#include <lvdata/analysis/schemas/xsd.h>
#include <lvdata/analysis/schemas/xsd_values.h>

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace lv::analysis {
namespace {

using Content = Description::Content;
using Place = Description::Place;
using Repetition = Description::Repetition;

std::string attributeText(std::string_view name, const std::string& value) {
    return ' ' + std::string(name) + "=\"" + escapedXML(value) + '"';
}

std::string annotation(const std::string& indentation, const std::string& words) {
    return indentation + "<xs:annotation><xs:documentation>" + escapedXML(words) +
           "</xs:documentation></xs:annotation>\n";
}

/// A tag with its content; an empty-element tag when there is none.
std::string tag(const std::string& indentation, const std::string& nameAndAttributes, const std::string& inner) {
    const std::string begin = indentation + "<xs:" + nameAndAttributes;
    const std::string name = nameAndAttributes.substr(0, nameAndAttributes.find(' '));
    return inner.empty() ? begin + "/>\n" : begin + ">\n" + inner + indentation + "</xs:" + name + ">\n";
}

std::string annotationOf(const std::string& indentation, const std::string& words) {
    return words.empty() ? "" : annotation(indentation + "  ", words);
}

/// Of texts and keyed elements, whose conditions stand where the element is declared.
std::string wordsOfTexts(const Shape& element) {
    std::string words;
    for (const Shape* const text : textsOf(element)) {
        words += (words.empty() ? "" : " Or: ") + explanationOf(text->facts(), Scale::stored);
    }
    return words;
}

std::string wordsOf(const Shape& element) {
    const std::string words = explanationOf(element.facts(), Scale::stored);
    const std::string texts = wordsOfTexts(element);
    return words + (words.empty() || texts.empty() ? "" : " ") + texts;
}

std::string wordsOfKeyed(const Shape& first) {
    std::string words = wordsOfTexts(first);
    for (const Shape* const each : keyedLike(first)) {
        const std::string conditions = explanationOf(each->facts(), Scale::stored);
        words += conditions.empty() ? "" : " \"" + each->facts().keyText + "\": " + conditions;
    }
    return words;
}

std::string occurrenceOf(const Shape& element) {
    if (element.facts().repetition == Repetition::rows) {
        return R"( minOccurs="0" maxOccurs="unbounded")";
    }
    return constraintOf(element.facts()).isRequired ? "" : R"( minOccurs="0")";
}

std::string keyedOccurrence(const Shape& first) {
    const std::vector<const Shape*> all = keyedLike(first);
    const auto required = std::count_if(all.begin(), all.end(),
                                        [](const Shape* const each) { return constraintOf(each->facts()).isRequired; });
    return attributeText("minOccurs", std::to_string(required)) +
           attributeText("maxOccurs", std::to_string(all.size()));
}

std::string tags(const std::string& kind, const TypeList& list) {
    std::string all;
    for (const auto& [name, body] : list.types()) {
        all += tag("  ", kind + attributeText("name", name), body);
    }
    return all;
}

std::string wordsOfSchema(const Description& root) {
    return "Documents of the record " + root.name + ", version " + std::to_string(root.version) + '.' +
           std::to_string(root.minorVersion) +
           ", as the record prints them. Conditions are in words. The paths in them are XPath, from the place that "
           "has the condition.";
}

/// Makes the types and declarations of one schema.
class Schema {
public:
    explicit Schema(const Shape& root)
        : root_(annotation("  ", wordsOfSchema(root.facts())) + declaration("  ", root, "", "")) {}

    [[nodiscard]] std::string text() const {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" +
               tag("", R"(schema xmlns:xs="http://www.w3.org/2001/XMLSchema")",
                   root_ + tags("complexType", complex_) + tags("simpleType", simple_));
    }

private:
    std::string declaration(const std::string& indentation, const Shape& element, const std::string& occurrence,
                            const std::string& words) {
        const std::string unique = uniqueKeys(indentation + "  ", element);
        return tag(indentation,
                   "element" + attributeText("name", element.facts().name) + attributeText("type", typeOf(element)) +
                       occurrence,
                   annotationOf(indentation, words) + unique);
    }

    std::string typeOf(const Shape& element) {
        if (element.children().empty() && element.facts().content != Content::none) {
            return simpleTypeOf(element, simple_);
        }
        const std::string name = typeNameOf(element);
        const bool isRecord = &recordOf(element) == &element;
        return isRecord && complex_.has(name) ? name
                                              : complex_.add(recordOf(element).facts().name, name, bodyOf(element));
    }

    std::string bodyOf(const Shape& element) {
        const std::string attributes = attributesOf(textsOf(element).empty() ? "    " : "        ", element);
        if (textsOf(element).empty()) {
            const std::string elements = elementsOf(element);
            return (elements.empty() ? "" : tag("    ", "sequence", elements)) + attributes;
        }
        const std::string base = textTypeOf(element, simple_);
        return tag("    ", "simpleContent", tag("      ", "extension" + attributeText("base", base), attributes));
    }

    std::string elementsOf(const Shape& parent) {
        std::string elements;
        for (const auto& child : parent.children()) {
            if (isFirstOfKeyed(*child)) {
                elements += declaration("      ", *child, keyedOccurrence(*child), wordsOfKeyed(*child));
            } else if (child->facts().place == Place::element && child->facts().keyAttribute.empty()) {
                elements += declaration("      ", *child, occurrenceOf(*child), wordsOf(*child));
            }
        }
        return elements;
    }

    std::string attributesOf(const std::string& indentation, const Shape& element) {
        std::string attributes;
        for (const auto& child : element.children()) {
            if (child->facts().place == Place::attribute) {
                attributes += attribute(indentation, *child);
            }
        }
        return attributes;
    }

    std::string attribute(const std::string& indentation, const Shape& shape) {
        return tag(indentation,
                   "attribute" + attributeText("name", shape.facts().name) +
                       attributeText("type", attributeType(shape)) +
                       (constraintOf(shape.facts()).isRequired ? R"( use="required")" : ""),
                   annotationOf(indentation, explanationOf(shape.facts(), Scale::stored)));
    }

    /// Keyed elements share a declaration, so that the key is one of theirs.
    std::string attributeType(const Shape& shape) {
        const Shape& element = *shape.parent();
        if (element.facts().keyAttribute != shape.facts().name) {
            return simpleTypeOf(shape, simple_);
        }
        std::vector<std::string> keys;
        for (const Shape* const each : keyedLike(element)) {
            keys.push_back(each->facts().keyText);
        }
        return enumerationOf(keys, typeNameOf(shape), simple_);
    }

    /// Each key occurs only once among the children of an element.
    static std::string uniqueKeys(const std::string& indentation, const Shape& element) {
        std::string unique;
        for (const auto& child : element.children()) {
            if (isFirstOfKeyed(*child)) {
                const Description& facts = child->facts();
                const std::string inner =
                    tag(indentation + "  ", "selector" + attributeText("xpath", facts.name), "") +
                    tag(indentation + "  ", "field" + attributeText("xpath", '@' + facts.keyAttribute), "");
                unique += tag(indentation, "unique" + attributeText("name", typeNameOf(*child) + ".key"), inner);
            }
        }
        return unique;
    }

    TypeList simple_{};
    TypeList complex_{};
    std::string root_;
};

}  // namespace

std::string xsd(const Shape& root) {
    return Schema(root).text();
}

}  // namespace lv::analysis
