#pragma once

#include <lvdata/records/EveryRecord.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace lv::fuzz {

/// An input for a record: its first character picks the record, what follows is text. "A" is the first of
/// `EveryRecord`, "B" the second, and so on; every other character stands for one of them, too. The small letters are
/// for the same records with the switch `writeHLGSystemGamma` on.
struct RecordInput {
    std::size_t recordIndex;
    bool writeHLGSystemGamma;
    std::string text;
};

/// The input must not be empty.
inline RecordInput recordInput(const std::string& input) {
    const auto letter = static_cast<unsigned char>(input.front());
    const std::size_t numberInAlphabet = letter % 32U;  // of "A" and "a" 1, of "Z" and "z" 26
    return {(numberInAlphabet + 31U) % 32U, (letter & 32U) != 0, input.substr(1)};
}

inline char letterOf(std::size_t recordIndex) {
    return static_cast<char>('A' + recordIndex);
}

template <class... Records>
std::vector<std::string> rootElementNames(RecordTypes<Records...> /*list*/) {
    return {Records::rootElementName...};
}

template <class Record, class Take>
void takeFresh(bool writeHLGSystemGamma, Take& take) {
    Record record;
    record.writeHLGSystemGamma = writeHLGSystemGamma;
    take(record);
}

template <class Take, class... Records>
void withPickedRecord(const RecordInput& input, Take take, RecordTypes<Records...> /*list*/) {
    constexpr std::array calls = {&takeFresh<Records, Take>...};
    calls.at(input.recordIndex % calls.size())(input.writeHLGSystemGamma, take);
}

/// Calls `take` with a fresh record of the class that the input picks.
template <class Take>
void withPickedRecord(const RecordInput& input, Take take) {
    withPickedRecord(input, take, EveryRecord());
}

}  // namespace lv::fuzz
