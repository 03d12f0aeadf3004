#include "gui/frame/MessageGuiDialog.h"

MessageGuiDialog::MessageGuiDialog(std::int32_t objectType, std::int32_t parameter)
    : Message(messageType), m_objectType(objectType), m_parameter(parameter)
{
}

MessageGuiDialog::~MessageGuiDialog() = default;
