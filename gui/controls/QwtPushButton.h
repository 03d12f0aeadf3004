#pragma once

#include <QPushButton>

namespace gui {

/// A push button that repeats its index in its signal, and can have a colour.
class QwtPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit QwtPushButton(int index = 0, QWidget* parent = nullptr);
    QwtPushButton(const QString& text, const QColor& background, QWidget* parent = nullptr,
                  int index = 0);

signals:
    void signalClicked(int index);

private:
    int m_index = 0;
};

} // namespace gui
