#include "message/MessageCtrl.h"

namespace zul {

MessageCtrl::MessageCtrl() = default;

MessageCtrl::~MessageCtrl() = default;

MessageCtrl::MessageCtrl(const MessageCtrl& other) = default;

MessageCtrl& MessageCtrl::operator=(const MessageCtrl& other) = default;

MessageCtrl::ECtrl MessageCtrl::id() const
{
    return m_id;
}

void MessageCtrl::setId(ECtrl id)
{
    m_id = id;
}

} // namespace zul
