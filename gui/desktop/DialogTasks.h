#pragma once

#include "project/Project.h"

#include <QWidget>

class QListWidget;
class QListWidgetItem;

namespace gui {

/// The panel that adds objects to the project.
class DialogTasks : public QWidget
{
    Q_OBJECT

public:
    explicit DialogTasks(QWidget* parent = nullptr);

    /// Lists the types that have windows; called once.
    void fill(const Project::Types& types);

signals:
    /// A type, as the number of `ObjectType`, is to get a new object.
    void signalSelectWindow(int type);

private slots:
    void slotDoubleClick(QListWidgetItem* item);

private:
    QListWidget* m_list;
};

} // namespace gui
