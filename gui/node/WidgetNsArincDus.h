#pragma once

#include "gui/node/WidgetNsArinc.h"
#include "node/UploadClient.h"

class QProgressBar;

namespace gui {

/// The page of the Data Upload Service.
class WidgetNsArincDus : public WidgetNsArinc
{
    Q_OBJECT

public:
    WidgetNsArincDus(DialogNodeService& window, QWidget* parent = nullptr);
    ~WidgetNsArincDus() override;

    void receive(MessageContainer& batch) override;

protected slots:
    void slotTimeout() override;
    void slotFile();
    void slotDestId(int value);
    void slotSend() override;

protected:
    ServiceAddress& address() override { return m_client.address(); }

private:
    void addFileRows(QFormLayout& form);
    void refresh();

    UploadClient m_client;
    QLineEdit* m_file = nullptr;
    QLineEdit* m_size = nullptr;
    QProgressBar* m_progress = nullptr;
    QLineEdit* m_responseCode = nullptr;
    QLineEdit* m_messageSeparation = nullptr;
    QLineEdit* m_blockSize = nullptr;
    QLineEdit* m_blockSeparation = nullptr;
};

} // namespace gui
