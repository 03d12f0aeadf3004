#include "gui/desktop/DialogStatusBar.h"

#include "core/Version.h"
#include "gui/controls/QwtLabel.h"
#include "gui/frame/GuiRequests.h"
#include "gui/frame/MessageGuiAboutDialog.h"
#include "gui/frame/MessageGuiDialog.h"
#include "project/ObjectTypes.h"

#include <memory>

namespace gui {

namespace {

constexpr int firstTurnMs = 200;
constexpr int turnMs = 100;
constexpr int versionFontPixels = 12;
constexpr int versionWidth = 60; // at least

} // namespace

DialogStatusBar::DialogStatusBar(QWidget* parent)
    : QStatusBar(parent), m_timer(this), m_version(new QwtLabel)
{
    const QString text = QStringLiteral("%1 (%2)")
                             .arg(QString::fromStdString(zul::versionText()))
                             .arg(zul::version.year);
    QFont small = m_version->font();
    small.setPixelSize(versionFontPixels);
    m_version->setObjectName(QStringLiteral("version"));
    m_version->setFont(small);
    m_version->setMinimumWidth(versionWidth);
    m_version->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_version->setText(text);
    m_version->setToolTip(text);
    addPermanentWidget(m_version);
    connect(m_version, &QwtLabel::signalDoubleClicked, this, &DialogStatusBar::slotAbout);
    m_timer.setObjectName(QStringLiteral("turn"));
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &DialogStatusBar::slotTimeout);
    m_timer.start(firstTurnMs);
}

void DialogStatusBar::slotTimeout()
{
    m_timer.start(turnMs);
}

void DialogStatusBar::slotAbout()
{
    GuiRequests::send(std::make_unique<MessageGuiAboutDialog>());
}

void DialogStatusBar::slotStatus()
{
    // The window of an interface: no project makes one, so the request opens nothing.
    GuiRequests::send(std::make_unique<MessageGuiDialog>(static_cast<int>(ObjectType::Status), 0));
}

void DialogStatusBar::slotStatistic()
{
    GuiRequests::send(
        std::make_unique<MessageGuiDialog>(static_cast<int>(ObjectType::Statistic), 0));
}

} // namespace gui
