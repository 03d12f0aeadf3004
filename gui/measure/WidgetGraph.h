#pragma once

#include "gui/measure/GraphPlayer.h"
#include "measure/GraphEngine.h"

#include <QGLWidget>
#include <QTimer>

/// The oscilloscope's plot: an engine whose picture is played into OpenGL, moved by mouse and keys.
/// A timer repaints it.
class WidgetGraph : public QGLWidget, public GraphEngine
{
    Q_OBJECT

public:
    /// Period of the repaints in milliseconds.
    static constexpr int paintPeriodMs = 30;

    /// Whether such a widget works here at all. Where it does not, making one may end the program.
    static bool isPossible();

    explicit WidgetGraph(QWidget* parent = nullptr);
    ~WidgetGraph() override;

    /// Draws the picture of now and gives it as an image.
    QImage picture();

signals:
    void signalCursor(float time, double value);
    void signalMarker(float start, float end);
    /// The user moved the range by hand.
    void signalManMode();
    /// A key changed modes or range.
    void signalModes();

public slots:
    void slotTimeout();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void requestRepaint() override;
    void letGo(Qt::MouseButton button);
    /// Lets go of the buttons that are not among these.
    void letGoAllBut(Qt::MouseButtons held);
    void setModifier(int key, bool isHeld);
    bool runKey(const QKeyEvent& event);
    bool runLetter(int key);
    void holdCursorAt(const QPoint& place);
    void emitMarker();

    QTimer m_timer;
    gui::GraphPlayer m_player;
    GraphDrawing m_drawing;
    bool m_leftHeld = false;
    bool m_middleHeld = false;
    bool m_rightHeld = false;
    bool m_shiftHeld = false;
    bool m_altHeld = false;
    bool m_controlHeld = false;
};
