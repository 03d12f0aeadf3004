#pragma once

#include "core/Observer.h"

#include <QWidget>

class QAction;
class QHBoxLayout;
class QMenu;
class QToolButton;

namespace gui {

/// Chooses one interface of the project, or all. A name whose interface has gone stays shown; it
/// matches no batch.
class WidgetInterfaceSelect : public QWidget, public Observer
{
    Q_OBJECT

public:
    explicit WidgetInterfaceSelect(QWidget* parent = nullptr);
    ~WidgetInterfaceSelect() override;

    /// Rebuilds the menu when the list of interfaces has changed.
    void update(ObserverModel* model, int aspect) override;
    using QWidget::update;

    /// Shows the name, without a signal.
    void setInterface(const QString& name);
    const QString& interface() const { return m_interface; }
    QMenu* menu() const { return m_menu; }

signals:
    void signalChanged(const QString& name);

private slots:
    void slotInterfaceSelect(QAction* action);

private:
    void rebuildMenu();

    QString m_interface;
    QMenu* m_menu;
    QToolButton* m_button;
    QHBoxLayout* m_layout;
};

} // namespace gui
