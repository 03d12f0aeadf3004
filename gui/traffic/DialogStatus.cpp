#include "gui/traffic/DialogStatus.h"

#include "gui/controls/Colors.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/controls/WidgetStatus.h"
#include "message/MessageContainer.h"
#include "message/MessageCtrl.h"
#include "message/MessageStatus.h"
#include "project/Object.h"

#include <QCloseEvent>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr int rowSpacing = 3; // pixels
constexpr int timeoutMs = 200;
constexpr QSize firstSize(200, 400);

} // namespace

DialogStatus::DialogStatus(Object* object, QWidget* parent) : DialogBase(object, parent)
{
    buildRows();
    auto* clear = new QwtPushButton(QStringLiteral("Clear Status"), colors::clear, this);
    clear->setObjectName(QStringLiteral("clearStatus"));
    layout()->addWidget(clear);
    connect(clear, &QwtPushButton::clicked, this, &DialogStatus::slotClear);
    QTimer::singleShot(timeoutMs, this, &DialogStatus::slotTimeout);
    resize(firstSize);
}

DialogStatus::~DialogStatus() = default;

void DialogStatus::buildRows()
{
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->setSpacing(rowSpacing);
    for (int i = 0; i < rowCount; ++i) {
        auto* row = new WidgetStatus(content);
        row->hide();
        rows->addWidget(row);
        m_rows.push_back(row);
    }
    rows->addStretch();
    auto* area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setWidget(content);
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(area);
}

void DialogStatus::receive(MessageContainer& batch)
{
    for (const auto& message : batch.messages()) {
        const auto* report = message_cast<zul::MessageStatus>(message.get());
        if (report == nullptr) {
            continue;
        }
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const bool hasEntry = i < report->entries.size();
            m_rows[i]->setVisible(hasEntry);
            if (hasEntry) {
                m_rows[i]->set(report->entries[i]);
            }
        }
    }
}

void DialogStatus::send(MessageContainer& batch)
{
    if (object() != nullptr) {
        object()->receive(batch);
    }
}

void DialogStatus::closeEvent(QCloseEvent* event)
{
    forceClose();
    DialogBase::closeEvent(event);
}

// The reports come with the batches; nothing is left for the timer to do.
void DialogStatus::slotTimeout() {}

void DialogStatus::slotClear()
{
    auto* control = new zul::MessageCtrl;
    control->setId(zul::MessageCtrl::ECtrl::ClearStatus);
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(control));
    batch.setSrcDest(allInterfaces);
    send(batch);
}

} // namespace gui
