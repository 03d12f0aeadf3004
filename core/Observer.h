#pragma once

#include <vector>

namespace gui {

class ObserverModel;

/// Something that wants to be told of changes of an `ObserverModel`.
class Observer
{
public:
    Observer();
    /// Detaches from every model that is still there.
    virtual ~Observer();
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

    /// Called on `ObserverModel::notify`. Does nothing here.
    virtual void update(ObserverModel* model, int aspect);

    /// Attaches this observer to `aspect` of `model`. Observing twice lists the model twice.
    void observe(ObserverModel* model, int aspect);

    const std::vector<ObserverModel*>& models() const;

private:
    friend class ObserverModel;
    void forget(ObserverModel* model);

    std::vector<ObserverModel*> m_models;
};

} // namespace gui
