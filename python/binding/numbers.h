#pragma once

#include "texts.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <pybind11/pybind11.h>

// Numbers of texts as numbers of Python. All need the GIL.
namespace lv::python {

/// How numbers of a place are stored: with so many digits after the point, signed or not.
struct NumberForm {
    std::size_t decimals = 0;
    bool isSigned = false;
    std::string range{};  ///< "a number from 0 to 4294967295".
};

/// The form of the numbers of a text; of raw ones when `quantity` is null.
[[nodiscard]] NumberForm formOf(const analysis::Shape& shape, const Quantity* quantity);

/// Ten to that power. Exact.
[[nodiscard]] double powerOfTen(std::size_t decimals);

/// The number that a text of digits begins with; moves the text after it and after a "|".
[[nodiscard]] std::int64_t takeNumber(std::string_view& text);

/// The stored integer of a number of Python. Throws TypeError or ValueError, whose text is what is expected.
[[nodiscard]] std::int64_t storedOf(const pybind11::handle& number, const NumberForm& form);

/// The same of a number of C++.
[[nodiscard]] std::int64_t storedOf(double number, const NumberForm& form);
[[nodiscard]] std::int64_t storedOf(std::int64_t number, const NumberForm& form);

/// Numbers of Python, an array of NumPy or any iterable, as joined text. `count` is their number.
[[nodiscard]] std::string joinedOf(const pybind11::handle& numbers, const NumberForm& form, std::size_t& count);

/// Whether it can be taken for several numbers.
[[nodiscard]] bool isSeveral(const pybind11::handle& value);

/// Imports NumPy. To be called before pybind11 needs it: that would hang when two threads were the first to do so,
/// since it waits for the other thread without letting it run.
void importNumPy();

/// The text of a value for messages, shortened.
[[nodiscard]] std::string shortRepr(const pybind11::handle& value);

}  // namespace lv::python
