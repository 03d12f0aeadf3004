#pragma once

#include "profile/ProfileParameter.h"

#include <QFrame>

/// A strip of the payload's 64 bits, those that a parameter occupies in green.
class WidgetSppEpp : public QFrame
{
    Q_OBJECT

public:
    explicit WidgetSppEpp(QWidget* parent = nullptr);

    /// Shows the positions of the parameter.
    void setParameter(const ProfileParameter& parameter);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ProfileParameter m_parameter;
};
