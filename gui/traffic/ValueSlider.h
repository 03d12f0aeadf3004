#pragma once

#include <QWidget>

class QLineEdit;
class QSlider;
struct SendMsg;

namespace gui {

/// A value page of the CANaerospace editor: a floating-point number, typed or set by a slider
/// between two limits.
class ValueSlider : public QWidget
{
    Q_OBJECT

public:
    explicit ValueSlider(QWidget* parent);

    /// Shows limits, value and slider.
    void show(const SendMsg& message);
    using QWidget::show;
    /// Moves the slider alone.
    void moveSlider(const SendMsg& message);

    QString minimumText() const;
    QString maximumText() const;

signals:
    /// A limit was typed and finished. Leaving a line as it was shown is no change: it would round
    /// the limit to what is shown of it.
    void signalMin();
    void signalMax();
    void signalActual(const QString& text);
    void signalSlider(int value);

private:
    QLineEdit* makeLine(const char* objectName, const char* toolTip);

    QSlider* m_slider;
    QLineEdit* m_minimum;
    QLineEdit* m_actual;
    QLineEdit* m_maximum;
    QString m_shownMinimum;
    QString m_shownMaximum;
};

} // namespace gui
