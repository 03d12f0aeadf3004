#include "gui/desktop/DialogHelp.h"

#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int spacing = 15;    // pixels
constexpr int titleRoom = 150; // pixels
constexpr QSize browserSize(640, 480);
constexpr const char* page = "../zuldoc/default.htm"; // from the working directory

} // namespace

DialogHelp::DialogHelp(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("ZUL Help"));
    const QString path = QDir::current().absoluteFilePath(QLatin1String(page));
    // Deliberate: the address takes the title's place, so that it is seen where help would be.
    QString address = QLatin1String("file:///") + path;
    address.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); // else Qt's mark for changes
    setWindowTitle(address);
    auto* close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("close"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing, spacing, spacing, spacing);
    layout->setSpacing(spacing);
    if (QFileInfo(path).isFile()) {
        m_browser = new QTextBrowser(this);
        m_browser->setOpenLinks(false);
        m_browser->setMinimumSize(browserSize);
        m_browser->setSource(QUrl::fromLocalFile(path));
        connect(m_browser, &QTextBrowser::anchorClicked, this, &DialogHelp::slotLinkClicked);
        layout->addWidget(m_browser, 1);
    }
    layout->addWidget(close, 0, Qt::AlignRight);
    connect(close, &QPushButton::clicked, this, &DialogHelp::slotClose);
    // Wide enough for the title to be read, beside what the desktop puts there.
    resize(sizeHint().expandedTo({fontMetrics().horizontalAdvance(address) + titleRoom, 0}));
}

void DialogHelp::slotLinkClicked(const QUrl& link)
{
    if (m_browser != nullptr) {
        m_browser->setSource(link);
    }
}

void DialogHelp::slotClose()
{
    hide();
}
