#include "measure/Statistic.h"

#include "message/MessageContainer.h"
#include "project/Filter.h"
#include "project/ObjectStatistic.h"

StatisticView statisticView(std::int32_t number)
{
    for (const StatisticViewTexts& texts : statisticViews) {
        if (static_cast<std::int32_t>(texts.view) == number) {
            return texts.view;
        }
    }
    return StatisticView::Average;
}

Statistic::Statistic(double now) : m_lastWall(now), m_clock(now) {}

Statistic::Update Statistic::receive(const MessageContainer& batch,
                                     const StatisticSettings& settings,
                                     const std::string& inputInterface, const Filter& filter,
                                     double now)
{
    m_clock += now - m_lastWall;
    m_lastWall = now;
    if (inputInterface != allInterfaces && inputInterface != batch.srcDest()) {
        return Update::Ignored;
    }
    m_table.beginBatch(m_clock);
    for (const auto& message : batch.messages()) {
        const auto* frame = message_cast<zul::MessageCan>(message.get());
        if (frame == nullptr) {
            continue;
        }
        m_clock = frame->timeStampDouble();
        ++m_receivedTotal;
        if (settings.inputOn && filter.matches(frame->id())) {
            add(*frame, settings, now);
        }
    }
    m_table.endBatch(m_clock);
    return Update::Taken;
}

void Statistic::add(const zul::MessageCan& frame, const StatisticSettings& settings, double now)
{
    switch (statisticView(settings.displayType)) {
    case StatisticView::Average:
    case StatisticView::PeriodTime:
        m_table.add(frame);
        break;
    case StatisticView::Spreading:
        if (frame.id() == settings.selectedId) {
            m_spread.add(frame.timeStampDouble(), now);
        }
        break;
    case StatisticView::BusLoad:
        m_busLoad.add(frame.timeStampDouble());
        break;
    }
}

void Statistic::clear()
{
    clearForView();
    m_busLoad.clear();
}

void Statistic::clearForView()
{
    m_table.clear();
    m_spread.clear();
}
