#include "gui/traffic/DialogTransmitSetup.h"

#include "gui/frame/FileDialogs.h"
#include "traffic/TransmitImport.h"

#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace {

constexpr int spacing = 15; // pixels

} // namespace

DialogTransmitSetup::DialogTransmitSetup(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("ZUL Transmit Setup"));
    auto* import = new QPushButton(QStringLiteral("Import"), this);
    import->setObjectName(QStringLiteral("import"));
    auto* close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("close"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(spacing, spacing, spacing, spacing);
    layout->setSpacing(spacing);
    layout->addWidget(new QLabel(QStringLiteral("Import ZORB Configuration"), this), 0, 0);
    layout->addWidget(import, 0, 1);
    layout->addWidget(close, 1, 1);
    connect(import, &QPushButton::clicked, this, &DialogTransmitSetup::slotImportZorb);
    connect(close, &QPushButton::clicked, this, &DialogTransmitSetup::slotClose);
}

void DialogTransmitSetup::slotImportZorb()
{
    const QPointer<DialogTransmitSetup> self(this); // the window may close behind the chooser
    const QString path =
        gui::FileDialogs::openFile(this, QLatin1String(transmitimport::fileDialogTitle),
                                   QLatin1String(transmitimport::fileDialogFilter));
    if (path.isEmpty() || self.isNull() || m_object == nullptr) {
        return;
    }
    transmitimport::readZorbConfiguration(path, m_object->lines());
    emit signalUpdate();
}

void DialogTransmitSetup::slotClose()
{
    close();
}
