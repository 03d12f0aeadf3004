#pragma once

#include "project/ObjectTypes.h"

#include <functional>
#include <map>

class Object;
class ObjectWindow;
class QWidget;

/// Who makes the window of an object: filled once at start-up by the one place that knows all
/// windows, so that objects need to know none of them.
class WindowMakers
{
public:
    /// Makes the window of `object` as a child of `parent`. The window owns itself.
    using Maker = std::function<ObjectWindow*(Object& object, QWidget* parent)>;

    static WindowMakers& instance();

    void set(ObjectType type, Maker maker);
    void clear();
    /// The object's new window, or null for a type without a maker.
    ObjectWindow* make(Object& object, QWidget* parent) const;

private:
    std::map<ObjectType, Maker> m_makers;
};
