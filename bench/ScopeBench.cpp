// The oscilloscope: what a value costs, how long making the columns anew takes, and one paint of a
// full plot, beside the least that OpenGL in software takes for so many lines. It needs a display.

#include "bench/WindowMain.h"
#include "gui/measure/WidgetGraph.h"
#include "measure/GraphColumns.h"

#include <QApplication>
#include <QWindow>
#include <qopengl.h>

#include <cmath>
#include <deque>

namespace {

constexpr std::uint32_t channels = 16;
constexpr int samplesInChannel = 100'000;
constexpr double shownSeconds = 60.0;
constexpr int plotWidth = 1'600;
constexpr int plotHeight = 900;
constexpr int linesInColumn = 4;
constexpr int valuesAtOnce = 100; // of one batch

/// Letters without a font.
class NoFont : public GraphTextMetrics
{
public:
    int width(const std::string& text) const override { return 7 * static_cast<int>(text.size()); }
    int height() const override { return 13; }
};

double signal(std::uint32_t channel, double time)
{
    return std::sin(time * (1.0 + channel)) * 40.0 + std::sin(time * 977.0) * 5.0;
}

// All channels in split mode, with so many samples each over the shown time.
void fill(GraphEngine& engine, int samples)
{
    engine.setParameterCount(channels);
    engine.setSplitMode(1);
    engine.setAutoMode(0);
    for (std::uint32_t i = 0; i < channels; ++i) {
        engine.setParameterVisible(i, true);
        engine.setParameterYMin(i, -50.0F);
        engine.setParameterYMax(i, 50.0F);
    }
    for (int k = 0; k < samples; ++k) {
        const double time = k * shownSeconds / samples;
        engine.setCurrentTime(time);
        for (std::uint32_t i = 0; i < channels; ++i) {
            engine.addValue(i, signal(i, time));
        }
    }
    engine.setRange(static_cast<float>(shownSeconds));
}

void addValue(benchmark::State& state)
{
    const NoFont font;
    GraphDrawing drawing;
    GraphEngine engine;
    engine.resizePicture(plotWidth, plotHeight);
    engine.setParameterVisible(0, true);
    engine.paint(font, drawing);
    double time = 0.0;
    for (int i = 0; i < samplesInChannel; ++i) {
        engine.setCurrentTime(time += 0.001);
        engine.addValue(0, time);
    }
    engine.paint(font, drawing);
    for ([[maybe_unused]] auto _ : state) {
        engine.setCurrentTime(time += 0.05);
        for (int i = 0; i < valuesAtOnce; ++i) {
            engine.addValue(0, time + i);
        }
    }
    bench::setItems(state, valuesAtOnce);
}

// The least that keeping the last samples takes.
void plainQueue(benchmark::State& state)
{
    std::deque<GraphSample> samples(samplesInChannel);
    double time = 0.0;
    for ([[maybe_unused]] auto _ : state) {
        time += 0.05;
        for (int i = 0; i < valuesAtOnce; ++i) {
            samples.push_back({time, time + i});
            samples.pop_front();
        }
    }
    benchmark::DoNotOptimize(samples.back());
    bench::setItems(state, valuesAtOnce);
}

void rebuildColumns(benchmark::State& state)
{
    const NoFont font;
    GraphDrawing drawing;
    GraphEngine engine;
    engine.resizePicture(plotWidth, plotHeight);
    engine.paint(font, drawing);
    fill(engine, samplesInChannel);
    for ([[maybe_unused]] auto _ : state) {
        engine.setRange(static_cast<float>(shownSeconds));
    }
}

// The least that a look at all samples takes.
void sampleWalk(benchmark::State& state)
{
    std::deque<GraphSample> samples(samplesInChannel);
    for ([[maybe_unused]] auto _ : state) {
        for (std::uint32_t i = 0; i < channels; ++i) {
            double highest = 0.0;
            for (const GraphSample& sample : samples) {
                highest = std::max(highest, sample.value);
            }
            benchmark::DoNotOptimize(highest);
        }
    }
}

void drawingList(benchmark::State& state)
{
    const NoFont font;
    GraphDrawing drawing;
    GraphEngine engine;
    engine.resizePicture(plotWidth, plotHeight);
    fill(engine, static_cast<int>(state.range(0)));
    engine.paint(font, drawing);
    for ([[maybe_unused]] auto _ : state) {
        engine.paint(font, drawing);
    }
    benchmark::DoNotOptimize(drawing.items().size());
}

template <typename Widget>
void showPlot(Widget& widget)
{
    widget.resize(plotWidth, plotHeight);
    widget.show();
    while (!widget.windowHandle()->isExposed()) { // what is not seen is not painted
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    if (!widget.isValid()) {
        qFatal("no OpenGL");
    }
}

template <typename Widget>
void measurePaints(benchmark::State& state, Widget& widget)
{
    for ([[maybe_unused]] auto _ : state) {
        widget.updateGL();
        widget.makeCurrent();
        glFinish();
    }
}

void paintPlot(benchmark::State& state)
{
    WidgetGraph graph;
    showPlot(graph);
    fill(graph, static_cast<int>(state.range(0)));
    graph.updateGL(); // once to know where the plot begins
    graph.setRange(static_cast<float>(shownSeconds));
    measurePaints(state, graph);
}

/// Clears itself, and draws four lines in each pixel column for each channel.
class PlainLines : public QGLWidget
{
public:
    PlainLines()
    {
        for (std::uint32_t i = 0; i < channels; ++i) {
            for (int x = 0; x < plotWidth; ++x) {
                for (int line = 0; line < linesInColumn; ++line) {
                    const double time = shownSeconds * (x * linesInColumn + line) / plotWidth;
                    m_points.push_back(static_cast<float>(x));
                    m_points.push_back(static_cast<float>((i + 0.5 + signal(i, time) / 100.0) *
                                                          plotHeight / channels));
                }
            }
        }
    }

protected:
    void resizeGL(int width, int height) override
    {
        glViewport(0, 0, width, height);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(0.0, width, 0.0, height, -1.0, 1.0);
    }
    void paintGL() override
    {
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glColor4f(1.0F, 1.0F, 1.0F, 1.0F);
        glEnableClientState(GL_VERTEX_ARRAY);
        glVertexPointer(2, GL_FLOAT, 0, m_points.data());
        constexpr int pointsInChannel = plotWidth * linesInColumn;
        for (std::uint32_t i = 0; i < channels; ++i) {
            glDrawArrays(GL_LINE_STRIP, static_cast<int>(i) * pointsInChannel, pointsInChannel);
        }
        glDisableClientState(GL_VERTEX_ARRAY);
    }

private:
    std::vector<float> m_points;
};

void plainLines(benchmark::State& state)
{
    PlainLines lines;
    showPlot(lines);
    measurePaints(state, lines);
}

BENCHMARK(addValue);
BENCHMARK(plainQueue);
BENCHMARK(rebuildColumns)->Unit(benchmark::kMillisecond);
BENCHMARK(sampleWalk)->Unit(benchmark::kMillisecond);
BENCHMARK(drawingList)->Arg(1'000)->Arg(10'000)->Arg(samplesInChannel);
BENCHMARK(paintPlot)->Arg(1'000)->Arg(10'000)->Arg(samplesInChannel)->UseRealTime();
BENCHMARK(plainLines)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "xcb"); // the default of the others has no OpenGL
    return bench::runWindowBenchmarks(
        argc, argv,
        {{"addValue", "plainQueue", 0.0},
         {"rebuildColumns", "sampleWalk", 0.0},
         {"drawingList/100000", "drawingList/10000", 0.0},
         {"paintPlot/10000/real_time", "paintPlot/1000/real_time", 0.0},
         {"paintPlot/100000/real_time", "paintPlot/10000/real_time", 0.0},
         {"paintPlot/100000/real_time", "plainLines/real_time", 0.0}});
}
