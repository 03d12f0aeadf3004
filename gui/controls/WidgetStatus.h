#pragma once

#include "message/MessageStatus.h"

#include <QFrame>

class QLabel;
class QLineEdit;

/// One row of the status window: a label and a value.
class WidgetStatus : public QFrame
{
    Q_OBJECT

public:
    explicit WidgetStatus(QWidget* parent = nullptr);

    /// Shows the entry; a colour name that cannot be read gives the look of an invalid colour.
    void set(const zul::DeviceStatusEntry& entry);

    QString label() const;
    QString value() const;
    QColor valueColor() const;

private:
    QLabel* m_label;
    QLineEdit* m_value;
};
