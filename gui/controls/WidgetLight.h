#pragma once

#include <QLabel>

/// A lamp: green for any state but 0, red for 0.
class WidgetLight : public QLabel
{
    Q_OBJECT

public:
    explicit WidgetLight(QWidget* parent = nullptr);

    /// Changes the palette only if the state shown is another.
    void setState(int state);
    int state() const { return m_state; }

private:
    static constexpr int neverShown = -1;

    int m_state = 0;
    int m_shownState = neverShown;
};
