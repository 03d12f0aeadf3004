#include "gui/frame/WidgetHeader.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

/// Counts what lays widgets out anew, of all widgets.
class LayoutCounter : public QObject
{
public:
    LayoutCounter() { QApplication::instance()->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }

    int count = 0;
};

class HeaderInWindow : public testing::Test
{
protected:
    HeaderInWindow()
    {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(&m_header);
        layout->addStretch();
        m_window.show();
    }
    /// Lets the window lay itself out, and returns how often something was still to be done in the
    /// last of some rounds.
    static int requestsAtTheEnd()
    {
        constexpr int rounds = 10;
        int last = 0;
        for (int i = 0; i < rounds; ++i) {
            const LayoutCounter counter;
            QApplication::processEvents();
            last = counter.count;
        }
        return last;
    }

    zul::test::TestHome m_home;
    zul::test::SettableClock m_clock;
    QWidget m_window;
    WidgetHeader m_header;
};

TEST_F(HeaderInWindow, ComesToRestAtEveryWidth)
{
    int oneRow = 0;
    int twoRows = 0;
    for (int width = 150; width < 900; ++width) {
        m_window.resize(width, 200);
        ASSERT_EQ(requestsAtTheEnd(), 0) << "at a width of " << width;
        oneRow += m_header.isWrapped() ? 0 : 1;
        twoRows += m_header.isWrapped() ? 1 : 0;
    }
    EXPECT_GT(oneRow, 50);
    EXPECT_GT(twoRows, 50);
}

TEST_F(HeaderInWindow, IsAsWideAsItNeedsComingFromEitherSide)
{
    int wrapsBelow = 0;
    for (int width = 900; width > 150 && wrapsBelow == 0; --width) {
        m_window.resize(width, 200);
        requestsAtTheEnd();
        wrapsBelow = m_header.isWrapped() ? width + 1 : 0;
    }
    ASSERT_GT(wrapsBelow, 0);
    m_window.resize(wrapsBelow, 200);
    requestsAtTheEnd();
    EXPECT_FALSE(m_header.isWrapped());
    m_window.resize(wrapsBelow - 1, 200);
    requestsAtTheEnd();
    EXPECT_TRUE(m_header.isWrapped());
}

TEST_F(HeaderInWindow, CountingLaysNothingOutAnew)
{
    m_window.resize(800, 200);
    requestsAtTheEnd();
    const LayoutCounter counter;
    for (const std::uint32_t count : {1U, 20U, 4'444U, 8'888U, 9'999U, 10'000U}) {
        m_header.setInputCount(count);
        m_header.setOutputCount(count);
        QApplication::processEvents();
    }
    EXPECT_EQ(counter.count, 0);
    for (const char* name : {"inputCounter", "outputCounter"}) {
        const auto* label = m_header.findChild<QLabel*>(QLatin1String(name));
        EXPECT_EQ(label->size(), label->sizeHint()) << "all digits have room";
    }
}

} // namespace
