#pragma once

#include "gui/frame/DialogBase.h"
#include "project/SendMsg.h"
#include "traffic/Transmitter.h"

class DialogTransmitSetup;
class ObjectTransmit;
class QPushButton;
class QTableWidgetItem;
class QTimer;
class QToolButton;
class WidgetHeader;

namespace gui {

class MessageEditor;
class QwtComboBox;
class TransmitTable;

/// A table of messages to send: singly, by selection, periodically, or the moment they are edited.
class DialogTransmit : public DialogBase
{
    Q_OBJECT

public:
    /// `object` is null or outlives the window's pairing with it.
    DialogTransmit(ObjectTransmit* object, QWidget* parent);
    ~DialogTransmit() override;

    /// The size that a new window gets in the desktop.
    QSize sizeHint() const override;

    void setObject(Object* object) override;
    void updateDialog() override;
    /// Stops the periodic transmission.
    void forceClose() override;

    /// Frames sent so far.
    std::uint32_t transmitted() const { return m_transmitter.transmitted(); }

private slots:
    void slotSetup();
    void slotOutputOn(bool on);
    void slotTable(QTableWidgetItem* pItem);
    void slotTransmitCan(int index, const SendMsg& msg);
    void slotTransmitHeight(int index, unsigned int height);
    void slotDisplayMode(int, int mode);
    void slotNumberType(int numberType);
    void slotAdd();
    void slotDelete();
    void slotClear();
    void slotTransmit();
    void slotTransmitSingle(int index);
    void slotTransmitMode(int index, int mode);
    void slotTransmitRate(int index, int rate);
    void slotAutoTx();
    void slotOutputInterface(const QString& name);
    void slotUpdate();
    void slotTimeout();

private:
    void build();
    QPushButton* makeButton(const char* text, const char* objectName, const QColor& background);
    void connectControls();
    void connectButtons();
    void showSettings();
    void showAutoTx(bool on);
    void rebuildTable();
    void addRow(int index);
    void addControls(int row);
    void addEditor(int row, const SendMsg& line);
    MessageEditor* makeEditor();
    void addButton(int row, const SendMsg& line);
    bool isConfirmed(const char* question);
    void sendAll(std::vector<MessageContainer> batches);
    void showCount();
    int numberType() const;

    ObjectTransmit* m_transmit;
    Transmitter m_transmitter;
    bool m_updating = false;

    WidgetHeader* m_header = nullptr;
    QToolButton* m_autoTx = nullptr;
    TransmitTable* m_table = nullptr;
    QwtComboBox* m_displayMode = nullptr;
    QPushButton* m_add = nullptr;
    QPushButton* m_delete = nullptr;
    QPushButton* m_clear = nullptr;
    QPushButton* m_transmitSelected = nullptr;
    DialogTransmitSetup* m_setup = nullptr;
    QTimer* m_timer = nullptr;
};

} // namespace gui
