#pragma once

#include <QWidget>

class QFrame;

namespace gui {

/// A swatch of a colour, and a button that chooses another one.
class ColorSelect : public QWidget
{
    Q_OBJECT

public:
    explicit ColorSelect(QWidget* parent = nullptr);

    const QString& color() const { return m_color; }
    /// Shows the colour of this name, without a signal.
    void setColor(const QString& color);

signals:
    /// The user chose this one.
    void signalColor(const QString& color);

private slots:
    void slotSelect();

private:
    QString m_color;
    QFrame* m_swatch;
};

} // namespace gui
