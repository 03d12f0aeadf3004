#include "gui/traffic/DialogTrace.h"

#include "core/Clock.h"
#include "core/Latin1.h"
#include "core/Settings.h"
#include "core/SettingsStore.h"
#include "gui/controls/Colors.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/controls/WheelGuard.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/traffic/TraceView.h"
#include "message/MessageContainer.h"
#include "profile/ProfileStore.h"
#include "project/ObjectTrace.h"
#include "traffic/MessageModes.h"
#include "traffic/TraceLine.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr int statusFontPixels = 10;
constexpr int shownFormatLetters = 4;

} // namespace

DialogTrace::DialogTrace(ObjectTrace* object, QWidget* parent)
    : DialogBase(object, parent), m_trace(object)
{
    build();
    connectControls();
    showSettings();
    showTraceState();
}

DialogTrace::~DialogTrace() = default;

QSize DialogTrace::sizeHint() const
{
    return firstWindowSize;
}

void DialogTrace::build()
{
    buildHeader();
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("traceStatus"));
    m_status->setTextFormat(Qt::RichText);
    QFont small = m_status->font();
    small.setPixelSize(statusFontPixels);
    m_status->setFont(small);
    // A long path is cut off at the right instead of making the window wider.
    m_status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_view = new TraceView(this);
    m_view->setObjectName(QStringLiteral("traceView"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    layout->setSpacing(windowMargin);
    layout->addWidget(m_header);
    layout->addWidget(m_status);
    layout->addWidget(m_view, 1);
    buildBottom(*layout);
    m_filterDialog = new DialogFilter(this);
    setMinimumWidth(minimumWindowWidth);
    resize(firstWindowSize);
}

void DialogTrace::buildHeader()
{
    m_header = new WidgetHeader(this);
    m_header->setMode(WidgetHeader::Mode::Input);
    m_startStop = new QToolButton(this);
    m_startStop->setObjectName(QStringLiteral("startStop"));
    m_startStop->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_startStop->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    m_header->addCustomWidget(m_startStop);
    m_recordMode = new QwtComboBox(0, this);
    m_recordMode->setObjectName(QStringLiteral("recordMode"));
    for (const TraceFormatText& format : traceFormats) {
        m_recordMode->addItem(QLatin1String(format.text), static_cast<int>(format.format));
    }
    // The bar is full: the selection may shrink, and its list still shows all of each entry.
    m_recordMode->view()->setMinimumWidth(m_recordMode->sizeHint().width());
    m_recordMode->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_recordMode->setMinimumContentsLength(shownFormatLetters);
    WheelGuard::protect(m_recordMode);
    m_header->addCustomWidget(m_recordMode);
}

void DialogTrace::buildBottom(QVBoxLayout& layout)
{
    m_displayMode = new QwtComboBox(0, this);
    m_displayMode->setObjectName(QStringLiteral("displayMode"));
    for (const DisplayModeTexts& mode : displayModes) {
        if (mode.trace != nullptr) {
            m_displayMode->addItem(QLatin1String(mode.trace), static_cast<int>(mode.mode));
        }
    }
    WheelGuard::protect(m_displayMode);
    auto* clear = new QwtPushButton(QStringLiteral("Clear"), colors::clear, this);
    clear->setObjectName(QStringLiteral("clear"));
    clear->setFixedHeight(lowButtonHeight);
    connect(clear, &QwtPushButton::clicked, this, &DialogTrace::slotClear);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_displayMode);
    bottom->addStretch();
    bottom->addWidget(clear);
    layout.addLayout(bottom);
}

void DialogTrace::connectControls()
{
    connect(m_header, &WidgetHeader::signalInputOn, this, &DialogTrace::slotInputOn);
    connect(m_header, &WidgetHeader::signalFilterSetup, this, &DialogTrace::slotFilterSetup);
    connect(m_header, &WidgetHeader::signalFilterOn, this, &DialogTrace::slotFilterOn);
    connect(m_header, &WidgetHeader::signalSetup, this, &DialogTrace::slotSetup);
    connect(m_header, &WidgetHeader::signalInputInterface, this, &DialogTrace::slotInputInterface);
    connect(m_header, &WidgetHeader::signalOutputInterface, this,
            &DialogTrace::slotOutputInterface);
    connect(m_header, &WidgetHeader::signalNumberType, this, &DialogTrace::slotNumberType);
    connect(m_startStop, &QToolButton::clicked, this, &DialogTrace::slotStartStopTrace);
    connect(m_recordMode, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &DialogTrace::slotRecordMode);
    connect(m_displayMode, QOverload<int>::of(&QComboBox::activated), this,
            &DialogTrace::slotDisplayMode);
    connect(m_view->verticalScrollBar(), &QScrollBar::valueChanged, this, &DialogTrace::slotScroll);
}

void DialogTrace::setObject(Object* object)
{
    DialogBase::setObject(object);
    m_trace = dynamic_cast<ObjectTrace*>(object);
    m_filterDialog->letGo(); // the filter was the former object's
}

void DialogTrace::receive(MessageContainer& batch)
{
    if (m_trace == nullptr) {
        return;
    }
    const TraceRecorder::Update update =
        m_recorder.receive(batch, m_trace->settings(), m_trace->filter(), ProfileStore::instance());
    if (!update.isTaken) {
        return;
    }
    if (update.hasLines) {
        m_view->appendLines(zul::fromLatin1(update.html));
    }
    m_header->setInputCount(m_recorder.receivedTotal());
    showTraceState();
}

void DialogTrace::showTraceState()
{
    const bool isStopped = m_recorder.state() == TraceRecorder::State::Stopped;
    const QLatin1String text(m_recorder.buttonText());
    if (m_startStop->text() != text) {
        m_startStop->setText(text);
        m_startStop->setIcon(icon(isStopped ? "trace-start" : "trace-stop"));
    }
    m_status->setText(zul::fromLatin1(m_recorder.statusText()));
}

void DialogTrace::updateDialog()
{
    showSettings();
}

void DialogTrace::showSettings()
{
    if (m_trace == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> guard(m_updating, true);
    const auto& settings = m_trace->settings();
    m_header->setInputOn(settings.inputOn);
    m_header->setFilterOn(m_trace->filter().isOn());
    m_header->setOutputOn(false);
    m_header->setInputInterface(settings.inputInterface);
    m_header->setOutputInterface(settings.outputInterface);
    m_header->setNumberType(settings.numberType);
    // Deliberate: the record format shows its first entry, whatever the object holds.
    m_displayMode->setData(settings.displayMode);
}

void DialogTrace::slotInputOn(bool on)
{
    if (!m_updating && m_trace != nullptr) {
        m_trace->settings().inputOn = on; // Deliberate: does not mark the project as changed
    }
}

void DialogTrace::slotFilterSetup()
{
    if (m_trace != nullptr) {
        m_filterDialog->edit(m_trace->filter());
        markEdited();
    }
}

void DialogTrace::slotFilterOn(bool on)
{
    if (m_trace != nullptr) {
        m_trace->filter().setOn(on);
        markEdited();
    }
}

// There is no setup; the slot lets the header be wired alike in all windows.
void DialogTrace::slotSetup() {}

void DialogTrace::slotInputInterface(const QString& name)
{
    if (m_trace != nullptr) {
        m_trace->settings().inputInterface = name;
        markEdited();
    }
}

void DialogTrace::slotOutputInterface(const QString& name)
{
    if (m_trace != nullptr) {
        m_trace->settings().outputInterface = name;
        markEdited();
    }
}

void DialogTrace::slotStartStopTrace()
{
    const QString directory =
        SettingsStore::instance().string(QLatin1String(zul::setting::tracePath), QString());
    if (!m_recorder.startOrStop(zul::toLatin1(directory), zul::wallClock())) {
        MessageBoxes::ask(this, QMessageBox::Critical, QLatin1String(MessageBoxes::warningTitle),
                          zul::fromLatin1(m_recorder.failureText()), {QMessageBox::Ok});
        m_recorder.activateWithoutFiles();
    }
    showTraceState();
}

void DialogTrace::slotDisplayMode(int index)
{
    if (!m_updating && m_trace != nullptr) {
        m_trace->settings().displayMode = m_displayMode->itemData(index).toInt();
        markEdited();
    }
}

void DialogTrace::slotRecordMode(int format)
{
    if (!m_updating && m_trace != nullptr) {
        m_trace->settings().traceFormat = format;
        markEdited();
    }
}

void DialogTrace::slotNumberType(int mode)
{
    if (m_trace != nullptr) {
        m_trace->settings().numberType = mode;
        markEdited();
    }
}

void DialogTrace::slotClear()
{
    if (!m_updating) {
        m_view->clear();
        m_recorder.clear();
    }
}

// The view scrolls by itself; nothing follows it.
void DialogTrace::slotScroll(int) {}

} // namespace gui
