#pragma once

#include "gui/traffic/MessageEditor.h"

class QStackedWidget;

namespace gui {
class QwtComboBox;
class QwtSpinBox;
class ValueBits;
class ValueLines;
class ValueSlider;
} // namespace gui

/// Edits a message as a CANaerospace frame: header, and a value as its data type wants it entered.
class WidgetCanAs : public gui::MessageEditor
{
    Q_OBJECT

public:
    explicit WidgetCanAs(QWidget* parent = nullptr);
    ~WidgetCanAs() override;

protected:
    /// A byte count below that of the header is raised.
    void correct(SendMsg& message) const override;
    void applyNumberType(int numberType) override;
    void feedControls() override;

private slots:
    void slotCanId(int id);
    void slotMode(int mode);
    void slotNodeId(int nodeId);
    void slotMessageType(int code);
    void slotServiceId(const QString& text);
    void slotMessageId(int code);
    void slotInput11(const QString& text);
    void slotInput21(const QString& text);
    void slotInput22(const QString& text);
    void slotInput41(const QString& text);
    void slotInput42(const QString& text);
    void slotInput43(const QString& text);
    void slotInput44(const QString& text);
    void slotBinary(int bit);
    void slotBinarySetAll();
    void slotBinaryResetAll();
    void slotActual(const QString& text);
    void slotSlider(int v);
    void slotMin();
    void slotMax();

private:
    gui::QwtSpinBox* makeSpinBox(const char* objectName, int maximum);
    void buildHeader(QGridLayout* layout);
    void buildPages();
    void connectHeader();
    void connectPages();
    void feedHeader();
    void feedService();
    void showPage();
    void feedPage();
    void storeByte(int index, int value);
    void enterShort(int input, const QString& text);
    void enterByte(int input, const QString& text);
    void setAllBits(std::uint32_t word);

    gui::QwtSpinBox* m_canId = nullptr;
    gui::QwtComboBox* m_mode = nullptr;
    gui::QwtSpinBox* m_nodeId = nullptr;
    gui::QwtComboBox* m_dataType = nullptr;
    gui::QwtComboBox* m_service = nullptr;
    gui::QwtSpinBox* m_messageId = nullptr;
    QStackedWidget* m_pages = nullptr;
    gui::ValueLines* m_line = nullptr;
    gui::ValueLines* m_twoInputs = nullptr;
    gui::ValueLines* m_fourInputs = nullptr;
    gui::ValueBits* m_bits = nullptr;
    gui::ValueSlider* m_slider = nullptr;
};
