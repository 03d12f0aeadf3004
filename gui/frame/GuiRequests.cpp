#include "gui/frame/GuiRequests.h"

#include <utility>

namespace gui {

namespace {

GuiRequests::Handler& currentHandler()
{
    static GuiRequests::Handler handler;
    return handler;
}

} // namespace

void GuiRequests::setHandler(Handler handler)
{
    currentHandler() = std::move(handler);
}

void GuiRequests::send(std::unique_ptr<Message> request)
{
    if (currentHandler()) {
        currentHandler()(std::move(request));
    }
}

} // namespace gui
