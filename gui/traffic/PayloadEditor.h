#pragma once

#include "gui/traffic/MessageEditor.h"

namespace gui {

class PayloadBlock;

/// Base of the editors that show the payload byte by byte: the number of its rows is their height.
class PayloadEditor : public MessageEditor
{
    Q_OBJECT

public:
    ~PayloadEditor() override;

signals:
    /// The editor needs so many pixels.
    void signalHeight(int index, unsigned int height);

protected:
    explicit PayloadEditor(QWidget* parent);

    /// Makes the payload; to be called once, behind the controls that come before it in tab order.
    void buildPayload();
    PayloadBlock* payload() const { return m_payload; }
    /// Feeds the payload from the line, and lays out its rows.
    void feedPayload();
    void layOutRows();

private:
    PayloadBlock* m_payload = nullptr;
};

} // namespace gui
