#pragma once

#include "gui/traffic/EditorLook.h"
#include "project/SendMsg.h"

#include <QFrame>

class QGridLayout;
class QLabel;

namespace gui {

class QwtComboBox;

/// Base of the editors in the rows of the Transmit window. An editor works on a copy of its line,
/// and gives it back whole after every change.
class MessageEditor : public QFrame
{
    Q_OBJECT

public:
    ~MessageEditor() override;

    /// Takes a copy of the line at `index` of the window, and shows it.
    void setMessage(int index, const SendMsg& message);
    /// The line has got another name.
    void setName(const QString& name) { m_msg.name = name; }
    /// 0 decimal, 1 hexadecimal.
    void setNumberType(int numberType);

    int index() const { return m_index; }
    const SendMsg& message() const { return m_msg; }
    int numberType() const { return m_numberType; }

signals:
    void signalChanged(int index, const SendMsg& msg);

protected:
    explicit MessageEditor(QWidget* parent);

    /// What the editor cannot show as it stands is corrected as a new line comes in. Nothing here.
    virtual void correct(SendMsg& message) const;
    virtual void applyNumberType(int numberType) = 0;
    /// Feeds every control from the line; no slot changes anything meanwhile.
    virtual void feedControls() = 0;
    /// Runs `feedControls` with the updating flag set.
    void updateDialog();

    SendMsg& msg() { return m_msg; }
    bool isUpdating() const { return m_updating; }
    /// Tells that the line has changed.
    void notify();

    /// A small label, centered.
    QLabel* makeLabel(const char* text);
    /// A selection box in the editor's look.
    QwtComboBox* makeComboBox(const char* objectName);
    /// That of the modes whose identifiers have so many bits; of all with 0.
    QwtComboBox* makeModeBox(int idBits = 0);
    /// Puts `control` in the upper row of `layout` behind what is there, and its label below, which
    /// it returns.
    QLabel* addField(QGridLayout* layout, QWidget* control, const char* label, int width);

private:
    SendMsg m_msg;
    int m_index = 0;
    int m_numberType = 0;
    bool m_updating = false;
};

} // namespace gui
