#include "gui/frame/QwtIdSelect.h"

#include "gui/controls/QwtSpinBox.h"
#include "gui/frame/DialogSelectId.h"
#include "project/Filter.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace gui {

namespace {

constexpr int frame = 49; // a box with sunken lines
constexpr int margin = 2;
constexpr int buttonStretch = 1;
constexpr int spinBoxStretch = 2;

int shownId(std::uint32_t id)
{
    constexpr auto most = static_cast<std::uint32_t>(Filter::maxIdentifier);
    return static_cast<int>(std::min(id, most));
}

} // namespace

QwtIdSelect::QwtIdSelect(int index, QWidget* parent)
    : QFrame(parent), m_index(index), m_spinBox(new QwtSpinBox(index, this))
{
    setFrameStyle(frame);
    auto* button = new QPushButton(QStringLiteral("Select Id"), this);
    button->setObjectName(QStringLiteral("selectId"));
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false); // else Return in a dialog's field would press it
    m_spinBox->setRange(0, Filter::maxIdentifier);
    setFocusProxy(m_spinBox);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(button, buttonStretch);
    layout->addWidget(m_spinBox, spinBoxStretch);
    connect(button, &QPushButton::clicked, this, &QwtIdSelect::slotSelect);
    connect(m_spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &QwtIdSelect::slotValueChanged);
}

void QwtIdSelect::setId(int id)
{
    const QSignalBlocker blocker(m_spinBox);
    m_spinBox->setValue(id);
    m_id = m_spinBox->value();
}

void QwtIdSelect::slotSelect()
{
    const QPointer<QwtIdSelect> self(this);
    const QPointer<DialogSelectId> guard(&DialogSelectId::instance());
    const int result = guard->choose(window());
    // Frames went on coming meanwhile, and windows may have gone.
    const DialogSelectId* const dialog = guard.data();
    if (result != QDialog::Accepted || self == nullptr || dialog == nullptr) {
        return;
    }
    m_parameter = dialog->chosenParameter();
    setId(shownId(dialog->chosenId()));
    emit signalId(m_id);
    emit signalParameter(m_parameter);
    emit signalSelect();
}

void QwtIdSelect::slotValueChanged(int value)
{
    m_id = value;
    emit signalId(m_id);
}

} // namespace gui
