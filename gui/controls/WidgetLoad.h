#pragma once

#include <QColor>
#include <QFrame>

#include <cstdint>

/// The bus-load bar of the project panel.
class WidgetLoad : public QFrame
{
    Q_OBJECT

public:
    explicit WidgetLoad(QWidget* parent = nullptr);

    /// Shows frames per second and a load in percent, limited to 0 to 100, at once.
    void set(std::uint32_t messageRate, double load);
    std::uint32_t messageRate() const { return m_messageRate; }
    double load() const { return m_load; }

    /// From green over yellow to red as the load goes from 0 to 100 percent.
    static QColor barColor(double load);
    QString text() const;

    QSize sizeHint() const override;

signals:
    void signalDoubleClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    std::uint32_t m_messageRate = 0;
    double m_load = 0.0;
};
