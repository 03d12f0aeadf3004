#include "message/MessageStatus.h"

namespace zul {

MessageStatus::MessageStatus() = default;

MessageStatus::~MessageStatus() = default;

MessageStatus::MessageStatus(const MessageStatus& other) = default;

MessageStatus& MessageStatus::operator=(const MessageStatus& other) = default;

} // namespace zul
