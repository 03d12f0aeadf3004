#pragma once

#include "measure/GraphDrawing.h"
#include "measure/GraphState.h"

#include <optional>
#include <string>

/// What the oscilloscope keeps and decides: samples and their columns, the shown range, marker and
/// cursor. It knows neither frames nor screens: it is told the time, values and mouse positions,
/// and gives the picture as a list.
///
/// An operation on a channel that does not exist does nothing, nor does one with a time that is no
/// finite number, or with so many seconds of range.
class GraphEngine
{
public:
    static constexpr std::uint32_t firstChannelCount = 6;
    static constexpr std::uint32_t maxChannelCount = 30;

    GraphEngine();
    virtual ~GraphEngine();
    GraphEngine(const GraphEngine&) = delete;
    GraphEngine& operator=(const GraphEngine&) = delete;

    const GraphState& state() const { return m_state; }

    /// Replaces all channels; `count` is held to 1 to `maxChannelCount`.
    void setParameterCount(std::uint32_t count);
    /// The caller's clock in seconds. A time before the last one empties all samples.
    void setCurrentTime(double time);
    /// A value of now. Ignored until the time was set.
    void addValue(std::uint32_t channel, double value);
    /// The shown seconds: up to the right edge in automatic mode, else from the left one.
    void setRange(float seconds);
    void setSplitMode(std::int32_t mode);
    void setCursorMode(std::int32_t mode);
    void setAutoMode(std::int32_t mode);
    void setGridOn(bool on);
    void setCursorOn(bool on);
    void setLegendOn(bool on);
    void setPlotColor(float red, float green, float blue);
    void setGridColor(float red, float green, float blue);
    void setLabelColor(float red, float green, float blue);
    void setBackColor(float red, float green, float blue);
    /// Deliberate: asks for no repaint.
    void setParameterVisible(std::uint32_t channel, bool on);
    void setParameterColor(std::uint32_t channel, float red, float green, float blue);
    /// Both in Latin-1.
    void setParameterLabels(std::uint32_t channel, const std::string& name,
                            const std::string& unit);
    void setParameterShowSamples(std::uint32_t channel, bool on);
    void setParameterAutoScale(std::uint32_t channel, bool on);
    /// The range of a channel without auto-scale. One with an end that is no finite number is
    /// stored as any other; the channel is then drawn without axis and trace.
    ///
    /// Deliberate: makes no columns anew, while `setParameterYMax` does so for all visible
    /// channels, which takes its time.
    void setParameterYMin(std::uint32_t channel, float yMin);
    void setParameterYMax(std::uint32_t channel, float yMax);
    /// Forgets what the channel has recorded; how it is drawn stays.
    void clearChannel(std::uint32_t channel);
    /// Takes a channel out, with what it has recorded. The ones behind it move up, with theirs; a
    /// new one comes behind them.
    void removeChannel(std::uint32_t channel);
    /// Back to the first range, without samples; clock and modes stay.
    void clearAll();
    /// Shows the marked time, one second at least, in manual mode.
    void zoomMarker();
    /// The channel's value at a time, as `valueAt` of its samples.
    std::optional<double> valueAt(std::uint32_t channel, double time) const;

    // What keys do besides.
    /// Follows the time again.
    void resumeAutoMode();
    /// Everything as it was at first, in single-graph mode.
    void reset();

    // The mouse, in pixels from the top left.
    /// Marks a single time.
    void markAt(int x);
    /// Moves the nearer end of the marked time.
    void moveMarker(int x);
    /// Puts start and end of the marked time in order.
    void orderMarker();
    void holdCursor(int x, int y);
    void releaseCursor();
    void startPan(int x);
    /// Moves the range along with the mouse, in manual mode.
    void panTo(int x);

    /// The size of the picture in pixels.
    void resizePicture(int width, int height);
    /// Draws the picture. Where the plot begins follows the widest label, one picture later. In
    /// automatic mode each channel that is silent gets its last value once more, so that its trace
    /// runs up to the right edge.
    void paint(const GraphTextMetrics& metrics, GraphDrawing& drawing);

protected:
    /// The picture changed. Nothing here.
    virtual void requestRepaint();

private:
    GraphChannel* find(std::uint32_t channel);
    double pixelTime() const;
    double timeAt(int x) const;
    void rebuild();
    void rebuild(GraphChannel& channel) const;
    void prepareChannels();
    void prepareStrips();
    std::uint32_t channelAt(double y) const;

    GraphState m_state;
    int m_width = 0;
    int m_height = 0;
    double m_columnsPlotWidth = 0.0; ///< the plot's, when the columns were made
};
