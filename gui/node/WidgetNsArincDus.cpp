#include "gui/node/WidgetNsArincDus.h"

#include "gui/controls/Look.h"
#include "gui/frame/FileDialogs.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QSpinBox>
#include <QToolButton>

namespace gui {

WidgetNsArincDus::WidgetNsArincDus(DialogNodeService& window, QWidget* parent)
    : WidgetNsArinc(window, parent), m_client(*this)
{
    const Groups groups = buildGroups();
    addAddressRows(*groups.transmit);
    addFileRows(*groups.transmit);
    addSendButton(*groups.transmit);
    addStatusLabel(*groups.receive);
    m_progress = new QProgressBar;
    m_progress->setObjectName(QStringLiteral("progress"));
    groups.receive->addRow(QStringLiteral("Progress :"), m_progress);
    m_responseCode = addField(*groups.receive, "Response Code :", "responseCode");
    m_messageSeparation = addField(*groups.receive, "Message Sep. :", "messageSeparation");
    m_blockSize = addField(*groups.receive, "Block Size :", "blockSize");
    m_blockSeparation = addField(*groups.receive, "Block Sep. :", "blockSeparation");
    refresh();
}

WidgetNsArincDus::~WidgetNsArincDus() = default;

void WidgetNsArincDus::addFileRows(QFormLayout& form)
{
    auto* choice = new QHBoxLayout;
    m_file = new QLineEdit;
    m_file->setObjectName(QStringLiteral("file"));
    m_file->setReadOnly(true);
    auto* choose = new QToolButton;
    choose->setObjectName(QStringLiteral("chooseFile"));
    choose->setIcon(icon("open"));
    choose->setToolTip(QLatin1String(UploadClient::fileDialogTitle));
    choice->addWidget(m_file);
    choice->addWidget(choose);
    form.addRow(QStringLiteral("File :"), choice);
    m_size = addField(form, "", "size");
    auto* destination = new QSpinBox;
    destination->setObjectName(QStringLiteral("destinationId"));
    destination->setRange(0, UploadClient::maxDestinationId);
    form.addRow(QStringLiteral("Destination Id"), destination);
    connect(choose, &QToolButton::clicked, this, &WidgetNsArincDus::slotFile);
    connect(destination, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &WidgetNsArincDus::slotDestId);
}

void WidgetNsArincDus::slotFile()
{
    const QPointer<WidgetNsArincDus> self(this); // the window may close behind the chooser
    const QString path = FileDialogs::openFile(this, QLatin1String(UploadClient::fileDialogTitle),
                                               QLatin1String(UploadClient::fileDialogFilter));
    if (path.isEmpty() || self.isNull()) {
        return;
    }
    const qint64 size = m_client.setFile(path);
    m_file->setText(path);
    m_size->setText(QStringLiteral("%1 Bytes").arg(size));
}

void WidgetNsArincDus::slotDestId(int value)
{
    m_client.setDestinationId(static_cast<std::uint32_t>(value));
}

void WidgetNsArincDus::slotSend()
{
    m_client.send();
    refresh();
}

void WidgetNsArincDus::receive(MessageContainer& batch)
{
    if (m_client.receive(batch)) {
        refresh();
    }
}

void WidgetNsArincDus::slotTimeout()
{
    m_client.timeOut();
    refresh();
}

void WidgetNsArincDus::refresh()
{
    showLook(m_client.look());
    m_progress->setValue(m_client.progress());
    const UploadPacing& pacing = m_client.pacing();
    m_responseCode->setText(QString::number(m_client.responseCode()));
    m_messageSeparation->setText(QString::number(pacing.messageSeparation));
    m_blockSize->setText(QString::number(pacing.blockSize));
    m_blockSeparation->setText(QString::number(pacing.blockSeparation));
}

} // namespace gui
