#include "gui/desktop/DialogTasks.h"

#include <QListWidget>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr QSize iconSize(18, 18);

} // namespace

DialogTasks::DialogTasks(QWidget* parent) : QWidget(parent), m_list(new QListWidget(this))
{
    m_list->setWindowTitle(QStringLiteral("Tasks"));
    m_list->setObjectName(QStringLiteral("tasks"));
    m_list->setIconSize(iconSize);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &DialogTasks::slotDoubleClick);
}

void DialogTasks::fill(const Project::Types& types)
{
    for (const auto& [type, info] : types) {
        if (type == ObjectType::CanInterface) {
            continue;
        }
        const QString text = QStringLiteral("Add ") + info.title;
        auto* item = new QListWidgetItem(QIcon(info.icon), text, m_list);
        item->setData(Qt::UserRole, static_cast<int>(type));
        item->setToolTip(text + QStringLiteral(" to project"));
    }
}

void DialogTasks::slotDoubleClick(QListWidgetItem* item)
{
    emit signalSelectWindow(item->data(Qt::UserRole).toInt());
}

} // namespace gui
