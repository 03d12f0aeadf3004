#pragma once

#include "measure/GraphScale.h"
#include "measure/GraphState.h"

// The scales of a picture.

inline GraphScale timeScale(const GraphState& state)
{
    return {state.xMin, state.xMax, state.plotLeft, state.plotWidth};
}

/// Of the single graph.
inline GraphScale valueScale(const GraphState& state)
{
    return {state.yMin, state.yMax, state.plotBottom, state.plotHeight};
}

/// Of a channel as it was drawn last.
inline GraphScale valueScale(const GraphChannel& channel)
{
    return {channel.yMin, channel.yMax, channel.bandBottom, channel.bandHeight};
}

/// The scale that the cursor's value belongs to.
inline GraphScale cursorScale(const GraphState& state)
{
    return state.isSplit() && state.cursorChannel < state.channels.size()
               ? valueScale(state.channels[state.cursorChannel])
               : valueScale(state);
}
