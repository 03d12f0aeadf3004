#pragma once

#include "message/Message.h"

/// A window's request for a new window of another type.
class MessageGuiDialog : public Message
{
public:
    static constexpr std::int32_t messageType = 1;

    /// `objectType` is a number of `ObjectType`; `parameter` is the new window's to interpret,
    /// mostly an identifier.
    MessageGuiDialog(std::int32_t objectType, std::int32_t parameter);
    ~MessageGuiDialog() override;

    std::int32_t objectType() const { return m_objectType; }
    std::int32_t parameter() const { return m_parameter; }

private:
    std::int32_t m_objectType;
    std::int32_t m_parameter;
};
