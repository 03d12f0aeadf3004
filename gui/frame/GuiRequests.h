#pragma once

#include "message/Message.h"

#include <functional>
#include <memory>

namespace gui {

/// Takes what windows ask the main window for. The main window sets the handler; without one a
/// request is dropped.
class GuiRequests
{
public:
    using Handler = std::function<void(std::unique_ptr<Message> request)>;

    static void setHandler(Handler handler);
    static void send(std::unique_ptr<Message> request);
};

} // namespace gui
