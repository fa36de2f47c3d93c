#include <fuzz/support/harness.h>
#include <tests/support/stream.h>

#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/XMLElement.h>
#include <lvdata/xml/lexical_cast.h>
#include <lvdata/xml/split_string.h>

#include <string>
#include <vector>

// Numbers and arrays in any text, against a stream in the classic locale and a splitter that goes by characters. Of the
// input, the first character is the length of the separator, which follows; the rest is the text.

namespace lv::fuzz {
namespace {

using test::extracted;
using test::inserted;

struct TextInput {
    std::string separator;
    std::string text;
};

/// The input must not be empty.
TextInput textInput(const std::string& input) {
    const std::size_t length = static_cast<unsigned char>(input.front()) % 4U;
    const std::string rest = input.substr(1);
    return length > rest.size() ? TextInput{rest, ""} : TextInput{rest.substr(0, length), rest.substr(length)};
}

template <class Number>
void checkNumber(const std::string& text) {
    const auto number = lexical_cast<Number>(text);
    checkEqual(inserted(number), inserted(extracted<Number>(text)), "a number is read as a stream reads it");
    checkEqual(lexical_cast<std::string>(number), inserted(number), "a number is written as a stream writes it");
    check(lexical_cast<Number>(inserted(number)) == number, "a number is read back");
}

/// A piece ends at every occurrence of the separator, also where two of them overlap; the next begins one character on.
std::vector<std::string> pieces(const TextInput& input) {
    std::vector<std::string> found(1);
    for (std::size_t index = 0; index < input.text.size(); ++index) {
        const std::size_t length = input.separator.size();
        if (length > 0 && input.text.compare(index, length, input.separator) == 0) {
            found.emplace_back();
        } else {
            found.back() += input.text[index];
        }
    }
    return found;
}

template <class Number>
std::vector<Number> numbersIn(const TextInput& input) {
    std::vector<Number> numbers;
    for (const std::string& piece : pieces(input)) {
        if (!piece.empty()) {
            numbers.push_back(extracted<Number>(piece));
        }
    }
    return numbers;
}

template <class Number, class Read>
void checkArray(const TextInput& input, Read read) {
    const std::vector<Number> untouched = {7, 8, 9};
    std::vector<Number> numbers = untouched;
    check(read(numbers).isValid() == !input.text.empty(), "an array is found when there is a text");
    check(numbers == (input.text.empty() ? untouched : numbersIn<Number>(input)),
          "every piece that is not empty becomes a number");
}

void checkArrays(const TextInput& input) {
    const std::size_t end = input.text.find('\0');  // where an element's text ends
    const TextInput held{input.separator, input.text.substr(0, end)};
    const TextInput atBars{"|", held.text};
    const XMLDocument document;
    const XMLElement root = document.appendChild("Root");
    const XMLElement child = root.appendChildString("Array", input.text);
    const std::string& separator = input.separator;
    checkArray<int>(held, [&](auto& out) { return child.getIntArray(out, separator); });
    checkArray<unsigned int>(held, [&](auto& out) { return child.getUIntArray(out, separator); });
    checkArray<int>(atBars, [&](auto& out) { return root.getIntArray("Array", out, separator); });
    checkArray<unsigned int>(atBars, [&](auto& out) { return root.getUIntArray("Array", out, separator); });
}

void checkText(const TextInput& input) {
    checkNumber<int>(input.text);
    checkNumber<unsigned int>(input.text);
    check(split_string(input.text, input.separator) == pieces(input), "a text is split at every separator");
    checkArrays(input);
}

}  // namespace
}  // namespace lv::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) {
        lv::fuzz::checkText(lv::fuzz::textInput(lv::fuzz::textOf(data, size)));
    }
    return 0;
}
