#include <lvdata/analysis/Projection.h>
#include <lvdata/analysis/schemas/Constraint.h>
#include <lvdata/analysis/schemas/TypeList.h>
#include <lvdata/analysis/schemas/json_schema.h>
#include <lvdata/analysis/schemas/json_schema_values.h>

#include <algorithm>

namespace lv::analysis {
namespace {

using Place = Description::Place;
using Repetition = Description::Repetition;

/// The possible members of an object.
struct Property {
    std::string key;
    bool isRequired;
    std::string schema;
};

bool isKeyOf(const Shape& attribute) {
    return attribute.facts().name == attribute.parent()->facts().keyAttribute;
}

bool isRequired(const Shape& shape) {
    return constraintOf(shape.facts()).isRequired;
}

bool areRequired(const std::vector<const Shape*>& texts) {
    return std::all_of(texts.begin(), texts.end(), [](const Shape* const text) { return isRequired(*text); });
}

std::string described(const std::string& words, const std::string& schema) {
    return '{' + (words.empty() ? "" : "\"description\": " + quotedJSON(words) + ", ") + schema + '}';
}

std::string wordsOf(const Shape& shape) {
    return explanationOf(shape.facts(), Scale::natural);
}

/// The value of an element's text, whichever of them there is.
std::string textSchema(const std::vector<const Shape*>& texts) {
    std::string alternatives;
    for (const Shape* const text : texts) {
        alternatives += (alternatives.empty() ? "" : ", ") + described(wordsOf(*text), valueSchema(text->facts()));
    }
    return texts.size() == 1 ? alternatives : R"({"anyOf": [)" + alternatives + "]}";
}

std::string bodyOf(const std::vector<Property>& properties) {
    std::vector<std::string> required;
    std::string lines;
    for (const Property& property : properties) {
        if (property.isRequired) {
            required.push_back(property.key);
        }
        lines += lines.empty() ? "" : ",\n";
        lines += "        " + quotedJSON(property.key) + ": " + property.schema;
    }
    return "      \"type\": \"object\",\n"
           "      \"additionalProperties\": false,\n" +
           (required.empty() ? "" : "      \"required\": " + quotedJSON(required) + ",\n") +
           "      \"properties\": {\n" + lines + "\n      }\n";
}

/// Makes the types of one schema.
class Definitions {
public:
    /// The reference to the type of the element.
    std::string reference(const Shape& element) {
        return R"("$ref": ")"
               "#/$defs/" +
               nameOf(element) + '"';
    }

    [[nodiscard]] std::string text() const {
        std::string all;
        for (const auto& [name, body] : types_.types()) {
            all += all.empty() ? "" : ",\n";
            all += "    " + quotedJSON(name) + ": {\n" + body + "    }";
        }
        return all;
    }

private:
    std::string nameOf(const Shape& element) {
        const std::string name = typeNameOf(element);
        const bool isRecord = &recordOf(element) == &element;
        return isRecord && types_.has(name)
                   ? name
                   : types_.add(recordOf(element).facts().name, name, bodyOf(propertiesOf(element)));
    }

    std::vector<Property> propertiesOf(const Shape& element) {
        std::vector<Property> properties;
        for (const auto& child : element.children()) {
            if (isFirstOfKeyed(*child)) {
                properties.push_back(keyed(*child));
            } else if (child->facts().place != Place::text && child->facts().keyAttribute.empty() && !isKeyOf(*child)) {
                properties.push_back(property(child->key(), *child));
            }
        }
        if (const auto texts = textsOf(element); !texts.empty()) {
            properties.push_back({"value", areRequired(texts), textSchema(texts)});
        }
        return properties;
    }

    Property property(const std::string& key, const Shape& shape) {
        if (!isPlain(shape)) {
            return {key, isRequired(shape), object(shape)};
        }
        if (const auto texts = textsOf(shape); !texts.empty()) {
            return {key, isRequired(shape) && areRequired(texts), textSchema(texts)};
        }
        return {key, isRequired(shape), described(wordsOf(shape), valueSchema(shape.facts()))};
    }

    std::string object(const Shape& element) {
        const std::string type = reference(element);
        const bool areRows = element.facts().repetition == Repetition::rows;
        return described(wordsOf(element), areRows ? R"("type": "array", "items": {)" + type + '}' : type);
    }

    /// One object by key for all elements of the name.
    Property keyed(const Shape& first) {
        std::vector<Property> properties;
        for (const Shape* const each : keyedLike(first)) {
            properties.push_back(property(keyAmongKeyed(*each), *each));
        }
        const std::string name = types_.add(recordOf(first).facts().name, typeNameOf(first), bodyOf(properties));
        const bool isNeeded = std::any_of(properties.begin(), properties.end(),
                                          [](const Property& property) { return property.isRequired; });
        return {first.key(), isNeeded, R"({"$ref": "#/$defs/)" + name + "\"}"};
    }

    TypeList types_{};
};

std::string wordsOfSchema(const Description& root, const std::string& version) {
    return "The JSON form of documents of the record " + root.name + ", version " + version +
           ", as the record prints them. Conditions are in words. The paths in them are XPath of the XML form, from "
           "the place that has the condition.";
}

}  // namespace

std::string jsonSchema(const Shape& root) {
    const Description& facts = root.facts();
    const std::string version = std::to_string(facts.version) + '.' + std::to_string(facts.minorVersion);
    Definitions definitions;
    const std::string reference = definitions.reference(root);
    return "{\n"
           "  \"$schema\": \"https://json-schema.org/draft/2020-12/schema\",\n"
           "  \"$id\": " +
           quotedJSON("urn:lvdata:schema:" + facts.name + ':' + version) +
           ",\n"
           "  \"title\": " +
           quotedJSON(facts.name) +
           ",\n"
           "  \"description\": " +
           quotedJSON(wordsOfSchema(facts, version)) +
           ",\n"
           "  \"type\": \"object\",\n"
           "  \"additionalProperties\": false,\n"
           "  \"required\": " +
           quotedJSON(std::vector<std::string>{root.key()}) +
           ",\n"
           "  \"properties\": {" +
           quotedJSON(root.key()) + ": {" + reference +
           "}},\n"
           "  \"$defs\": {\n" +
           definitions.text() +
           "\n  }\n"
           "}\n";
}

}  // namespace lv::analysis
