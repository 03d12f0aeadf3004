#include "gui/traffic/PayloadEditor.h"

#include "gui/traffic/PayloadBlock.h"
#include "traffic/MessageEntry.h"

namespace gui {

PayloadEditor::PayloadEditor(QWidget* parent) : MessageEditor(parent) {}

PayloadEditor::~PayloadEditor() = default;

void PayloadEditor::buildPayload()
{
    m_payload = new PayloadBlock(this);
}

void PayloadEditor::feedPayload()
{
    m_payload->show(msg(), numberType());
    layOutRows();
}

void PayloadEditor::layOutRows()
{
    const int height = messageentry::editorHeight(msg().byteCount);
    m_payload->layOutRows(msg().byteCount);
    setFixedHeight(height);
    emit signalHeight(index(), static_cast<unsigned>(height));
}

} // namespace gui
