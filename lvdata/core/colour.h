#pragma once

/// A colour in several notations: the type in which the records' `_x` accessors take and return colours.
///
/// An accessor fills or reads only the members of its own notation; all other members of a returned colour are zero.
/// Records do not store a colour but scaled integers, so a value that was set comes back rounded to that scale (see
/// lvdata/core/quantities.h). A plain aggregate, all zero by default, copied by value.
struct colour {
    double cyan = 0.0;     ///< Cyan of CMYK as a fraction: 1.0 is 100 %.
    double magenta = 0.0;  ///< Magenta of CMYK as a fraction: 1.0 is 100 %.
    double yellow = 0.0;   ///< Yellow of CMYK as a fraction: 1.0 is 100 %.
    double black = 0.0;    ///< Black (K) of CMYK as a fraction: 1.0 is 100 %.

    double red = 0.0;    ///< Red of RGB as a fraction: 1.0 is the code value 255.
    double green = 0.0;  ///< Green of RGB as a fraction: 1.0 is the code value 255.
    double blue = 0.0;   ///< Blue of RGB as a fraction: 1.0 is the code value 255.

    /// CIE X tristimulus value, as measured; unit not recorded. In `MeasurementDataObject::PQR_x` it is P.
    double X = 0.0;

    /// CIE Y tristimulus value, as measured; whether it is absolute, in cd/m², is not recorded. In
    /// `MeasurementDataObject::PQR_x` it is Q.
    double Y = 0.0;

    /// CIE Z tristimulus value, as measured; unit not recorded. In `MeasurementDataObject::PQR_x` it is R.
    double Z = 0.0;

    double x = 0.0;  ///< CIE 1931 chromaticity coordinate x, 0 to 1.
    double y = 0.0;  ///< CIE 1931 chromaticity coordinate y, 0 to 1.

    double extra0 = 0.0;  ///< Not used by the library; zero in every colour that it returns.

    double L = 0.0;  ///< CIELAB L*, as measured.
    double a = 0.0;  ///< CIELAB a*, as measured; may be negative.
    double b = 0.0;  ///< CIELAB b*, as measured; may be negative.

    double extra1 = 0.0;  ///< Not used by the library; zero in every colour that it returns.
    double extra2 = 0.0;  ///< Not used by the library; zero in every colour that it returns.
};

namespace lv {
using ::colour;
}  // namespace lv
