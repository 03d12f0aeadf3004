#pragma once

#include "gui/traffic/PayloadEditor.h"

namespace gui {
class QwtComboBox;
class QwtSpinBox;
} // namespace gui

/// Edits a message as a plain CAN frame: identifier, mode and payload.
class WidgetTransmitCan : public gui::PayloadEditor
{
    Q_OBJECT

public:
    explicit WidgetTransmitCan(QWidget* parent = nullptr);
    ~WidgetTransmitCan() override;

protected:
    void applyNumberType(int numberType) override;
    void feedControls() override;

private slots:
    void slotCanId(int id);
    void slotMode(int mode);
    void slotBc(int, int bytes);
    void slotData(int index, const QString& text);

private:
    gui::QwtSpinBox* m_canId = nullptr;
    gui::QwtComboBox* m_mode = nullptr;
};
