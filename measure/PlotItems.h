#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <variant>
#include <vector>

// A picture as a list of things to draw, one above the other: a widget plays it, and tests read it.
// Places are pixels from the top left.

struct PlotColor
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

constexpr bool operator==(const PlotColor& left, const PlotColor& right)
{
    return left.red == right.red && left.green == right.green && left.blue == right.blue;
}

struct PlotPoint
{
    double x = 0.0;
    double y = 0.0;
};

/// A filled rectangle on whole pixels.
struct PlotRectangle
{
    PlotColor color;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// A line with its end points, both included.
struct PlotLine
{
    PlotColor color;
    PlotPoint from{};
    PlotPoint to{};
    int width = 1; ///< pixels
    bool isSmooth = false;
};

/// A filled triangle.
struct PlotArrowHead
{
    PlotColor color;
    std::array<PlotPoint, 3> corners{};
};

/// A text that begins at a place on its base line.
struct PlotText
{
    PlotColor color;
    PlotPoint place{};
    QString text{};
};

using PlotItem = std::variant<PlotRectangle, PlotLine, PlotArrowHead, PlotText>;
using PlotItems = std::vector<PlotItem>;
