#pragma once

#include "message/Message.h"

/// The request to show the About box.
class MessageGuiAboutDialog : public Message
{
public:
    static constexpr std::int32_t messageType = 2;

    MessageGuiAboutDialog();
    ~MessageGuiAboutDialog() override;
};
