#include "gui/traffic/Widget825Raw.h"

#include "gui/controls/NumberText.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtSpinBox.h"
#include "gui/controls/WheelGuard.h"
#include "gui/traffic/PayloadBlock.h"
#include "traffic/MessageEntry.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>

#include <algorithm>

namespace layout825 = zul::arinc825;
using gui::PayloadBlock;
using gui::QwtComboBox;

namespace {

constexpr int minimumWidthPixels = 400;
constexpr int firstHeight = 50;
constexpr int extendedIdBits = 29;
constexpr int gap = 1;
constexpr int numberWidth = 49;
constexpr int docWidth = 64;
constexpr int rciWidth = 40;
constexpr int flagWidth = 16;

} // namespace

Widget825Raw::Widget825Raw(QWidget* parent) : PayloadEditor(parent)
{
    setMinimumWidth(minimumWidthPixels);
    auto* head = new QGridLayout;
    buildHead(head);
    m_pages = new QStackedWidget(this);
    m_pages->setObjectName(QStringLiteral("fields"));
    m_pages->addWidget(buildDataPage());
    m_pages->addWidget(buildAddressPage());
    m_pages->addWidget(buildServicePage());
    buildPayload();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(gui::editorGap, 0, gui::editorGap, 0);
    layout->setSpacing(gui::editorGap);
    layout->addLayout(head);
    layout->addWidget(m_pages);
    layout->addWidget(payload(), 1);

    connect(m_mode, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &Widget825Raw::slotMode);
    connect(m_lcc, QOverload<int>::of(&QwtComboBox::signalActivated), this, &Widget825Raw::slotLcc);
    connect(payload(), &PayloadBlock::signalByteCount, this, &Widget825Raw::slotDlc);
    connect(payload(), &PayloadBlock::signalData, this, &Widget825Raw::slotData);
    msg().mode = messageentry::arinc825Mode(msg().mode);
    updateDialog();
    setFixedHeight(firstHeight); // until a message comes
}

Widget825Raw::~Widget825Raw() = default;

void Widget825Raw::buildHead(QGridLayout* layout)
{
    m_mode = makeModeBox(extendedIdBits);
    m_mode->setFixedSize(gui::modeWidth, gui::editorRowHeight);
    m_lcc = makeComboBox("lcc");
    m_lcc->setFixedSize(gui::modeWidth, gui::editorRowHeight);
    m_lcc->setToolTip(QLatin1String(layout825::channelSelectionToolTip));
    for (const layout825::Channel& channel : layout825::channels) {
        m_lcc->addItem(QLatin1String(channel.name), static_cast<int>(channel.lcc));
    }
    auto* lccLabel = new QLabel(QStringLiteral("LCC"), this);
    lccLabel->setToolTip(QStringLiteral("LCC Logical Communication Channel"));
    layout->setHorizontalSpacing(gui::editorGap);
    layout->setVerticalSpacing(gap);
    layout->addWidget(new QLabel(QStringLiteral("Mode"), this), 0, 0);
    layout->addWidget(m_mode, 0, 1);
    layout->addWidget(lccLabel, 1, 0);
    layout->addWidget(m_lcc, 1, 1);
    layout->setRowStretch(2, 1);
}

QGridLayout* Widget825Raw::makePage(QWidget* page)
{
    auto* layout = new QGridLayout(page);
    layout->setContentsMargins(gui::editorGap, 0, gui::editorGap, 0);
    layout->setHorizontalSpacing(gui::editorGap);
    layout->setVerticalSpacing(gap);
    layout->setRowMinimumHeight(0, gui::editorRowHeight);
    layout->setRowStretch(2, 1);
    return layout;
}

QWidget* Widget825Raw::buildDataPage()
{
    namespace names = layout825::names;
    namespace field = layout825::data;
    auto* page = new QWidget(this);
    QGridLayout* layout = makePage(page);
    addNumber(layout, "Src FID", names::sourceFid, numberWidth, field::sfid, field::sfid.max(),
              &Widget825Raw::slotSrcFid);
    addFlag(layout, " FSB ", names::fsbDataFlag, field::fsb, &Widget825Raw::slotFsb)
        ->setToolTip(QLatin1String(names::functionalStatusBit));
    addFlag(layout, " LCL ", names::localDataBit, field::lcl, &Widget825Raw::slotLcl);
    addFlag(layout, " PVT ", names::privateDataBit, field::pvt, &Widget825Raw::slotPvt);
    addNumber(layout, "DOC", names::dataObjectCode, docWidth, field::doc, layout825::maxDocEntry,
              &Widget825Raw::slotDoc);
    addRci(layout);
    layout->setColumnStretch(layout->columnCount(), 1);
    return page;
}

QWidget* Widget825Raw::buildAddressPage()
{
    namespace names = layout825::names;
    namespace field = layout825::directed;
    auto* page = new QWidget(this);
    QGridLayout* layout = makePage(page);
    addNumber(layout, "SA", names::sourceAddress, numberWidth, field::sa, field::sa.max(),
              &Widget825Raw::slotSrcAddress);
    addNumber(layout, "DA", names::destinationAddress, numberWidth, field::da, field::da.max(),
              &Widget825Raw::slotDestAddress);
    addNumber(layout, "SP", names::sourcePort, numberWidth, field::sp, field::sp.max(),
              &Widget825Raw::slotSrcPort);
    addNumber(layout, "DP", names::destinationPort, numberWidth, field::dp, field::dp.max(),
              &Widget825Raw::slotDestPort);
    layout->setColumnStretch(layout->columnCount(), 1);
    return page;
}

QWidget* Widget825Raw::buildServicePage()
{
    namespace names = layout825::names;
    namespace field = layout825::service;
    auto* page = new QWidget(this);
    QGridLayout* layout = makePage(page);
    addNumber(layout, "C-FID", names::clientFid, numberWidth, field::cfid, field::cfid.max(),
              &Widget825Raw::slotClientFid);
    addFlag(layout, " SMT ", names::serviceMessageType, field::smt, &Widget825Raw::slotSmt);
    addFlag(layout, " LCL ", names::localDataBit, field::lcl, &Widget825Raw::slotLcl);
    addFlag(layout, " PVT ", names::privateDataBit, field::pvt, &Widget825Raw::slotPvt);
    addNumber(layout, "S-FID", names::serverFid, numberWidth, field::sfid, field::sfid.max(),
              &Widget825Raw::slotServerFid);
    addNumber(layout, "SID", names::sid, numberWidth, field::sid, field::sid.max(),
              &Widget825Raw::slotSid);
    addRci(layout);
    layout->setColumnStretch(layout->columnCount(), 1);
    return page;
}

void Widget825Raw::addNumber(QGridLayout* layout, const char* label, const char* toolTip, int width,
                             layout825::IdField field, std::uint32_t maximum, Slot slot)
{
    auto* control = new gui::QwtSpinBox(0, this);
    control->setRange(0, static_cast<int>(maximum));
    control->setObjectName(QLatin1String(label));
    control->setToolTip(QLatin1String(toolTip));
    control->setFixedHeight(gui::editorRowHeight);
    gui::WheelGuard::protect(control);
    addField(layout, control, label, width)->setToolTip(QLatin1String(toolTip));
    m_numbers.push_back({control, field});
    connect(control, QOverload<int>::of(&QSpinBox::valueChanged), this, slot);
}

QLabel* Widget825Raw::addFlag(QGridLayout* layout, const char* label, const char* toolTip,
                              layout825::IdField field, Slot slot)
{
    auto* control = new QCheckBox(this);
    control->setObjectName(QString::fromLatin1(label).trimmed());
    control->setToolTip(QLatin1String(toolTip));
    control->setFixedHeight(gui::editorRowHeight);
    QLabel* below = addField(layout, control, label, flagWidth);
    below->setToolTip(QLatin1String(toolTip));
    m_flags.push_back({control, field});
    connect(control, &QCheckBox::stateChanged, this, slot);
    return below;
}

void Widget825Raw::addRci(QGridLayout* layout)
{
    QwtComboBox* control = makeComboBox("RCI");
    for (std::uint32_t i = 0; i <= layout825::rci.max(); ++i) {
        control->addItem(QString(QLatin1Char(layout825::rciLetter(i))), static_cast<int>(i));
    }
    control->setToolTip(QLatin1String(layout825::names::redundancyChannel));
    control->setFixedHeight(gui::editorRowHeight);
    addField(layout, control, "RCI", rciWidth)->setToolTip(control->toolTip());
    m_rcis.push_back(control);
    connect(control, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &Widget825Raw::slotRci);
}

void Widget825Raw::correct(SendMsg& message) const
{
    message.mode = messageentry::arinc825Mode(message.mode);
}

void Widget825Raw::applyNumberType(int numberType)
{
    for (const NumberField& number : m_numbers) {
        number.control->setNumberType(numberType);
    }
    payload()->setNumberType(numberType);
}

void Widget825Raw::feedControls()
{
    m_mode->setData(static_cast<int>(msg().mode));
    m_lcc->setData(static_cast<int>(layout825::lcc.get(msg().id)));
    for (const NumberField& number : m_numbers) {
        number.control->setValue(static_cast<int>(number.field.get(msg().id)));
    }
    for (const FlagField& flag : m_flags) {
        flag.control->setChecked(flag.field.get(msg().id) != 0);
    }
    for (QwtComboBox* rci : m_rcis) {
        rci->setData(static_cast<int>(layout825::rci.get(msg().id)));
    }
    showPage();
    feedPayload();
}

void Widget825Raw::showPage()
{
    switch (layout825::channel(msg().id).layout) {
    case layout825::Layout::Data:
        m_pages->setCurrentIndex(DataPage);
        break;
    case layout825::Layout::Directed:
        m_pages->setCurrentIndex(AddressPage);
        break;
    case layout825::Layout::Service:
        m_pages->setCurrentIndex(ServicePage);
        break;
    case layout825::Layout::None:
        break; // the page stays as it stood
    }
}

void Widget825Raw::setField(const layout825::IdField& field, int value)
{
    if (!isUpdating()) {
        msg().id = field.set(msg().id, static_cast<std::uint32_t>(value));
        notify();
    }
}

void Widget825Raw::setFlag(const layout825::IdField& field, int state)
{
    setField(field, state == Qt::Checked ? 1 : 0);
}

void Widget825Raw::slotMode(int mode)
{
    if (!isUpdating()) {
        msg().mode = static_cast<std::uint32_t>(mode);
        notify();
    }
}

void Widget825Raw::slotLcc(int lcc)
{
    if (!isUpdating()) {
        msg().id = layout825::lcc.set(msg().id, static_cast<std::uint32_t>(lcc));
        updateDialog();
        notify();
    }
}

void Widget825Raw::slotSrcFid(int value)
{
    setField(layout825::data::sfid, value);
}

void Widget825Raw::slotFsb(int state)
{
    setFlag(layout825::data::fsb, state);
}

void Widget825Raw::slotLcl(int state)
{
    setFlag(layout825::data::lcl, state);
}

void Widget825Raw::slotPvt(int state)
{
    setFlag(layout825::data::pvt, state);
}

void Widget825Raw::slotDoc(int value)
{
    setField(layout825::data::doc, value);
}

void Widget825Raw::slotRci(int value)
{
    setField(layout825::rci, value);
}

void Widget825Raw::slotSrcAddress(int value)
{
    setField(layout825::directed::sa, value);
}

void Widget825Raw::slotDestAddress(int value)
{
    setField(layout825::directed::da, value);
}

void Widget825Raw::slotSrcPort(int value)
{
    setField(layout825::directed::sp, value);
}

void Widget825Raw::slotDestPort(int value)
{
    setField(layout825::directed::dp, value);
}

void Widget825Raw::slotClientFid(int value)
{
    setField(layout825::service::cfid, value);
}

void Widget825Raw::slotSmt(int state)
{
    setFlag(layout825::service::smt, state);
}

void Widget825Raw::slotServerFid(int value)
{
    setField(layout825::service::sfid, value);
}

void Widget825Raw::slotSid(int value)
{
    setField(layout825::service::sid, value);
}

// Deliberate: it asks for no updating flag. A byte count that the spin box cannot hold thus becomes
// what it shows when it shows something else before.
void Widget825Raw::slotDlc(int, int bytes)
{
    msg().byteCount = static_cast<std::uint32_t>(bytes);
    notify();
    layOutRows();
}

// Deliberate: a byte is the low part of what is typed, 44 of 300, where the editor of plain frames
// takes the nearest.
void Widget825Raw::slotData(int index, const QString& text)
{
    if (!isUpdating()) {
        const int place = std::clamp(index, 0, messageentry::payloadBytes - 1);
        msg().data[place] = messageentry::lowByte(gui::wideNumberFromText(text));
        notify();
    }
}
