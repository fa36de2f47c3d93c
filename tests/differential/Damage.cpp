#include <tests/differential/Damage.h>
#include <tests/differential/odd_texts.h>

#include <algorithm>

namespace differential {

const std::vector<Damage::Change> Damage::changes = {
    &Damage::removeElement,  &Damage::repeatElement, &Damage::moveElement,   &Damage::renameElement,
    &Damage::replacePiece,   &Damage::replacePiece,  &Damage::replaceText,   &Damage::lengthenText,
    &Damage::insertIntoText, &Damage::insertIntoTag, &Damage::insertInFront, &Damage::insertByte,
    &Damage::changeByte,     &Damage::truncate,      &Damage::blankText,     &Damage::closeEarly};

std::string Damage::damaged(std::string document) {
    for (std::size_t left = 1 + below(4); left > 0 && !startTagsOf(document).empty(); --left) {
        (this->*anyOf(changes))(document);
    }
    return document;
}

void Damage::removeElement(std::string& document) {
    const Span element = anyElement(document);
    const bool whole = element.begin == 0;  // rather a document without its declaration than none
    document.erase(element.begin, whole ? 0 : element.size);
}

void Damage::repeatElement(std::string& document) {
    const Span element = anyElement(document);
    document.insert(element.begin + element.size, document.substr(element.begin, element.size));
}

void Damage::moveElement(std::string& document) {
    const Span element = anyElement(document);
    const std::string text = document.substr(element.begin, element.size);
    document.erase(element.begin, element.size);
    document.insert(anyStartTag(document).begin, text);
}

void Damage::renameElement(std::string& document) {
    const Span donor = nameIn(document, anyStartTag(document));
    const std::string name = document.substr(donor.begin, donor.size) + (below(3) == 0 ? "x" : "");
    const Span element = anyElement(document);
    const Span old = nameIn(document, element);
    const std::size_t end = element.begin + element.size;
    if (document[end - 2] != '/' && element.size > 2 * old.size) {
        document.replace(end - 1 - old.size, old.size, name);
    }
    document.replace(old.begin, old.size, name);
}

void Damage::replacePiece(std::string& document) {
    const Span text = anyText(document);
    const std::size_t at = text.begin + below(text.size + 1);
    const std::size_t before = document.find_last_of("|>", at == 0 ? 0 : at - 1);
    const std::size_t begin = before == std::string::npos ? text.begin : before + 1;
    const std::size_t end = std::min(document.find_first_of("|<", at), document.size());
    document.replace(begin, end - begin, anyNumber());
}

void Damage::replaceText(std::string& document) {
    const Span text = anyText(document);
    std::string numbers = anyNumber();
    for (std::size_t left = below(below(8) == 0 ? 300 : 12); left > 0; --left) {
        numbers += '|' + anyNumber();
    }
    document.replace(text.begin, text.size, numbers);
}

void Damage::lengthenText(std::string& document) {
    const Span text = anyText(document);
    const std::string once = document.substr(text.begin, text.size) + anyOf(below(2) == 0 ? entities() : oddInTexts());
    for (std::size_t length = 0; length < 80; length += once.size()) {
        document.insert(text.begin, once);
    }
}

void Damage::blankText(std::string& document) {
    const Span text = anyText(document);
    document.replace(text.begin, below(2) == 0 ? text.size : 0, anyOf(blanks()));
}

/// Makes an element the root's last child, with its end already in its start tag and its text after that.
void Damage::closeEarly(std::string& document) {
    const Span tag = anyStartTag(document);
    const Span text{tag.begin + tag.size, document.find('<', tag.begin + tag.size) - tag.begin - tag.size};
    std::string closed = document.substr(tag.begin, tag.size + text.size);
    closed.insert(tag.size - 1, below(2) == 0 ? "/" : " /");
    const Span element = elementOf(document, tag);
    document.erase(element.begin, element.size);
    document.insert(std::min(document.rfind("</"), document.size()), closed);
}

void Damage::insertIntoText(std::string& document) {
    const Span text = anyText(document);
    const std::size_t offset = below(3) == 0 ? 0 : below(text.size + 1);
    document.insert(text.begin + offset, anyOf(oddInTexts()));
}

void Damage::insertIntoTag(std::string& document) {
    const Span tag = anyStartTag(document);
    const Span name = nameIn(document, tag);
    const bool afterName = below(2) == 0;
    document.insert(afterName ? name.begin + name.size : tag.begin + tag.size - 1, anyOf(oddInTags()));
}

void Damage::insertInFront(std::string& document) {
    document.insert(0, anyOf(oddInFront()));
}

void Damage::insertByte(std::string& document) {
    document.insert(below(document.size() + 1), 1, static_cast<char>(random_() & 0xFFU));
}

void Damage::changeByte(std::string& document) {
    char& byte = document[below(document.size())];
    byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << below(8)));
}

void Damage::truncate(std::string& document) {
    const std::size_t removed = below(3) == 0 ? below(document.size()) : below(12);
    document.resize(document.size() - std::min(removed, document.size() - 1));
}

Span Damage::anyText(const std::string& document) {
    std::vector<Span> texts = textsOf(document);
    const auto firstEmpty =
        std::stable_partition(texts.begin(), texts.end(), [](const Span& text) { return text.size != 0; });
    if (firstEmpty != texts.begin() && below(4) != 0) {
        texts.erase(firstEmpty, texts.end());
    }
    return texts.empty() ? Span{0, 0} : anyOf(texts);
}

Span Damage::anyStartTag(const std::string& document) {
    const std::vector<Span> tags = startTagsOf(document);
    return tags.empty() ? Span{0, 0} : anyOf(tags);
}

std::string Damage::anyNumber() {
    if (below(2) == 0) {
        return anyOf(oddNumbers());
    }
    const std::string characters = "0123456789012345678901234567890123456789-+ x";
    std::string number(below(11), '0');
    std::generate(number.begin(), number.end(), [&] { return characters[below(characters.size())]; });
    return number;
}

}  // namespace differential
