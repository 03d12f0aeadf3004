#pragma once

#include <QLabel>

namespace gui {

/// A label that tells of double clicks.
class QwtLabel : public QLabel
{
    Q_OBJECT

public:
    explicit QwtLabel(int index = 0, QWidget* parent = nullptr);

    int index() const { return m_index; }

signals:
    void signalDoubleClicked(int index);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    int m_index;
};

} // namespace gui
