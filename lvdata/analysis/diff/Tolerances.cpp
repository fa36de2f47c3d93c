#include <lvdata/analysis/diff/Tolerances.h>

#include <lvdata/analysis/decimal.h>

#include <algorithm>
#include <set>
#include <sstream>

namespace lv::analysis {
namespace {

void collectQuantities(const Description& facts, std::set<std::string>& names) {
    if (facts.quantity) {
        names.emplace(facts.quantity->name);
    }
    for (const Description::QuantityWhen& other : facts.otherQuantities) {
        names.emplace(other.quantity.name);
    }
    for (const Description& child : facts.children) {
        collectQuantities(child, names);
    }
}

/// No value for what is not a decimal number from 0.
std::optional<double> limitOf(std::string_view text) {
    const auto limit = decimalNumber(text);
    return limit && *limit >= 0 ? limit : std::nullopt;
}

std::string complaintOfKind(std::string_view kind, const std::vector<std::string>& kinds) {
    std::string list;
    for (const std::string& known : kinds) {
        list += (list.empty() ? "" : ", ") + known;
    }
    return "unknown kind of tolerance '" + std::string(kind) + "'; known: " + list;
}

}  // namespace

std::vector<std::string> Tolerances::kinds(const Catalogue& catalogue) {
    std::set<std::string> names = {std::string(duv), std::string(de00)};
    for (const Catalogue::Entry& entry : catalogue.entries()) {
        collectQuantities(*entry.facts, names);
    }
    return {names.begin(), names.end()};
}

std::optional<double> Tolerances::of(std::string_view kind) const {
    const auto found = limits_.find(kind);
    return found == limits_.end() ? std::nullopt : std::optional(found->second);
}

std::string Tolerances::take(std::string_view text, const Catalogue& catalogue) {
    const std::vector<std::string> known = kinds(catalogue);
    Tolerances taken = *this;
    std::istringstream pieces{std::string(text) + ','};
    for (std::string piece; std::getline(pieces, piece, ',');) {
        const std::size_t equals = piece.find('=');
        if (equals == std::string::npos) {
            return "'" + piece + "' is not a tolerance such as de00=0.5";
        }
        const std::string kind = piece.substr(0, equals);
        const auto limit = limitOf(std::string_view(piece).substr(equals + 1));
        if (std::find(known.begin(), known.end(), kind) == known.end()) {
            return complaintOfKind(kind, known);
        }
        if (!limit) {
            return "'" + piece.substr(equals + 1) + "' is not a number from 0";
        }
        taken.set(kind, *limit);
    }
    *this = taken;
    return "";
}

}  // namespace lv::analysis
