#pragma once

#include <QLineEdit>

namespace gui {

/// A line edit that repeats its index in its signal, so that one slot serves many.
class QwtLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit QwtLineEdit(int index = 0, QWidget* parent = nullptr);

signals:
    void focusIn();
    void focusOut();
    void signalTextChanged(int index, const QString& text);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int m_index;
};

} // namespace gui
