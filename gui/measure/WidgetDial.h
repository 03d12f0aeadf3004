#pragma once

#include <QColor>
#include <QFrame>
#include <QString>

class QPainter;
struct DialMarks;
struct DialTextPlace;

/// A needle instrument. Until it gets a value the needle stands at the start of the scale.
class WidgetDial : public QFrame
{
    Q_OBJECT

public:
    explicit WidgetDial(QWidget* parent = nullptr);

    void setMinimum(double minimum);
    void setMaximum(double maximum);
    /// A value outside of the scale holds the needle at its end; the text shows it all the same.
    void setValue(double value);
    /// Decimals of the value, 0 to 10.
    void setPrecision(int precision);
    void setName(const QString& name);
    void setUnit(const QString& unit);
    /// Of needle and texts.
    void setColor(const QColor& color);

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    double value() const { return m_value; }
    int precision() const { return m_precision; }
    const QString& name() const { return m_name; }
    const QString& unit() const { return m_unit; }
    const QColor& color() const { return m_color; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    static void drawMarks(QPainter& painter, const DialMarks& marks, const QColor& color);
    void drawNeedle(QPainter& painter) const;
    static void drawText(QPainter& painter, const DialTextPlace& place, const QString& text);

    double m_minimum = 0.0;
    double m_maximum = 1.0;
    double m_value = 0.0;
    bool m_hasValue = false;
    int m_precision = 2;
    QString m_name = QStringLiteral("NoName");
    QString m_unit;
    QColor m_color{200, 0, 0};
};
