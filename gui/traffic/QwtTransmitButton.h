#pragma once

#include <QWidget>

class QPushButton;
class QSpinBox;

namespace gui {

/// The period of a line of the Transmit window, and the button that sends the line or starts and
/// stops it.
class QwtTransmitButton : public QWidget
{
    Q_OBJECT

public:
    explicit QwtTransmitButton(int index, QWidget* parent = nullptr);

    /// In milliseconds; 0 sends single frames.
    void setRate(int rate);
    /// Whether the line is running; anything but 0 counts as running.
    void setMode(int mode);
    int rate() const { return m_rate; }
    int mode() const { return m_mode; }

signals:
    void transmitSingle(int index);
    void transmitMode(int index, int mode);
    void transmitRate(int index, int rate);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void slotRate(int v);
    void slotTransmit();

private:
    void refresh();

    int m_index;
    int m_rate = 0;
    int m_mode = 0;
    bool m_updating = false;
    QSpinBox* m_rateBox;
    QPushButton* m_button;
};

} // namespace gui
