#pragma once

#include "gui/controls/QwtComboBox.h"
#include "gui/editor/NameBox.h"
#include "gui/editor/RealEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QString>
#include <QWidget>

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

class QFormLayout;
class QLabel;
class QPushButton;

namespace gui {

/// How a field of a page is edited.
enum class FieldKind {
    Line,     ///< one line of text
    Text,     ///< several lines of text
    Number,   ///< whole number
    Real,     ///< any finite number
    Choice,   ///< one of a list, whose entries stand for numbers
    Name,     ///< one of the names of other records
    Suggest,  ///< one line of text, for which a list makes suggestions
    Check,    ///< yes or no
    Position, ///< byte and bit: two numbers, whose names end in "Byte" and "Bit"
};

/// One field of a page of an editor. Pages are constant tables of these.
struct EditorField
{
    FieldKind kind = FieldKind::Line;
    const char* name = "";  ///< of the control; unique in its editor
    const char* label = ""; ///< left of the control
    const char* toolTip = "";
    int lowest = 0;        ///< of Number, and of the byte of a Position
    int highest = 0;       ///< of Number, and of the byte of a Position
    const char* unit = ""; ///< behind the number, such as " ms"
    const char* text = ""; ///< behind the box of a Check
    bool isBeside = false; ///< right of the control before, under whose label it stands
};

/// A page of an editor: a title, and below it labelled controls, one below the other. The tool tip
/// of a number tells its range, unless it belongs to a position that has a text of its own.
/// Controls are asked for by the names of the table.
class EditorForm : public QWidget
{
    Q_OBJECT

public:
    /// `fields` has `count` entries.
    EditorForm(const char* title, const EditorField* fields, std::size_t count, QWidget* parent);

    // Show a value. A number outside the range of its control is shown as the nearest one, until
    // the user types one, be it the same; a choice without such an entry shows nothing.
    void setText(const char* name, const QString& text);
    void setNumber(const char* name, qint64 value) const;
    /// Shows the nearest whole number.
    void setRounded(const char* name, double value) const;
    void setReal(const char* name, double value) const;
    void setChoice(const char* name, int code) const;
    void setChecked(const char* name, bool isChecked) const;
    /// Name as of the table, without "Byte" or "Bit".
    void setPosition(const char* name, qint64 byte, qint64 bit) const;

    /// What a choice offers, in this order, as number and text; nothing is selected then.
    void setChoices(const char* name, const std::vector<std::pair<int, QString>>& choices) const;
    /// What a Name or a Suggest offers, in this order.
    void setNames(const char* name, const QStringList& names);

    /// Adds a button below the fields.
    QPushButton& addButton(const char* name, const char* text);

    /// Another tool tip and range of a Number, such as `field` tells them; its name is left alone.
    void setRange(const char* name, const EditorField& field) const;

    /// The control of this name.
    template <typename Control>
    Control& control(const char* name) const
    {
        auto* found = qobject_cast<Control*>(m_controls.at(QLatin1String(name)));
        Q_ASSERT(found != nullptr);
        return *found;
    }
    /// The label left of a field.
    QLabel& label(const char* name) const;

    /// Calls `slot` with every text that a Line, a Text or a Suggest takes, or with the name that
    /// the user chose.
    template <typename Receiver>
    void connectField(const char* name, Receiver* receiver, void (Receiver::*slot)(const QString&))
    {
        if (auto* text = qobject_cast<QPlainTextEdit*>(m_controls.at(QLatin1String(name)))) {
            connect(text, &QPlainTextEdit::textChanged, receiver,
                    [text, receiver, slot] { (receiver->*slot)(plainText(*text)); });
        } else if (auto* names = qobject_cast<NameBox*>(m_controls.at(QLatin1String(name)))) {
            connect(names, &NameBox::signalChosen, receiver, slot);
        } else if (auto* box = qobject_cast<QComboBox*>(m_controls.at(QLatin1String(name)))) {
            connect(box, &QComboBox::editTextChanged, receiver, slot);
        } else {
            connect(&control<QLineEdit>(name), &QLineEdit::textChanged, receiver, slot);
        }
    }
    /// Calls `slot` with every value of a Number, or with the number of the entry of a Choice that
    /// the user chose.
    template <typename Receiver>
    void connectField(const char* name, Receiver* receiver, void (Receiver::*slot)(int))
    {
        if (auto* choice = qobject_cast<QwtComboBox*>(m_controls.at(QLatin1String(name)))) {
            connect(choice, QOverload<int>::of(&QwtComboBox::signalActivated), receiver, slot);
        } else {
            connect(&control<QSpinBox>(name), QOverload<int>::of(&QSpinBox::valueChanged), receiver,
                    slot);
        }
    }
    /// Calls `slot` with every number that a Real takes.
    template <typename Receiver>
    void connectField(const char* name, Receiver* receiver, void (Receiver::*slot)(double))
    {
        connect(&control<RealEdit>(name), &RealEdit::signalValue, receiver, slot);
    }
    /// Calls `slot` when a Check is set or cleared.
    template <typename Receiver>
    void connectField(const char* name, Receiver* receiver, void (Receiver::*slot)(bool))
    {
        connect(&control<QCheckBox>(name), &QCheckBox::toggled, receiver, slot);
    }

private:
    void addField(QFormLayout& form, const EditorField& field);
    static void addBeside(QFormLayout& form, QWidget* control);
    QWidget* makeControl(const EditorField& field);
    QWidget* makeText();
    QWidget* makeChoice();
    QWidget* makeSuggest();
    QSpinBox* makeNumber(const EditorField& field, const QString& name);
    QWidget* makePosition(const EditorField& field);
    /// As typed; Qt's own function makes blanks of those that do not break.
    static QString plainText(const QPlainTextEdit& text);
    static void takeNearest(QSpinBox& number);
    static void setRange(const EditorField& field, QSpinBox& number);
    void keep(QWidget* control, const QString& name);

    std::map<QString, QWidget*> m_controls; ///< by name; positions as two
    std::map<QString, QLabel*> m_labels;    ///< by name of the field
};

} // namespace gui
