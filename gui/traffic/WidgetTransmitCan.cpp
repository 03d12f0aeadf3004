#include "gui/traffic/WidgetTransmitCan.h"

#include "gui/controls/NumberText.h"
#include "gui/controls/QwtByteCount.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtHexValidator.h"
#include "gui/controls/QwtLineEdit.h"
#include "gui/controls/QwtSpinBox.h"
#include "gui/controls/WheelGuard.h"
#include "gui/traffic/PayloadBlock.h"
#include "traffic/MessageEntry.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

namespace {

constexpr int gap = 1;

} // namespace

WidgetTransmitCan::WidgetTransmitCan(QWidget* parent) : PayloadEditor(parent)
{
    m_canId = new gui::QwtSpinBox(0, this);
    m_canId->setObjectName(QStringLiteral("canId"));
    m_canId->setFixedSize(gui::canIdWidth, gui::editorRowHeight);
    gui::WheelGuard::protect(m_canId);
    m_mode = makeModeBox();
    m_mode->setFixedSize(gui::canIdWidth, gui::editorRowHeight);
    buildPayload();
    payload()->setValidator(new gui::QwtHexValidator(0, gui::maxByte, this));

    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(gui::editorGap);
    fields->setVerticalSpacing(gap);
    fields->addWidget(new QLabel(QStringLiteral("CanId"), this), 0, 0);
    fields->addWidget(m_canId, 0, 1);
    fields->addWidget(new QLabel(QStringLiteral("Mode"), this), 1, 0);
    fields->addWidget(m_mode, 1, 1);
    fields->setRowStretch(2, 1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(gui::editorGap, 0, gui::editorGap, 0);
    layout->setSpacing(gui::editorGap);
    layout->addLayout(fields);
    layout->addWidget(payload(), 1);

    connect(m_canId, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &WidgetTransmitCan::slotCanId);
    connect(m_mode, QOverload<int>::of(&gui::QwtComboBox::signalActivated), this,
            &WidgetTransmitCan::slotMode);
    connect(payload(), &gui::PayloadBlock::signalByteCount, this, &WidgetTransmitCan::slotBc);
    connect(payload(), &gui::PayloadBlock::signalData, this, &WidgetTransmitCan::slotData);
    updateDialog();
}

WidgetTransmitCan::~WidgetTransmitCan() = default;

void WidgetTransmitCan::applyNumberType(int numberType)
{
    m_canId->setNumberType(numberType);
    payload()->setNumberType(numberType);
}

void WidgetTransmitCan::feedControls()
{
    msg().id = messageentry::boundedId(msg().id, msg().mode);
    m_canId->setMaximum(messageentry::idEntryMaximum(msg().mode));
    m_canId->setValue(static_cast<int>(msg().id));
    m_mode->setData(static_cast<int>(msg().mode));
    feedPayload();
}

void WidgetTransmitCan::slotCanId(int id)
{
    if (!isUpdating()) {
        msg().id = static_cast<std::uint32_t>(id);
        notify();
    }
}

void WidgetTransmitCan::slotMode(int mode)
{
    if (!isUpdating()) {
        msg().mode = static_cast<std::uint32_t>(mode);
        updateDialog();
        notify();
    }
}

void WidgetTransmitCan::slotBc(int, int bytes)
{
    if (!isUpdating()) {
        msg().byteCount = static_cast<std::uint32_t>(bytes);
        notify();
        layOutRows();
    }
}

void WidgetTransmitCan::slotData(int index, const QString& text)
{
    if (!isUpdating()) {
        const int place = std::clamp(index, 0, messageentry::payloadBytes - 1);
        msg().data[place] = messageentry::boundedByte(gui::wideNumberFromText(text));
        notify();
    }
}
