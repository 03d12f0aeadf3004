#pragma once

#include <QString>

#include <array>

// What a needle instrument shows. Its drawing spans -100 to +100 in both directions, from the
// centre to the right and downwards; angles are in degrees, clockwise from the top.

inline constexpr double dialExtent = 200.0; ///< of the drawing, both ways
inline constexpr double dialFirstAngle = -125.0;
inline constexpr double dialSweep = 250.0;

/// Marks of one kind, drawn upwards from the centre and then rotated.
struct DialMarks
{
    double from;      ///< distance from the centre
    double to;        ///< distance from the centre
    int count;        ///< from the first angle on
    double stepAngle; ///< from mark to mark
};

inline constexpr DialMarks dialMinorMarks{92.0, 96.0, 51, 5.0};
inline constexpr DialMarks dialMajorMarks{88.0, 96.0, 11, 25.0};

struct DialPoint
{
    double x;
    double y;
};

/// The needle while it points to the top.
inline constexpr std::array<DialPoint, 3> dialNeedle{{{7.0, 8.0}, {-7.0, 8.0}, {0.0, -96.0}}};

/// Where a text is centred.
struct DialTextPlace
{
    double left;
    double top;
    double width;
    double height;
    int pointSize;
};

inline constexpr DialTextPlace dialValuePlace{-100.0, 30.0, 200.0, 50.0, 24};
inline constexpr DialTextPlace dialNamePlace{-200.0, 60.0, 400.0, 50.0, 12};

/// Where `value` lies on a scale: 0 at its minimum, 1 at its maximum, held to these. A value that
/// is no number gives 0, and so does a scale without length, unless the value lies above it.
double dialShare(double value, double minimum, double maximum);

/// The angle of the needle.
double dialAngle(double value, double minimum, double maximum);

/// The number with so many decimals, 0 to 10; more or fewer count as these.
QString dialValueText(double value, int precision);

/// Name and unit as the title of a window shows them.
QString dialTitle(const QString& name, const QString& unit);
