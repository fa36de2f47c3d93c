// What mutants compiled into a source need; scripts/mutate copies it beside the changed sources.
#pragma once

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <cstdlib>
#include <type_traits>

namespace lv::mutation {

// A byte for each mutant, in the file that the environment names; nothing where it names none.
inline unsigned char* openReached() {
    const char* const path = std::getenv("LVDATA_MUTANTS_REACHED");
    const int file = path != nullptr ? ::open(path, O_RDWR) : -1;
    struct stat facts {};
    if (file < 0 || ::fstat(file, &facts) != 0) {
        return nullptr;
    }
    void* const bytes =
        ::mmap(nullptr, static_cast<std::size_t>(facts.st_size), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    return bytes != MAP_FAILED ? static_cast<unsigned char*>(bytes) : nullptr;
}

// Whether this run is that of the mutant of that number; notes that it was asked.
inline bool on(int mutant) {
    static const char* const text = std::getenv("LVDATA_MUTANT");
    static const int active = text != nullptr ? std::atoi(text) : 0;
    static unsigned char* const reached = openReached();
    if (reached != nullptr) {
        reached[mutant] = 1;
    }
    return mutant == active;
}

// The same in a constexpr function, which is what it was where the compiler runs it.
constexpr bool onAtRunTime(int mutant) {
    return !__builtin_is_constant_evaluated() && on(mutant);
}

template <class T>
constexpr T pick(bool isChanged, const T& changed, const T& original) {
    return isChanged ? changed : original;
}

// A result that a call would have had, or nothing.
template <class Call>
constexpr auto unless(bool isChanged, Call call) -> decltype(call()) {
    if constexpr (std::is_default_constructible_v<decltype(call())>) {
        if (isChanged) {
            return {};
        }
    }
    return call();
}

// The opposite of an answer; what a visit that describes answers has none.
template <class Answer>
constexpr auto opposite(bool isChanged, const Answer& answer) {
    if constexpr (std::is_same_v<Answer, bool>) {
        return isChanged != answer;
    } else {
        return answer;
    }
}

// The opposite of a gate's condition, which says the same as before.
template <class Gate>
struct Inverted : Gate {
    bool isChanged;

    Inverted(bool changed, const Gate& gate) : Gate(gate), isChanged(changed) {}

    [[nodiscard]] bool holds() const { return isChanged != Gate::holds(); }
};

template <class Gate>
Inverted<Gate> inverted(bool isChanged, const Gate& gate) {
    return {isChanged, gate};
}

// Stands after the operator of a comparison: "a < OffByOne{true} < b" is "a <= b".
struct OffByOne {
    bool isChanged;
};

template <class Left>
struct Compared {
    const Left& left;
    bool isChanged;
};

template <class Left>
constexpr Compared<Left> operator<(const Left& left, OffByOne by) {
    return {left, by.isChanged};
}

template <class Left>
constexpr Compared<Left> operator<=(const Left& left, OffByOne by) {
    return {left, by.isChanged};
}

template <class Left>
constexpr Compared<Left> operator>(const Left& left, OffByOne by) {
    return {left, by.isChanged};
}

template <class Left>
constexpr Compared<Left> operator>=(const Left& left, OffByOne by) {
    return {left, by.isChanged};
}

template <class Left, class Right>
constexpr bool operator<(Compared<Left> left, const Right& right) {
    return left.isChanged ? left.left <= right : left.left < right;
}

template <class Left, class Right>
constexpr bool operator<=(Compared<Left> left, const Right& right) {
    return left.isChanged ? left.left < right : left.left <= right;
}

template <class Left, class Right>
constexpr bool operator>(Compared<Left> left, const Right& right) {
    return left.isChanged ? left.left >= right : left.left > right;
}

template <class Left, class Right>
constexpr bool operator>=(Compared<Left> left, const Right& right) {
    return left.isChanged ? left.left > right : left.left >= right;
}

}  // namespace lv::mutation
