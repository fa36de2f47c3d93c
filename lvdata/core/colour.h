#pragma once

/// A colour in several notations side by side: the value type in which the records' `_x` accessors take colours from
/// the caller and give them back.
///
/// An accessor fills or reads only the members of its own notation; in a colour that a getter returns every other
/// member is zero. No record stores a colour: each keeps scaled integers of its own, so what comes back from an
/// accessor pair is the value rounded to that scale. A plain aggregate, all zero by default, copied by value.
struct colour {
    /// CMYK as fractions, 1.0 = 100 %.
    double cyan = 0.0;
    double magenta = 0.0;
    double yellow = 0.0;
    double black = 0.0;

    /// RGB as fractions, 1.0 = code value 255.
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;

    /// CIE XYZ tristimulus values, as measured. PQR triples of measurement rows travel here, too: P in X, Q in Y, R in
    /// Z.
    double X = 0.0;
    double Y = 0.0;
    double Z = 0.0;

    /// CIE 1931 chromaticity coordinates, 0 to 1.
    double x = 0.0;
    double y = 0.0;

    /// Neither read nor written by the library.
    double extra0 = 0.0;

    /// CIELAB L*, a* and b*, as measured.
    double L = 0.0;
    double a = 0.0;
    double b = 0.0;

    /// Neither read nor written by the library.
    double extra1 = 0.0;
    double extra2 = 0.0;
};

namespace lv {
using ::colour;
}  // namespace lv
