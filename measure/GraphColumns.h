#pragma once

#include "measure/GraphChannel.h"

#include <optional>

/// How the samples of a channel become the columns that are drawn. A column is `pixelTime` wide,
/// which is positive or infinite; with an infinite one, all samples fall into one column.

/// Adds a value to the columns. What comes beyond `GraphChannel::maxColumns` costs a column left of
/// `xMin` if there is one, else it joins the last column.
void addToColumns(GraphChannel& channel, const GraphSample& sample, double pixelTime, double xMin);

/// Leaves none.
void clearColumns(GraphChannel& channel);

/// Makes the columns anew from the samples of the time range, with one sample before it and one
/// behind it.
///
/// Deliberate: if the second sample is the first one in the range, the first is left out.
void rebuildColumns(GraphChannel& channel, double xMin, double xMax, double pixelTime);

/// Drops the columns left of `xMin`, but the last of them, so that the line enters from the left.
void trimColumns(GraphChannel& channel, double xMin);

/// Sets `seenMin` and `seenMax` to what the columns hold; they stay if that is no finite value.
void updateSeen(GraphChannel& channel);

/// The value at a time, between two samples on the line through them; none before the first sample
/// and behind the last.
std::optional<double> valueAt(const GraphChannel& channel, double time);
