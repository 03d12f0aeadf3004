#pragma once

#include <cstdint>

class GraphEngine;
class MessageContainer;
class ObjectGraph;
struct ProfileParameter;

/// Whether the same frames give the same values of both: names, colours and ranges are of no
/// matter.
bool isFedAlike(const ProfileParameter& one, const ProfileParameter& other);

/// The way of a frame into the oscilloscope: what is counted, what is taken, and which channels its
/// values go to.
class GraphFeed
{
public:
    /// `startTime` is the application clock's; the graph's time counts from it.
    explicit GraphFeed(double startTime) : m_startTime(startTime) {}

    /// Takes a batch that came at `now` of the application clock. `object` holds the settings and
    /// parameters; without one only the time moves on. All frames of a batch share its time.
    ///
    /// Returns whether the batch is from the chosen interface, so that the count is to be shown.
    /// A batch of another one still moves the graph's time.
    bool receive(const MessageContainer& batch, double now, const ObjectGraph* object,
                 GraphEngine& engine);

    /// Frames of the chosen interface, also those that were not taken.
    std::uint32_t frameCount() const { return m_frameCount; }

private:
    double m_startTime;
    std::uint32_t m_frameCount = 0;
};
