#include "gui/measure/DialogDial.h"

#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtLineEdit.h"
#include "gui/frame/ColorDialogs.h"
#include "gui/frame/MessageGuiDialog.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/measure/DialLights.h"
#include "gui/measure/DialNumber.h"
#include "gui/measure/WidgetDial.h"
#include "measure/DialDigits.h"
#include "measure/DialForms.h"
#include "measure/DialScale.h"
#include "message/MessageContainer.h"
#include "profile/DataTypes.h"
#include "profile/ProfileNumbers.h"
#include "profile/ValueCodec.h"
#include "project/ObjectDial.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace gui {

namespace {

constexpr int swatchExtent = 12;   // pixels
constexpr int labelsPerRow = 2;    // of the properties
constexpr int rangePrecision = 12; // significant digits of minimum and maximum

QwtLineEdit* makeLineEdit(const char* objectName, QWidget* parent)
{
    auto* lineEdit = new QwtLineEdit(0, parent);
    lineEdit->setObjectName(QLatin1String(objectName));
    return lineEdit;
}

/// The properties stand in pairs, label and control, two of them in a row.
void addProperty(QGridLayout& grid, int number, const char* label, QWidget* control)
{
    const int row = number / labelsPerRow;
    const int column = number % labelsPerRow * 2;
    auto* text = new QLabel(QLatin1String(label), control->parentWidget());
    grid.addWidget(text, row, column, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(control, row, column + 1);
}

} // namespace

DialogDial::DialogDial(ObjectDial* object, QWidget* parent)
    : DialogInput(object, parent), m_dial(object)
{
    build();
    connectSelections();
    connectProperties();
    showSettings();
}

DialogDial::~DialogDial() = default;

void DialogDial::build()
{
    buildSelections();
    buildPages();
    m_showProperties = new QCheckBox(this);
    m_showProperties->setObjectName(QStringLiteral("showProperties"));
    m_panel = buildPanel();

    auto* selections = new QHBoxLayout;
    selections->addWidget(m_idSelect, 1);
    selections->addWidget(m_displayType);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    layout->setSpacing(windowMargin);
    layout->addWidget(header());
    layout->addLayout(selections);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_showProperties);
    layout->addWidget(m_panel);
    setMinimumWidth(minimumWindowWidth);
}

void DialogDial::buildSelections()
{
    m_idSelect = new QwtIdSelect(0, this);
    m_displayType = new QwtComboBox(0, this);
    m_displayType->setObjectName(QStringLiteral("displayType"));
    for (const DialFormText& form : dialForms) {
        m_displayType->addItem(QLatin1String(form.text), static_cast<int>(form.form));
    }
}

void DialogDial::buildPages()
{
    m_pages = new QStackedWidget(this);
    m_lights = new DialLights(m_pages);
    m_needle = new WidgetDial(m_pages);
    m_number = new DialNumber(m_pages);
    // In the order of the forms.
    m_pages->addWidget(m_lights);
    m_pages->addWidget(m_needle);
    m_pages->addWidget(m_number);
}

QWidget* DialogDial::buildPanel()
{
    auto* panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("properties"));
    m_name = makeLineEdit("name", panel);
    m_unit = makeLineEdit("unit", panel);
    m_dataType = new QwtComboBox(0, panel);
    m_dataType->setObjectName(QStringLiteral("dataType"));
    for (const std::uint32_t code : zul::rawSelectionOrder) {
        m_dataType->addItem(QLatin1String(zul::rawSelections[code]), static_cast<int>(code));
    }
    m_precision = new QSpinBox(panel);
    m_precision->setObjectName(QStringLiteral("precision"));
    m_precision->setRange(0, maxDialPrecision);
    m_min = makeLineEdit("minimum", panel);
    m_max = makeLineEdit("maximum", panel);
    m_color = new QPushButton(QStringLiteral("Select"), panel);
    m_color->setObjectName(QStringLiteral("color"));
    m_color->setIconSize(QSize(swatchExtent, swatchExtent));
    m_endian = new QwtComboBox(0, panel);
    m_endian->setObjectName(QStringLiteral("endian"));
    for (const zul::ByteOrderText& order : zul::byteOrders) {
        m_endian->addItem(QLatin1String(order.text), static_cast<int>(order.endian));
    }
    const std::pair<const char*, QWidget*> properties[] = {
        {"Name :", m_name},           {"Unit :", m_unit},    {"Data Type :", m_dataType},
        {"Precision :", m_precision}, {"Min :", m_min},      {"Max :", m_max},
        {"Color :", m_color},         {"Endian :", m_endian}};
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    int number = 0;
    for (const auto& [label, control] : properties) {
        addProperty(*grid, number++, label, control);
    }
    return panel;
}

void DialogDial::connectSelections()
{
    connect(m_idSelect, &QwtIdSelect::signalId, this, &DialogDial::slotId);
    connect(m_idSelect, &QwtIdSelect::signalParameter, this, &DialogDial::slotParameter);
    connect(m_displayType, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &DialogDial::slotDisplayType);
}

void DialogDial::connectProperties()
{
    connect(m_showProperties, &QCheckBox::stateChanged, this, &DialogDial::slotDialProp);
    connect(m_name, &QwtLineEdit::signalTextChanged, this, &DialogDial::slotName);
    connect(m_unit, &QwtLineEdit::signalTextChanged, this, &DialogDial::slotUnit);
    connect(m_dataType, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &DialogDial::slotDataType);
    connect(m_precision, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &DialogDial::slotPrecision);
    connect(m_min, &QLineEdit::textChanged, this, &DialogDial::slotMin);
    connect(m_max, &QLineEdit::textChanged, this, &DialogDial::slotMax);
    connect(m_color, &QPushButton::clicked, this, &DialogDial::slotColor);
    connect(m_endian, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &DialogDial::slotEndianFormat);
}

void DialogDial::setObject(Object* object)
{
    DialogInput::setObject(object);
    m_dial = dynamic_cast<ObjectDial*>(object);
}

void DialogDial::guiMessage(Message* message)
{
    const auto* request = message_cast<MessageGuiDialog>(message);
    if (request != nullptr && m_dial != nullptr) {
        m_dial->settings().canId = static_cast<std::uint32_t>(request->parameter());
        updateDialog();
    }
}

void DialogDial::receive(MessageContainer& batch)
{
    if (m_dial == nullptr) {
        return;
    }
    const DialFeed::Update update =
        m_feed.receive(batch, m_dial->settings(), inputInterface(), m_dial->filter());
    if (update == DialFeed::Update::Matched) {
        showFrame();
    }
    if (update != DialFeed::Update::Ignored) {
        header()->setInputCount(m_feed.receivedTotal());
    }
}

void DialogDial::updateDialog()
{
    showSettings();
}

std::optional<DialogInput::Input> DialogDial::input()
{
    if (m_dial == nullptr) {
        return std::nullopt;
    }
    auto& settings = m_dial->settings();
    return Input{settings.inputOn, settings.inputInterface, m_dial->filter()};
}

QString DialogDial::titleText() const
{
    return m_dial != nullptr ? dialTitle(m_dial->settings().name, m_dial->settings().unit)
                             : windowTitle();
}

void DialogDial::showSettings()
{
    if (m_dial == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> guard(m_updating, true);
    const auto& settings = m_dial->settings();
    showInput();
    m_idSelect->setId(static_cast<int>(std::min<std::uint32_t>(settings.canId, INT32_MAX)));
    m_displayType->setData(static_cast<int>(dialForm(settings.displayType)));
    m_name->setText(settings.name);
    m_unit->setText(settings.unit);
    m_dataType->setData(settings.dataType);
    m_precision->setValue(settings.precision);
    m_min->setText(QString::number(settings.minValue, 'g', rangePrecision));
    m_max->setText(QString::number(settings.maxValue, 'g', rangePrecision));
    m_endian->setData(settings.endian != 0 ? 1 : 0);
    m_showProperties->setChecked(settings.showProperties);
    m_pages->setCurrentIndex(static_cast<int>(dialForm(settings.displayType)));
    showPanel();
    showProperties();
    showFrame();
}

void DialogDial::showProperties()
{
    const auto& settings = m_dial->settings();
    m_needle->setName(settings.name);
    m_needle->setUnit(settings.unit);
    m_needle->setMinimum(settings.minValue);
    m_needle->setMaximum(settings.maxValue);
    m_needle->setPrecision(settings.precision);
    m_needle->setColor(color());
    m_number->setColor(color());
    QPixmap swatch(m_color->iconSize());
    swatch.fill(color());
    m_color->setIcon(swatch);
    refreshTitle();
}

QColor DialogDial::color() const
{
    const ObjectDial::Color& stored = m_dial->color();
    const auto component = [](std::int32_t value) { return std::clamp(value, 0, 255); };
    return {component(stored.red), component(stored.green), component(stored.blue)};
}

bool DialogDial::showsValue() const
{
    return dialForm(m_dial->settings().displayType) != DialForm::Discrete;
}

void DialogDial::showPanel()
{
    const auto& settings = m_dial->settings();
    const bool isNeedle = dialForm(settings.displayType) == DialForm::Needle;
    m_min->setEnabled(isNeedle);
    m_max->setEnabled(isNeedle);
    m_panel->setVisible(settings.showProperties && showsValue());
    m_showProperties->setText(settings.showProperties ? QStringLiteral("Hide Properties")
                                                      : QStringLiteral("Show Properties"));
}

void DialogDial::growToHint()
{
    layout()->activate();
    auto* subWindow = qobject_cast<QMdiSubWindow*>(parentWidget());
    QWidget* frame = subWindow != nullptr ? static_cast<QWidget*>(subWindow) : this;
    if (!frame->isMaximized()) {
        frame->resize(frame->size().expandedTo(frame->sizeHint()));
    }
}

void DialogDial::showFrame()
{
    if (!m_feed.last()) {
        return;
    }
    const auto& settings = m_dial->settings();
    const DialForm form = dialForm(settings.displayType);
    if (form == DialForm::Discrete) {
        m_lights->showFrame(*m_feed.last());
        return;
    }
    const auto value = static_cast<double>(
        zul::rawValue(*m_feed.last(), static_cast<std::uint32_t>(settings.dataType),
                      static_cast<std::uint32_t>(settings.endian)));
    if (form == DialForm::Needle) {
        m_needle->setValue(value);
    } else {
        m_number->showValue(value, settings.precision);
    }
}

void DialogDial::propertyChanged()
{
    showProperties();
    showFrame();
    markEdited();
}

void DialogDial::slotId(int id)
{
    if (canEdit()) {
        m_dial->settings().canId = static_cast<std::uint32_t>(id);
        propertyChanged();
    }
}

// Only what the value is called: its identifier comes by `slotId`, and how it is read stays.
void DialogDial::slotParameter(const ProfileParameter& parameter)
{
    if (canEdit()) {
        m_name->setText(parameter.nme);
        m_unit->setText(parameter.pun);
    }
}

void DialogDial::slotDisplayType(int type)
{
    if (canEdit()) {
        m_dial->settings().displayType = type;
        m_pages->setCurrentIndex(static_cast<int>(dialForm(type)));
        showPanel();
        growToHint();
        propertyChanged();
    }
}

void DialogDial::slotDialProp(int state)
{
    if (canEdit()) {
        m_dial->settings().showProperties = state != Qt::Unchecked;
        showPanel();
        growToHint();
        propertyChanged();
    }
}

void DialogDial::slotName(int, const QString& name)
{
    if (canEdit()) {
        m_dial->settings().name = name;
        propertyChanged();
    }
}

void DialogDial::slotUnit(int, const QString& unit)
{
    if (canEdit()) {
        m_dial->settings().unit = unit;
        propertyChanged();
    }
}

void DialogDial::slotDataType(int code)
{
    if (canEdit()) {
        m_dial->settings().dataType = code;
        propertyChanged();
    }
}

void DialogDial::slotPrecision(int precision)
{
    if (canEdit()) {
        m_dial->settings().precision = precision;
        propertyChanged();
    }
}

void DialogDial::slotMin(const QString& text)
{
    if (canEdit()) {
        m_dial->settings().minValue = zul::realNumber(text);
        propertyChanged();
    }
}

void DialogDial::slotMax(const QString& text)
{
    if (canEdit()) {
        m_dial->settings().maxValue = zul::realNumber(text);
        propertyChanged();
    }
}

void DialogDial::slotColor()
{
    if (!canEdit()) {
        return;
    }
    const QPointer<DialogDial> self(this); // frames go on coming meanwhile, and a window may go
    const QColor chosen = ColorDialogs::choose(this, color());
    if (self != nullptr && m_dial != nullptr && chosen.isValid()) {
        m_dial->color() = {chosen.red(), chosen.green(), chosen.blue()};
        propertyChanged();
    }
}

void DialogDial::slotEndianFormat(int endian)
{
    if (canEdit()) {
        m_dial->settings().endian = endian;
        propertyChanged();
    }
}

} // namespace gui
