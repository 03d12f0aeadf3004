#include "core/Observer.h"

#include "core/ObserverModel.h"

#include <algorithm>

namespace gui {

Observer::Observer() = default;

Observer::~Observer()
{
    const std::vector<ObserverModel*> models = m_models; // detaching takes them off the list
    for (ObserverModel* model : models) {
        model->detach(this);
    }
}

void Observer::update(ObserverModel*, int) {}

void Observer::observe(ObserverModel* model, int aspect)
{
    m_models.push_back(model);
    model->attach(this, aspect);
}

const std::vector<ObserverModel*>& Observer::models() const
{
    return m_models;
}

void Observer::forget(ObserverModel* model)
{
    m_models.erase(std::remove(m_models.begin(), m_models.end(), model), m_models.end());
}

} // namespace gui
