#include "gui/traffic/WidgetCanAs.h"

#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtSpinBox.h"
#include "gui/controls/WheelGuard.h"
#include "gui/traffic/ValueBits.h"
#include "gui/traffic/ValueLines.h"
#include "gui/traffic/ValueSlider.h"
#include "profile/CanAerospaceId.h"
#include "profile/DataTypes.h"
#include "traffic/CanAerospaceEntry.h"
#include "traffic/MessageEntry.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStackedWidget>

#include <array>

namespace entry = canaerospaceentry;
namespace canas = zul::canaerospace;
using gui::QwtComboBox;
using gui::QwtSpinBox;

namespace {

constexpr int minimumWidthPixels = 730;
constexpr int editorHeightPixels = 50;
constexpr int byteWidth = 54;
constexpr int dataTypeWidth = 88;
constexpr int serviceWidth = 66;
constexpr int pagesMinimumWidth = 150;
constexpr std::uint32_t allBits = 0xFFFFFFFF;

} // namespace

WidgetCanAs::WidgetCanAs(QWidget* parent) : MessageEditor(parent)
{
    setMinimumWidth(minimumWidthPixels);
    setFixedHeight(editorHeightPixels);
    auto* header = new QGridLayout;
    buildHeader(header);
    buildPages();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(gui::editorGap, 0, gui::editorGap, 0);
    layout->setSpacing(3 * gui::editorGap);
    layout->addLayout(header);
    layout->addWidget(m_pages, 1);
    connectHeader();
    connectPages();
    entry::ensureHeader(msg());
    updateDialog();
}

WidgetCanAs::~WidgetCanAs() = default;

QwtSpinBox* WidgetCanAs::makeSpinBox(const char* objectName, int maximum)
{
    auto* box = new QwtSpinBox(0, this);
    box->setObjectName(QLatin1String(objectName));
    box->setRange(0, maximum);
    gui::WheelGuard::protect(box);
    return box;
}

void WidgetCanAs::buildHeader(QGridLayout* layout)
{
    m_canId = makeSpinBox("canId", messageentry::idEntryMaximum(0));
    m_mode = makeModeBox();
    m_nodeId = makeSpinBox("nodeId", gui::maxByte);
    m_dataType = makeComboBox("dataType");
    for (std::size_t i = 0; i < zul::canAerospaceTypes.size(); ++i) {
        m_dataType->addItem(QLatin1String(zul::canAerospaceTypes[i].selectionName),
                            static_cast<int>(i));
    }
    m_service = makeComboBox("service");
    m_service->setEditable(true);
    m_service->setInsertPolicy(QComboBox::NoInsert);
    m_service->setCompleter(nullptr); // it would turn "1" into "1 NSS" while it is typed
    for (std::size_t i = 0; i < canas::services.size(); ++i) {
        const int code = static_cast<int>(i);
        m_service->addItem(QString::asprintf("%d %s", code, canas::services[i]), code);
    }
    m_messageId = makeSpinBox("messageId", gui::maxByte);

    layout->setHorizontalSpacing(gui::editorGap);
    layout->setVerticalSpacing(gui::editorGap);
    layout->setContentsMargins(0, gui::editorGap, 0, 0);
    addField(layout, m_canId, "CanId", gui::canIdWidth);
    addField(layout, m_mode, "Mode", gui::modeWidth);
    addField(layout, m_nodeId, "NodeId", byteWidth);
    addField(layout, m_dataType, "Data Type", dataTypeWidth);
    addField(layout, m_service, "Service", serviceWidth);
    addField(layout, m_messageId, "MsgId", byteWidth);
    for (QWidget* field :
         std::array<QWidget*, 6>{m_canId, m_mode, m_nodeId, m_dataType, m_service, m_messageId}) {
        field->setFixedHeight(gui::editorFieldHeight);
    }
    layout->setRowStretch(2, 1);
}

void WidgetCanAs::buildPages()
{
    m_pages = new QStackedWidget(this);
    m_pages->setObjectName(QStringLiteral("value"));
    m_pages->setMinimumWidth(pagesMinimumWidth);
    m_line = new gui::ValueLines(1, m_pages);
    m_twoInputs = new gui::ValueLines(2, m_pages);
    m_fourInputs = new gui::ValueLines(4, m_pages);
    m_bits = new gui::ValueBits(m_pages);
    m_slider = new gui::ValueSlider(m_pages);
    for (gui::ValueLines* lines : {m_line, m_twoInputs, m_fourInputs}) {
        lines->setContentsMargins(0, gui::editorGap, 0, 0);
        m_pages->addWidget(lines);
    }
    m_pages->addWidget(m_bits);
    m_pages->addWidget(m_slider);
}

void WidgetCanAs::connectHeader()
{
    const auto valueChanged = QOverload<int>::of(&QSpinBox::valueChanged);
    const auto activated = QOverload<int>::of(&QwtComboBox::signalActivated);
    connect(m_canId, valueChanged, this, &WidgetCanAs::slotCanId);
    connect(m_mode, activated, this, &WidgetCanAs::slotMode);
    connect(m_nodeId, valueChanged, this, &WidgetCanAs::slotNodeId);
    connect(m_dataType, activated, this, &WidgetCanAs::slotMessageType);
    connect(m_service, &QComboBox::editTextChanged, this, &WidgetCanAs::slotServiceId);
    connect(m_messageId, valueChanged, this, &WidgetCanAs::slotMessageId);
}

void WidgetCanAs::connectPages()
{
    using TextSlot = void (WidgetCanAs::*)(const QString&);
    static constexpr std::array<TextSlot, 2> two{&WidgetCanAs::slotInput21,
                                                 &WidgetCanAs::slotInput22};
    static constexpr std::array<TextSlot, 4> four{
        &WidgetCanAs::slotInput41, &WidgetCanAs::slotInput42, &WidgetCanAs::slotInput43,
        &WidgetCanAs::slotInput44};
    connect(m_line, &gui::ValueLines::signalText, this,
            [this](int, const QString& text) { slotInput11(text); });
    connect(m_twoInputs, &gui::ValueLines::signalText, this,
            [this](int input, const QString& text) {
                (this->*two.at(static_cast<std::size_t>(input)))(text);
            });
    connect(m_fourInputs, &gui::ValueLines::signalText, this,
            [this](int input, const QString& text) {
                (this->*four.at(static_cast<std::size_t>(input)))(text);
            });
    connect(m_bits, &gui::ValueBits::signalBit, this, &WidgetCanAs::slotBinary);
    connect(m_bits, &gui::ValueBits::signalSetAll, this, &WidgetCanAs::slotBinarySetAll);
    connect(m_bits, &gui::ValueBits::signalResetAll, this, &WidgetCanAs::slotBinaryResetAll);
    connect(m_slider, &gui::ValueSlider::signalActual, this, &WidgetCanAs::slotActual);
    connect(m_slider, &gui::ValueSlider::signalSlider, this, &WidgetCanAs::slotSlider);
    connect(m_slider, &gui::ValueSlider::signalMin, this, &WidgetCanAs::slotMin);
    connect(m_slider, &gui::ValueSlider::signalMax, this, &WidgetCanAs::slotMax);
}

void WidgetCanAs::correct(SendMsg& message) const
{
    entry::ensureHeader(message);
}

void WidgetCanAs::applyNumberType(int numberType)
{
    for (QwtSpinBox* box : {m_canId, m_nodeId, m_messageId}) {
        box->setNumberType(numberType);
    }
}

void WidgetCanAs::feedControls()
{
    feedHeader();
    showPage();
    feedPage();
}

void WidgetCanAs::feedHeader()
{
    msg().id = messageentry::boundedId(msg().id, msg().mode);
    const int id = static_cast<int>(msg().id);
    const int maximum = messageentry::idEntryMaximum(msg().mode);
    if (m_canId->maximum() != maximum) { // setting it ends a step that is being repeated
        m_canId->setMaximum(maximum);
    }
    if (m_canId->value() != id) { // else what is being typed stays as it is, "0x1" for instance
        m_canId->setValue(id);
    }
    m_mode->setData(static_cast<int>(msg().mode));
    m_nodeId->setValue(msg().data[canas::nodeIdByte]);
    m_dataType->setData(entry::dataType(msg()));
    feedService();
    m_messageId->setValue(msg().data[canas::messageCodeByte]);
}

void WidgetCanAs::feedService()
{
    const std::uint8_t code = msg().data[canas::serviceCodeByte];
    if (entry::hasServiceEntry(msg().id, code)) {
        m_service->setData(code);
        return;
    }
    m_service->setCurrentIndex(-1);
    m_service->setEditText(entry::serviceText(code, numberType()));
}

void WidgetCanAs::showPage()
{
    for (gui::ValueLines* lines : {m_line, m_twoInputs, m_fourInputs}) {
        lines->setMaxLength(entry::openLength);
    }
    const entry::ValueEntry value = entry::valueEntry(msg());
    switch (value.page) {
    case entry::ValuePage::SingleLine:
        m_pages->setCurrentWidget(m_line);
        m_line->setMaxLength(entry::lineLength(msg()));
        if (entry::isKnownType(msg())) {
            m_line->enableFirst(value.count);
        }
        break;
    case entry::ValuePage::TwoInputs:
        m_pages->setCurrentWidget(m_twoInputs);
        m_twoInputs->enableFirst(value.count);
        break;
    case entry::ValuePage::FourInputs:
        m_pages->setCurrentWidget(m_fourInputs);
        m_fourInputs->enableFirst(value.count);
        break;
    case entry::ValuePage::Binary:
        m_pages->setCurrentWidget(m_bits);
        m_bits->enableFrom(entry::lowestBit(msg()));
        break;
    case entry::ValuePage::Slider:
        m_pages->setCurrentWidget(m_slider);
        break;
    }
}

void WidgetCanAs::feedPage()
{
    m_line->setText(0, entry::lineText(msg(), numberType()));
    for (int i = 0; i < m_twoInputs->count(); ++i) {
        m_twoInputs->setText(i, entry::shortText(msg(), i, numberType()));
    }
    for (int i = 0; i < m_fourInputs->count(); ++i) {
        m_fourInputs->setText(i, entry::byteText(msg(), i, numberType()));
    }
    m_bits->setWord(entry::valueWord(msg()));
    m_slider->show(msg());
}

void WidgetCanAs::slotCanId(int id)
{
    if (!isUpdating()) {
        msg().id = static_cast<std::uint32_t>(id);
        updateDialog();
        notify();
    }
}

void WidgetCanAs::slotMode(int mode)
{
    if (!isUpdating()) {
        msg().mode = static_cast<std::uint32_t>(mode);
        updateDialog();
        notify();
    }
}

void WidgetCanAs::slotNodeId(int nodeId)
{
    storeByte(canas::nodeIdByte, nodeId);
}

void WidgetCanAs::slotMessageType(int code)
{
    if (!isUpdating()) {
        entry::setDataType(msg(), code);
        updateDialog();
        notify();
    }
}

void WidgetCanAs::slotServiceId(const QString& text)
{
    storeByte(canas::serviceCodeByte, entry::serviceCode(text));
}

void WidgetCanAs::slotMessageId(int code)
{
    storeByte(canas::messageCodeByte, code);
}

void WidgetCanAs::storeByte(int index, int value)
{
    if (!isUpdating()) {
        msg().data[index] = static_cast<std::uint8_t>(value);
        notify();
    }
}

void WidgetCanAs::slotInput11(const QString& text)
{
    if (!isUpdating()) {
        entry::enterLine(msg(), text);
        notify();
    }
}

void WidgetCanAs::slotInput21(const QString& text)
{
    enterShort(0, text);
}

void WidgetCanAs::slotInput22(const QString& text)
{
    enterShort(1, text);
}

void WidgetCanAs::slotInput41(const QString& text)
{
    enterByte(0, text);
}

void WidgetCanAs::slotInput42(const QString& text)
{
    enterByte(1, text);
}

void WidgetCanAs::slotInput43(const QString& text)
{
    enterByte(2, text);
}

void WidgetCanAs::slotInput44(const QString& text)
{
    enterByte(3, text);
}

void WidgetCanAs::enterShort(int input, const QString& text)
{
    if (!isUpdating()) {
        entry::enterShort(msg(), input, text);
        notify();
    }
}

void WidgetCanAs::enterByte(int input, const QString& text)
{
    if (!isUpdating()) {
        entry::enterByte(msg(), input, text);
        notify();
    }
}

void WidgetCanAs::slotBinary(int bit)
{
    if (!isUpdating()) {
        entry::setValueBit(msg(), bit, m_bits->isChecked(bit));
        notify();
    }
}

void WidgetCanAs::slotBinarySetAll()
{
    setAllBits(allBits);
}

void WidgetCanAs::slotBinaryResetAll()
{
    setAllBits(0);
}

// Deliberate: all four bytes are written, also those that the data type does not have.
void WidgetCanAs::setAllBits(std::uint32_t word)
{
    if (!isUpdating()) {
        entry::setValueWord(msg(), word);
        updateDialog();
        notify();
    }
}

void WidgetCanAs::slotActual(const QString& text)
{
    if (!isUpdating()) {
        entry::setActual(msg(), entry::singleOf(text));
        m_slider->moveSlider(msg());
        notify();
    }
}

void WidgetCanAs::slotSlider(int v)
{
    if (!isUpdating()) {
        entry::setActual(msg(), entry::actualAt(msg(), v));
        updateDialog();
        notify();
    }
}

void WidgetCanAs::slotMin()
{
    if (!isUpdating()) {
        msg().min = entry::singleOf(m_slider->minimumText());
        updateDialog();
        notify();
    }
}

void WidgetCanAs::slotMax()
{
    if (!isUpdating()) {
        msg().max = entry::singleOf(m_slider->maximumText());
        updateDialog();
        notify();
    }
}
