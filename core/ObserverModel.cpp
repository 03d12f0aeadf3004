#include "core/ObserverModel.h"

#include "core/Observer.h"

namespace gui {

ObserverModel::ObserverModel() = default;

ObserverModel::~ObserverModel()
{
    for (Observer* observer : m_observers) {
        observer->forget(this);
    }
}

void ObserverModel::attach(Observer* observer, int aspect)
{
    m_observers.insert(observer);
    m_byAspect[aspect].insert(observer);
}

void ObserverModel::detach(Observer* observer)
{
    m_observers.erase(observer);
    for (auto& entry : m_byAspect) {
        entry.second.erase(observer);
    }
    // Otherwise an observer that outlives the model would detach from a dead one.
    observer->forget(this);
}

void ObserverModel::notify(int aspect)
{
    // A copy: an update may attach or detach.
    const std::set<Observer*> observers = aspect == 0 ? m_observers : m_byAspect[aspect];
    for (Observer* observer : observers) {
        if (m_observers.count(observer) != 0) {
            observer->update(this, aspect);
        }
    }
}

} // namespace gui
