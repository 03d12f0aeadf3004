#include "gui/traffic/DialogReplay.h"

#include "core/Clock.h"
#include "gui/controls/BusyCursor.h"
#include "gui/controls/Look.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/WidgetHeader.h"
#include "project/ObjectReplay.h"

#include <QGridLayout>
#include <QLCDNumber>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <initializer_list>
#include <utility>

namespace gui {

namespace {

constexpr int playerMargin = 3; // all four buttons fit into the narrowest window
constexpr int loadButtonHeight = 30;
constexpr int timeDigits = 12;
constexpr int timeWidth = 220;
constexpr int timeHeight = 60;
constexpr int playerColumns = 4;
constexpr QColor timeColor(150, 255, 150);
constexpr QColor timeBackground(0, 0, 0);

} // namespace

DialogReplay::DialogReplay(ObjectReplay* object, QWidget* parent)
    : DialogBase(object, parent), m_replay(object), m_timer(new QTimer(this))
{
    build();
    connectControls();
    m_timer->setTimerType(Qt::PreciseTimer);
    showSettings();
}

DialogReplay::~DialogReplay() = default;

QSize DialogReplay::sizeHint() const
{
    return firstWindowSize;
}

void DialogReplay::build()
{
    m_header = new WidgetHeader(this);
    m_header->setMode(WidgetHeader::Mode::Output);
    QFrame* player = buildPlayer();
    buildPosition();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    layout->setSpacing(windowMargin);
    layout->addWidget(m_header);
    layout->addWidget(player);
    layout->addWidget(m_time, 1);
    layout->addWidget(m_slider);
    setMinimumWidth(minimumWindowWidth);
    resize(firstWindowSize);
}

QFrame* DialogReplay::buildPlayer()
{
    auto* player = new QFrame(this);
    player->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_load = new QPushButton(QStringLiteral("Load Trace File"), player);
    m_load->setObjectName(QStringLiteral("load"));
    m_load->setMinimumHeight(loadButtonHeight);
    m_start = new QPushButton(icon("replay-start"), QStringLiteral("Start"), player);
    m_start->setObjectName(QStringLiteral("start"));
    m_stop = new QPushButton(icon("replay-stop"), QStringLiteral("Stop"), player);
    m_stop->setObjectName(QStringLiteral("stop"));
    m_autoRepeat = new QToolButton(player);
    m_autoRepeat->setText(QStringLiteral("Auto Repeat"));
    m_autoRepeat->setObjectName(QStringLiteral("autoRepeat"));
    m_autoRepeat->setCheckable(true);
    m_fileName = new QLineEdit(player);
    m_fileName->setObjectName(QStringLiteral("fileName"));
    m_fileName->setReadOnly(true);
    auto* grid = new QGridLayout(player);
    grid->setContentsMargins(playerMargin, playerMargin, playerMargin, playerMargin);
    grid->setSpacing(playerMargin);
    // Shares of the width by which all texts fit into the narrowest window.
    const std::initializer_list<std::pair<QWidget*, int>> shares{
        {m_load, 15}, {m_start, 9}, {m_stop, 9}, {m_autoRepeat, 12}};
    int column = 0;
    for (const auto& [control, share] : shares) {
        control->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::MinimumExpanding);
        grid->setColumnStretch(column, share);
        grid->addWidget(control, 0, column++);
    }
    grid->addWidget(m_fileName, 1, 0, 1, playerColumns);
    return player;
}

void DialogReplay::buildPosition()
{
    m_time = new QLCDNumber(timeDigits, this);
    m_time->setObjectName(QStringLiteral("time"));
    m_time->setSegmentStyle(QLCDNumber::Filled);
    m_time->setMinimumSize(timeWidth, timeHeight);
    QPalette colors = m_time->palette();
    colors.setColor(QPalette::WindowText, timeColor);
    colors.setColor(QPalette::Window, timeBackground);
    m_time->setPalette(colors);
    m_time->setAutoFillBackground(true);
    m_time->display(QLatin1String(Replay::firstPositionText));
    m_slider = new QSlider(Qt::Horizontal, this);
    m_slider->setObjectName(QStringLiteral("position"));
    m_slider->setRange(0, Replay::sliderMaximum);
    m_slider->setTickPosition(QSlider::TicksBelow);
    m_slider->setTickInterval(Replay::sliderTickInterval);
}

void DialogReplay::connectControls()
{
    connect(m_header, &WidgetHeader::signalInputInterface, this, &DialogReplay::slotInputInterface);
    connect(m_header, &WidgetHeader::signalOutputInterface, this,
            &DialogReplay::slotOutputInterface);
    connect(m_header, &WidgetHeader::signalOutputOn, this, &DialogReplay::slotOutputOn);
    connect(m_load, &QPushButton::clicked, this, &DialogReplay::slotLoad);
    connect(m_start, &QPushButton::clicked, this, &DialogReplay::slotStart);
    connect(m_stop, &QPushButton::clicked, this, &DialogReplay::slotStop);
    connect(m_autoRepeat, &QToolButton::clicked, this, &DialogReplay::slotAutoRepeat);
    connect(m_slider, &QSlider::valueChanged, this, &DialogReplay::slotPosition);
    connect(m_timer, &QTimer::timeout, this, &DialogReplay::slotTimeout);
}

void DialogReplay::setObject(Object* object)
{
    DialogBase::setObject(object);
    m_replay = dynamic_cast<ObjectReplay*>(object);
}

void DialogReplay::forceClose()
{
    DialogBase::forceClose();
    m_timer->stop();
}

void DialogReplay::updateDialog()
{
    showSettings();
}

void DialogReplay::showSettings()
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    if (m_replay != nullptr) {
        const auto& settings = m_replay->settings();
        m_header->setOutputOn(settings.outputOn);
        m_header->setOutputInterface(settings.outputInterface);
        m_autoRepeat->setChecked(settings.autoRepeat);
    }
    m_fileName->setText(m_player.shownFileName());
    showControls();
}

void DialogReplay::showControls()
{
    const Replay::Controls controls = m_player.controls();
    m_load->setEnabled(controls.load);
    m_start->setEnabled(controls.start);
    m_start->setText(QLatin1String(controls.startText));
    m_start->setIcon(icon(m_player.isRunning() ? "replay-pause" : "replay-start"));
    m_stop->setEnabled(controls.stop);
    m_slider->setEnabled(controls.slider);
}

void DialogReplay::showPosition()
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    m_time->display(Replay::positionText());
    m_slider->setValue(m_player.sliderPosition());
}

void DialogReplay::slotInputInterface(const QString& name)
{
    if (m_replay != nullptr) {
        m_replay->settings().inputInterface = name;
        markEdited();
    }
}

void DialogReplay::slotOutputInterface(const QString& name)
{
    if (m_replay != nullptr) {
        m_replay->settings().outputInterface = name;
        markEdited();
    }
}

void DialogReplay::slotOutputOn(bool on)
{
    if (!m_updating && m_replay != nullptr) {
        m_replay->settings().outputOn = on;
    }
}

void DialogReplay::slotLoad()
{
    const QString path =
        FileDialogs::openFile(this, QLatin1String(Replay::fileDialogTitle),
                              QLatin1String(Replay::fileDialogFilter), m_player.lastDirectory());
    if (path.isEmpty()) {
        return;
    }
    const BusyCursor cursor(Qt::BusyCursor);
    m_player.load(path);
    updateDialog();
}

void DialogReplay::slotStart()
{
    m_player.startOrPause(zul::wallClock());
    updateDialog();
    if (m_player.isRunning()) {
        m_timer->start(Replay::tickPeriodMs);
    } else {
        m_timer->stop();
    }
}

void DialogReplay::slotStop()
{
    m_timer->stop();
    m_player.stop();
    updateDialog();
    showPosition();
}

void DialogReplay::slotAutoRepeat()
{
    if (m_replay != nullptr) {
        m_replay->settings().autoRepeat = m_autoRepeat->isChecked();
    }
}

void DialogReplay::slotPosition(int position)
{
    if (!m_updating) {
        m_player.seek(position);
        showPosition();
    }
}

void DialogReplay::slotTimeout()
{
    if (m_replay == nullptr) {
        m_timer->stop();
        return;
    }
    Replay::Tick tick = m_player.tick(zul::wallClock(), m_replay->settings());
    if (tick.hasStopped) {
        m_timer->stop();
        updateDialog();
    }
    showPosition();
    if (tick.isToBeSent) {
        send(tick.batch);
        m_header->setOutputCount(m_player.sentCount());
    }
}

} // namespace gui
