#pragma once

#include "gui/frame/DialogBase.h"

#include <vector>

class WidgetStatus;

namespace gui {

/// The status view of one CAN interface: what its device reports of itself.
class DialogStatus : public DialogBase
{
    Q_OBJECT

public:
    /// Rows shown at most; what a report has beyond them is dropped.
    static constexpr int rowCount = 20;

    /// `object` is the interface.
    DialogStatus(Object* object, QWidget* parent);
    ~DialogStatus() override;

    /// Shows the last status report of the batch; each replaces the one before.
    void receive(MessageContainer& batch) override;
    /// Hands the batch to the interface itself, which sends it.
    void send(MessageContainer& batch) override;

protected:
    /// Closes without any question, and keeps the interface.
    void closeEvent(QCloseEvent* event) override;

private slots:
    void slotTimeout();
    void slotClear();

private:
    void buildRows();

    std::vector<WidgetStatus*> m_rows;
};

} // namespace gui
