#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/parsed_array.h>

namespace lv::detail {

template <class Number>
bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<Number>& out) {
    return readArray(element, out, arraySeparator);
}

template bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<int>& out);
template bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<unsigned int>& out);

}  // namespace lv::detail
