#include "gui/desktop/DialogAbout.h"

#include "core/Version.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int spacing = 15; // pixels
constexpr int pictureExtent = 48;
constexpr int nameFontPixels = 24;

} // namespace

DialogAbout::DialogAbout(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("ZUL"));
    auto* name = new QLabel(QString::fromStdString(zul::productName()), this);
    name->setObjectName(QStringLiteral("name"));
    QFont large = name->font();
    large.setPixelSize(nameFontPixels);
    large.setBold(true);
    name->setFont(large);
    auto* purpose =
        new QLabel(QStringLiteral("CAN tool with CANaerospace and ARINC 825 support"), this);
    purpose->setObjectName(QStringLiteral("purpose"));
    auto* version = new QLabel(QStringLiteral("Version %1 (%2)")
                                   .arg(QString::fromStdString(zul::versionNumbers()))
                                   .arg(zul::version.year),
                               this);
    version->setObjectName(QStringLiteral("version"));
    auto* blocks = new QGridLayout;
    blocks->setSpacing(spacing);
    blocks->setColumnStretch(1, 1);
    addBlock(*blocks, "about-aircraft", "User guide\ndocs/user-guide.md");
    addBlock(*blocks, "about-bus", "Device modules\ndocs/writing-a-device-module.md");
    addBlock(*blocks, "about-protocol", "Profiles\ndocs/profiles.md");
    auto* close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("close"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing, spacing, spacing, spacing);
    layout->setSpacing(spacing);
    layout->addWidget(name);
    layout->addWidget(purpose);
    layout->addWidget(version);
    layout->addLayout(blocks);
    layout->addStretch();
    layout->addWidget(close, 0, Qt::AlignRight);
    connect(close, &QPushButton::clicked, this, &DialogAbout::slotClose);
}

void DialogAbout::addBlock(QGridLayout& grid, const char* pictureName, const char* text)
{
    const int row = grid.rowCount();
    auto* picture = new QLabel;
    const QIcon drawing(QStringLiteral(":/%1.svg").arg(QLatin1String(pictureName)));
    picture->setPixmap(drawing.pixmap(pictureExtent));
    auto* address = new QLabel(QLatin1String(text));
    address->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid.addWidget(picture, row, 0);
    grid.addWidget(address, row, 1);
}

void DialogAbout::slotClose()
{
    hide();
}
