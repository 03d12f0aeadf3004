#pragma once

class MessageContainer;
class Object;

/// What an object sees of its open window.
class ObjectWindow
{
public:
    virtual ~ObjectWindow() = default;

    /// Gives the window another object, or null when its object is gone.
    virtual void setObject(Object* object) = 0;
    /// Takes one batch; called at every poll of every interface, also with an empty batch.
    virtual void receive(MessageContainer& batch) = 0;
    /// The object's settings have changed: shows them.
    virtual void updateDialog() = 0;

protected:
    ObjectWindow() = default;
    ObjectWindow(const ObjectWindow&) = default;
    ObjectWindow& operator=(const ObjectWindow&) = default;
};
