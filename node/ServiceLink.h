#pragma once

class MessageContainer;

/// What a service's client needs of the world: a way to the bus, and one clock to wait by.
class ServiceLink
{
public:
    /// How long a client waits for an answer.
    static constexpr int timeoutMs = 1000;

    ServiceLink() = default;
    virtual ~ServiceLink();
    ServiceLink(const ServiceLink&) = delete;
    ServiceLink& operator=(const ServiceLink&) = delete;

    virtual void sendToNode(MessageContainer& batch) = 0;
    /// From now on; a clock that runs starts anew.
    virtual void startTimer() = 0;
    virtual void stopTimer() = 0;
};
