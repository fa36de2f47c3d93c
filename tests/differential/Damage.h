#pragma once

#include <tests/differential/markup.h>

#include <random>
#include <string>
#include <vector>

namespace differential {

/// Damages documents, in the same ways in every run and on every machine.
class Damage {
public:
    explicit Damage(unsigned int seed) : random_(seed) {}

    /// The document with a few random changes; many of them leave it well-formed.
    [[nodiscard]] std::string damaged(std::string document);

private:
    using Change = void (Damage::*)(std::string& document);
    static const std::vector<Change> changes;

    void removeElement(std::string& document);
    void repeatElement(std::string& document);
    void moveElement(std::string& document);
    void renameElement(std::string& document);
    void replacePiece(std::string& document);
    void replaceText(std::string& document);
    void lengthenText(std::string& document);
    void blankText(std::string& document);
    void closeEarly(std::string& document);
    void insertIntoText(std::string& document);
    void insertIntoTag(std::string& document);
    void insertInFront(std::string& document);
    void insertByte(std::string& document);
    void changeByte(std::string& document);
    void truncate(std::string& document);

    /// A number below `count`, which is more than 0. No distribution: those differ between standard libraries.
    std::size_t below(std::size_t count) { return random_() % count; }

    template <class T>
    const T& anyOf(const std::vector<T>& values) {
        return values[below(values.size())];
    }

    Span anyText(const std::string& document);
    Span anyStartTag(const std::string& document);
    Span anyElement(const std::string& document) { return elementOf(document, anyStartTag(document)); }
    std::string anyNumber();

    std::mt19937 random_;
};

}  // namespace differential
