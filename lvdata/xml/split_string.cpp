#include <lvdata/xml/detail/for_each_piece.h>
#include <lvdata/xml/split_string.h>

namespace lv {

std::vector<std::string> split_string(const std::string& text, const std::string& separator) {
    std::vector<std::string> pieces;
    detail::forEachPiece(text, separator, [&pieces](std::string_view piece) { pieces.emplace_back(piece); });
    return pieces;
}

}  // namespace lv
