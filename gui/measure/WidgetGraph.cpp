#include "gui/measure/WidgetGraph.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <cmath>

namespace {

constexpr double nearest = -7000.0; // of the depth that is drawn
constexpr double farthest = 7000.0;

} // namespace

bool WidgetGraph::isPossible()
{
    // These two promise OpenGL and cannot keep it.
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal") &&
           QGLFormat::hasOpenGL();
}

WidgetGraph::WidgetGraph(QWidget* parent)
    : QGLWidget(parent), m_timer(this), m_player(gui::GlyphTexture::scopeFont())
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(&m_timer, &QTimer::timeout, this, &WidgetGraph::slotTimeout);
    m_timer.start(paintPeriodMs);
}

WidgetGraph::~WidgetGraph() = default;

QImage WidgetGraph::picture()
{
    makeCurrent();
    glInit();
    paintGL(); // what was shown before need not be in the buffer any more
    return grabFrameBuffer();
}

void WidgetGraph::slotTimeout()
{
    if (isVisible()) {
        update();
    }
}

void WidgetGraph::requestRepaint()
{
    update();
}

void WidgetGraph::emitMarker()
{
    emit signalMarker(static_cast<float>(state().markerStart),
                      static_cast<float>(state().markerEnd));
}

void WidgetGraph::holdCursorAt(const QPoint& place)
{
    holdCursor(place.x(), place.y());
    update();
    emit signalCursor(static_cast<float>(state().cursorX), state().cursorY);
}

void WidgetGraph::mousePressEvent(QMouseEvent* event)
{
    switch (event->button()) {
    case Qt::LeftButton:
        m_leftHeld = true;
        // The key may have been pressed while another window had the keyboard.
        if (m_shiftHeld || event->modifiers().testFlag(Qt::ShiftModifier)) {
            moveMarker(event->x());
        } else {
            markAt(event->x());
        }
        update();
        emitMarker();
        break;
    case Qt::MiddleButton:
        m_middleHeld = true;
        holdCursorAt(event->pos());
        break;
    case Qt::RightButton:
        m_rightHeld = true;
        startPan(event->x());
        break;
    default:
        break;
    }
}

void WidgetGraph::letGo(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        orderMarker();
        m_leftHeld = false;
        break;
    case Qt::MiddleButton:
        m_middleHeld = false;
        releaseCursor();
        break;
    case Qt::RightButton:
        m_rightHeld = false;
        break;
    default:
        break;
    }
    update();
}

void WidgetGraph::letGoAllBut(Qt::MouseButtons held)
{
    const auto check = [this, held](bool isHeld, Qt::MouseButton button) {
        if (isHeld && !held.testFlag(button)) {
            letGo(button);
        }
    };
    check(m_leftHeld, Qt::LeftButton);
    check(m_middleHeld, Qt::MiddleButton);
    check(m_rightHeld, Qt::RightButton);
}

void WidgetGraph::mouseReleaseEvent(QMouseEvent* event)
{
    letGo(event->button());
}

void WidgetGraph::mouseMoveEvent(QMouseEvent* event)
{
    letGoAllBut(event->buttons()); // a release may have gone elsewhere
    if (m_leftHeld) {
        moveMarker(event->x());
        emitMarker();
        update();
        emitMarker();
    }
    if (m_middleHeld) {
        holdCursorAt(event->pos());
    }
    if (m_rightHeld) {
        panTo(event->x());
        emit signalManMode();
        update();
    }
}

void WidgetGraph::setModifier(int key, bool isHeld)
{
    switch (key) {
    case Qt::Key_Shift:
        m_shiftHeld = isHeld;
        break;
    case Qt::Key_Control:
        m_controlHeld = isHeld;
        break;
    case Qt::Key_Alt:
        m_altHeld = isHeld;
        break;
    default:
        break;
    }
}

bool WidgetGraph::runKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_F2:
        setSplitMode(0);
        return true;
    case Qt::Key_F3:
        setSplitMode(1);
        return true;
    default:
        break;
    }
    // Who cuts with Control and X does not mean to lose what was recorded.
    const Qt::KeyboardModifiers others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return (event.modifiers() & others) == Qt::NoModifier && runLetter(event.key());
}

bool WidgetGraph::runLetter(int key)
{
    switch (key) {
    case Qt::Key_A:
        resumeAutoMode();
        return true;
    case Qt::Key_C:
        setCursorMode(1);
        return true;
    case Qt::Key_R:
        reset();
        return true;
    case Qt::Key_X:
        clearAll();
        return true;
    case Qt::Key_Z:
        zoomMarker();
        return true;
    default:
        return false;
    }
}

void WidgetGraph::keyPressEvent(QKeyEvent* event)
{
    setModifier(event->key(), true);
    if (runKey(*event)) {
        update();
        emit signalModes();
    } else {
        QGLWidget::keyPressEvent(event);
    }
}

void WidgetGraph::keyReleaseEvent(QKeyEvent* event)
{
    setModifier(event->key(), false);
    QGLWidget::keyReleaseEvent(event);
}

void WidgetGraph::focusOutEvent(QFocusEvent* event)
{
    // Keys and buttons that are let go elsewhere are not told.
    letGoAllBut(Qt::NoButton);
    m_shiftHeld = false;
    m_controlHeld = false;
    m_altHeld = false;
    QGLWidget::focusOutEvent(event);
}

void WidgetGraph::hideEvent(QHideEvent* event)
{
    letGoAllBut(Qt::NoButton);
    QGLWidget::hideEvent(event);
}

void WidgetGraph::initializeGL()
{
    const GraphColor& back = state().backColor;
    glClearColor(back.red, back.green, back.blue, 1.0F);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    const auto devicePixels = [this](int pixels) {
        return static_cast<GLsizei>(std::lround(pixels * devicePixelRatioF()));
    };
    glViewport(0, 0, devicePixels(width()), devicePixels(height()));
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0.0, width(), 0.0, height(), nearest, farthest);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    m_player.load(devicePixelRatioF());
}

void WidgetGraph::resizeGL(int, int)
{
    // The size is that of the screen's pixels; the picture counts in Qt's.
    resizePicture(width(), height());
    initializeGL();
    update();
}

void WidgetGraph::paintGL()
{
    const GraphColor& back = state().backColor;
    glClearColor(back.red, back.green, back.blue, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    paint(m_player.metrics(), m_drawing);
    m_player.play(m_drawing);
}
