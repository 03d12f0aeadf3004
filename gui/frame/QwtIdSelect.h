#pragma once

#include "profile/ProfileParameter.h"

#include <QFrame>

class QSpinBox;

namespace gui {

/// Names one identifier: typed, or chosen in the `DialogSelectId`.
class QwtIdSelect : public QFrame
{
    Q_OBJECT

public:
    explicit QwtIdSelect(int index = 0, QWidget* parent = nullptr);

    int index() const { return m_index; }
    /// The identifier, from 0 to that of 29 bits.
    int id() const { return m_id; }
    /// Shows the identifier, clamped, without a signal.
    void setId(int id);
    /// What was chosen last; the identifier may have been typed since.
    const ProfileParameter& parameter() const { return m_parameter; }

signals:
    /// The user typed or chose an identifier.
    void signalId(int id);
    /// The user chose one; comes behind `signalId`.
    void signalParameter(ProfileParameter para);
    /// The user chose one; comes behind `signalParameter`.
    void signalSelect();

public slots:
    /// Lets the user choose. Nothing happens if the user cancels.
    void slotSelect();
    void slotValueChanged(int value);

private:
    int m_index;
    int m_id = 0;
    ProfileParameter m_parameter;
    QSpinBox* m_spinBox;
};

} // namespace gui
