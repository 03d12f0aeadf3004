#include "gui/desktop/DialogSplash.h"

#include "resources/splash.xpm"

#include <QApplication>
#include <QPainter>

namespace gui {

namespace {

constexpr int left = 5; // pixels
constexpr int firstBaseline = 30;
constexpr int lineDistance = 15;

DialogSplash*& current()
{
    static DialogSplash* splash = nullptr;
    return splash;
}

} // namespace

DialogSplash& DialogSplash::instance()
{
    if (current() == nullptr) {
        current() = new DialogSplash;
        current()->show();
    }
    return *current();
}

DialogSplash::DialogSplash() : m_picture(splash_xpm)
{
    setPixmap(m_picture);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &DialogSplash::slotTimeout);
}

void DialogSplash::addMessage(const QString& line)
{
    m_lines.append(line);
    if (m_lines.size() > maxLines) {
        m_lines.removeFirst();
    }
    repaint();
    // On screen now: the main thread is busy until the event loop starts.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DialogSplash::finish()
{
    current() = nullptr;
    m_timer.start(lingerMs);
}

void DialogSplash::slotTimeout()
{
    close();
}

void DialogSplash::drawContents(QPainter* painter)
{
    painter->setFont(QApplication::font());
    painter->setPen(QColor(0, 0, 0));
    int y = firstBaseline;
    for (const QString& line : m_lines) {
        painter->drawText(left, y, line);
        y += lineDistance;
    }
}

void DialogSplash::mousePressEvent(QMouseEvent*)
{
    slotTimeout();
}

} // namespace gui
