#include "gui/traffic/MessageEditor.h"

#include "gui/controls/Colors.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/WheelGuard.h"
#include "traffic/MessageModes.h"

#include <QGridLayout>
#include <QLabel>
#include <QScopedValueRollback>

namespace gui {

namespace {

constexpr int raisedPanel = QFrame::Panel | QFrame::Raised;
constexpr int fontPixels = 10;

} // namespace

MessageEditor::MessageEditor(QWidget* parent) : QFrame(parent)
{
    setFrameStyle(raisedPanel);
    QFont small = font();
    small.setPixelSize(fontPixels);
    setFont(small);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, colors::editor);
    colors.setColor(QPalette::Base, colors::entry);
    colors.setColor(QPalette::Disabled, QPalette::Base, colors::unusedEntry);
    setPalette(colors);
    setBackgroundRole(QPalette::Window); // in a table it would be that of the table's cells
    setAutoFillBackground(true);
}

MessageEditor::~MessageEditor() = default;

void MessageEditor::setMessage(int index, const SendMsg& message)
{
    m_index = index;
    m_msg = message;
    correct(m_msg);
    updateDialog();
}

void MessageEditor::setNumberType(int numberType)
{
    m_numberType = numberType;
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        applyNumberType(numberType);
    }
    updateDialog();
}

void MessageEditor::correct(SendMsg&) const {}

void MessageEditor::updateDialog()
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    feedControls();
}

void MessageEditor::notify()
{
    emit signalChanged(m_index, m_msg);
}

QLabel* MessageEditor::makeLabel(const char* text)
{
    auto* label = new QLabel(QLatin1String(text), this);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    return label;
}

QwtComboBox* MessageEditor::makeComboBox(const char* objectName)
{
    auto* box = new QwtComboBox(0, this);
    box->setObjectName(QLatin1String(objectName));
    QPalette colors = box->palette();
    colors.setColor(QPalette::Button, colors::entry);
    box->setPalette(colors);
    WheelGuard::protect(box);
    return box;
}

QwtComboBox* MessageEditor::makeModeBox(int idBits)
{
    QwtComboBox* box = makeComboBox("mode");
    for (const MessageModeTexts& mode : messageModes) {
        if (idBits == 0 || mode.idBits == idBits) {
            box->addItem(QLatin1String(mode.text), mode.mode);
        }
    }
    return box;
}

QLabel* MessageEditor::addField(QGridLayout* layout, QWidget* control, const char* label, int width)
{
    const int column = layout->count() == 0 ? 0 : layout->columnCount();
    control->setFixedWidth(width);
    layout->addWidget(control, 0, column, Qt::AlignHCenter);
    QLabel* below = makeLabel(label);
    layout->addWidget(below, 1, column);
    return below;
}

} // namespace gui
