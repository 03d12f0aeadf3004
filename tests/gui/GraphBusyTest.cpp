#include "gui/measure/WidgetGraph.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

// A plot whose painting takes longer than the time from one repaint to the next.

namespace {

constexpr int heartbeatMs = 50;
constexpr int paintMs = 60; // more than either period

class SlowGraph : public WidgetGraph
{
public:
    int paints = 0;

protected:
    void paintGL() override
    {
        QElapsedTimer time;
        time.start();
        WidgetGraph::paintGL();
        while (time.elapsed() < paintMs) {
        }
        ++paints;
    }
};

TEST(GraphBusy, TheProgramGoesOnHoweverLongAPaintTakes)
{
    SlowGraph graph;
    graph.resize(300, 200);
    graph.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&graph));
    int heartbeats = 0;
    int answers = 0;
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, [&] {
        ++heartbeats;
        // Waits in the queue as what the user does waits there.
        QMetaObject::invokeMethod(
            &graph, [&answers] { ++answers; }, Qt::QueuedConnection);
    });
    heartbeat.start(heartbeatMs);
    const int before = graph.paints;
    while (graph.paints < before + 10) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    // A turn for each paint, but for those of showing it.
    EXPECT_GE(heartbeats, 7);
    EXPECT_GE(answers, heartbeats - 1);
}

} // namespace
