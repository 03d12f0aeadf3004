#include "project/WindowMakers.h"

#include "project/Object.h"

#include <utility>

WindowMakers& WindowMakers::instance()
{
    static auto* makers = new WindowMakers; // lives until process exit
    return *makers;
}

void WindowMakers::set(ObjectType type, Maker maker)
{
    m_makers[type] = std::move(maker);
}

void WindowMakers::clear()
{
    m_makers.clear();
}

ObjectWindow* WindowMakers::make(Object& object, QWidget* parent) const
{
    const auto found = m_makers.find(object.type());
    return found != m_makers.end() ? found->second(object, parent) : nullptr;
}
