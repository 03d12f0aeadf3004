#pragma once

#include "measure/GraphChannel.h"

#include <vector>

/// All that the oscilloscope's picture depends on. Pixels count from the bottom left.
struct GraphState
{
    static constexpr double defaultSeconds = 60.0;
    static constexpr double defaultYMin = -0.5;
    static constexpr double defaultYMax = 1.5;

    std::vector<GraphChannel> channels;
    double now = 0.0; ///< the time that was set last; the time of every new sample
    double xMin = 0.0;
    double xMax = defaultSeconds;
    double yMin = defaultYMin; ///< of the single graph
    double yMax = defaultYMax;
    double markerStart = 0.0;
    double markerEnd = 0.0;
    double cursorX = 0.0;
    double cursorY = 0.0;
    bool cursorShown = false;        ///< the mouse holds the cursor
    std::uint32_t cursorChannel = 0; ///< that the cursor is in, in split mode
    double plotLeft = 0.0;
    double plotBottom = 0.0;
    double plotWidth = 0.0;
    double plotHeight = 0.0;
    std::int32_t cursorMode = 0; ///< kept for the window; the drawing does not depend on it
    std::int32_t autoMode = 1;   ///< 1: the range follows `now`
    std::int32_t splitMode = 0;  ///< 1: one strip for each visible channel
    int visibleCount = 0;        ///< of the last paint in split mode
    GraphColor plotColor{0.0F, 0.0F, 0.0F};
    GraphColor gridColor{1.0F, 0.3F, 0.3F};
    GraphColor labelColor{0.0F, 0.0F, 0.0F};
    GraphColor backColor{0.8F, 0.8F, 0.8F};
    bool gridOn = true;
    bool cursorOn = true;
    bool legendOn = true;
    double dataStart = 0.0; ///< first and last sample time of all channels
    double dataEnd = 0.0;
    bool running = false; ///< the time was set once
    bool rebuildPending = false;
    int dragStartX = 0; ///< of a pan
    double dragXMin = 0.0;
    double dragXMax = 0.0;
    int labelWidth = 0; ///< of the widest value label of the last paint

    bool isSplit() const { return splitMode != 0; }
    bool isAutomatic() const { return autoMode == 1; }
};
