#include <lvdata/analysis/pictures/pictures.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace lv::analysis {
namespace {

/// A colour of the style sheet: "@name" in its rules.
struct Colour {
    std::string_view name;
    std::string_view light;  // on light pages, and in print
    std::string_view dark;   // on dark pages
};

/// After M. Okabe and K. Ito, "Color universal design" (2002), each made darker or lighter until it has enough contrast
/// with the background.
constexpr std::array<Colour, 11> colours{{
    {"paper", "#ffffff", "#1b1e23"},
    {"ink", "#1f2328", "#e6e8eb"},
    {"muted", "#57606a", "#a9b2bd"},
    {"grid", "#e4e7eb", "#343a42"},
    {"axis", "#8b949e", "#6e7781"},
    {"blue", "#0072b2", "#56b4e9"},
    {"red", "#c44601", "#ff8a5c"},
    {"green", "#00795a", "#2fc79a"},
    {"purple", "#a23b72", "#e08bb9"},
    {"orange", "#946200", "#e69f00"},
    {"band", "#eaf5ef", "#20322c"},
}};

/// Steps of a ramp from dark to light, the same on every page.
constexpr std::array<std::string_view, 9> ramp{"#08306b", "#08519c", "#2171b5", "#4292c6", "#6baed6",
                                               "#8fc2de", "#b3d3e8", "#d0e2f0", "#e8f1f8"};
constexpr std::size_t firstLightStep = 3;  // from here on black letters have more contrast than white ones

constexpr std::string_view rules = R"(
.lv-picture{fill:@ink;font-family:system-ui,-apple-system,"Segoe UI",Roboto,"Helvetica Neue",Arial,sans-serif;font-size:12px}
.lv-parts{position:absolute}
.lv-paper{fill:@paper}
.lv-title{font-size:15px;font-weight:600}
.lv-sub,.lv-note,.lv-tick,.lv-label{fill:@muted}
.lv-tick,.lv-note,.lv-value{font-size:11px}
.lv-grid{fill:none;stroke:@grid}
.lv-frame{fill:none;stroke:@axis}
.lv-zero{stroke:@axis;stroke-width:1.5}
.lv-halo{paint-order:stroke;stroke:@paper;stroke-width:3px;stroke-linejoin:round}
.lv-band{fill:@band}
.lv-cells path{stroke:@paper}
.lv-quiet{pointer-events:none}
.lv-under{stroke:@paper;stroke-width:3.5}
.lv-hover{stroke:#000;stroke-opacity:0}
.lv-line{fill:none;stroke:currentColor;stroke-width:2;stroke-linejoin:round}
.lv-marks{fill:none}
.lv-thin{stroke-width:1.5}
.lv-stroke{fill:none;stroke:currentColor;stroke-width:2.5}
.lv-mark{fill:currentColor;stroke:@paper}
.lv-mark.lv-dots{stroke:currentColor;stroke-width:7;stroke-linecap:round}
.lv-bar{fill:currentColor}
.lv-bars{fill:none;stroke:currentColor}
.lv-open{fill:@paper;stroke:currentColor;stroke-width:2}
.lv-ink{color:@ink}
.lv-muted{color:@muted}
.lv-blue,.lv-measured{color:@blue}
.lv-red,.lv-limit,.lv-over{color:@red}
.lv-green{color:@green}
.lv-purple{color:@purple}
.lv-target{color:@orange}
.lv-line.lv-target{stroke-dasharray:7 3}
.lv-line.lv-limit{stroke-dasharray:9 3 2 3}
.lv-line.lv-green{stroke-dasharray:8 3}
.lv-line.lv-blue{stroke-dasharray:2 2.5}
.lv-line.lv-purple{stroke-dasharray:10 3 2 3}
.lv-line.lv-solid{stroke-width:2.5}
.lv-line.lv-muted{stroke-dasharray:4 3}
.lv-line.lv-ink{stroke-dasharray:1.5 3}
.lv-locus{fill:none;stroke:@muted;stroke-width:1.5}
.lv-planck{fill:none;stroke:@axis;stroke-width:1.5}
.lv-wash-red{stop-color:#e00000}
.lv-wash-green{stop-color:#00b030}
.lv-wash-blue{stop-color:#1030e0}
)";

std::string properties(bool isDark) {
    std::string text = ".lv-picture{";
    for (const Colour& colour : colours) {
        text += "--lv-" + std::string(colour.name) + ':' + std::string(isDark ? colour.dark : colour.light) + ';';
    }
    text.back() = '}';
    return text + '\n';
}

const Colour& colourNamed(std::string_view name) {
    for (const Colour& colour : colours) {
        if (colour.name == name) {
            return colour;
        }
    }
    return colours.front();
}

/// "fill:@ink" becomes "fill:#1f2328;fill:var(--lv-ink)": programs that do not know custom properties take the first,
/// which browsers do not need.
std::string declaration(std::string_view text, bool isForPage) {
    const std::size_t at = text.find('@');
    if (at == std::string_view::npos) {
        return std::string(text);
    }
    const Colour& colour = colourNamed(text.substr(at + 1));
    const std::string property(text.substr(0, at));
    const std::string plain = isForPage ? "" : property + std::string(colour.light) + ';';
    return plain + property + "var(--lv-" + std::string(colour.name) + ')';
}

/// The text with each declaration, which ends at ";" or "}", written in that way.
std::string expanded(std::string_view text, bool isForPage) {
    std::string result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("{;}"), text.size() - 1);
        result += declaration(text.substr(0, end), isForPage);
        result += text[end];
        text.remove_prefix(end + 1);
    }
    return result;
}

std::string rampRules() {
    std::string text;
    for (std::size_t step = 0; step < ramp.size(); ++step) {
        const std::string name = ".lv-r" + std::string(1, static_cast<char>('0' + step));
        const std::string letters = step < firstLightStep ? "#ffffff" : "#000000";
        text += name + "{fill:" + std::string(ramp[step]) + "}" + name + "t{fill:" + letters + "}\n";
    }
    return text;
}

std::string styleFor(bool isForPage) {
    return '\n' + properties(false) + "@media screen and (prefers-color-scheme:dark){\n" + properties(true) + "}" +
           expanded(rules, isForPage) + rampRules();
}

}  // namespace

std::string pictureStyle() {
    return styleFor(false);
}

std::string pictureStyleForPage() {
    std::string style = styleFor(true);
    style.erase(std::remove(style.begin(), style.end(), '\n'), style.end());
    return style;
}

}  // namespace lv::analysis
