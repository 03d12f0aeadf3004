#pragma once

#include <map>
#include <set>

namespace gui {

class Observer;

/// A subject with numbered aspects. The observers of an aspect are called in no particular order.
class ObserverModel
{
public:
    ObserverModel();
    virtual ~ObserverModel();
    ObserverModel(const ObserverModel&) = delete;
    ObserverModel& operator=(const ObserverModel&) = delete;

    virtual void attach(Observer* observer, int aspect);
    /// Takes the observer off every aspect; it forgets this model.
    virtual void detach(Observer* observer);
    /// Calls the observers of `aspect`; with aspect 0 every attached observer. An observer that is
    /// detached by one called before it is left out.
    virtual void notify(int aspect);

private:
    std::set<Observer*> m_observers;
    std::map<int, std::set<Observer*>> m_byAspect;
};

} // namespace gui
