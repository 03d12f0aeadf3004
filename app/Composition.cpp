#include "app/Composition.h"

#include "comm/CanInterface.h"
#include "gui/controls/Look.h"
#include "gui/measure/DialogGraph.h"
#include "gui/traffic/DialogReceive.h"
#include "gui/traffic/DialogReplay.h"
#include "gui/traffic/DialogStatus.h"
#include "gui/traffic/DialogTrace.h"
#include "project/ObjectDial.h"
#include "project/ObjectFunctionGen.h"
#include "project/ObjectGraph.h"
#include "project/ObjectNodeService.h"
#include "project/ObjectReceive.h"
#include "project/ObjectReplay.h"
#include "project/ObjectStatistic.h"
#include "project/ObjectTrace.h"
#include "project/ObjectTransmit.h"
#include "project/WindowMakers.h"

#include <QIcon>

#include <functional>

namespace app {

namespace {

constexpr int iconExtent = 32; // pixels; icons are shown at half of it and more

ObjectTypeInfo withIcon(ObjectTypeInfo info, const char* name)
{
    info.icon = gui::icon(name).pixmap(iconExtent);
    return info;
}

// Every window gets its type's title and its object's name in one place.
void registerMaker(ObjectType type, const char* typeTitle, const char* iconName,
                   const std::function<gui::DialogBase*(Object&, QWidget*)>& make)
{
    WindowMakers::instance().set(type, [=](Object& object, QWidget* parent) -> ObjectWindow* {
        gui::DialogBase* dialog = make(object, parent);
        if (dialog != nullptr) {
            dialog->setTypeTitle(QLatin1String(typeTitle));
            dialog->setName(object.name());
            dialog->setWindowIcon(gui::icon(iconName));
        }
        return dialog;
    });
}

} // namespace

std::vector<ObjectTypeInfo> objectTypeInfos()
{
    return {withIcon(comm::CanInterface::typeInfo(), "can-interface"),
            withIcon(ObjectReceive::typeInfo(), "receive"),
            withIcon(ObjectTransmit::typeInfo(), "transmit"),
            withIcon(ObjectTrace::typeInfo(), "trace"),
            withIcon(ObjectReplay::typeInfo(), "replay"),
            withIcon(ObjectGraph::typeInfo(), "oscilloscope"),
            withIcon(ObjectDial::typeInfo(), "dial"),
            withIcon(ObjectNodeService::typeInfo(), "node-service"),
            withIcon(ObjectStatistic::typeInfo(), "statistic"),
            withIcon(ObjectFunctionGen::typeInfo(), "function-gen")};
}

void registerWindowMakers()
{
    registerMaker(
        ObjectType::CanInterface, statusType.title, "status",
        [](Object& object, QWidget* parent) { return new gui::DialogStatus(&object, parent); });
    registerMaker(ObjectType::Receive, findObjectType(ObjectType::Receive)->title, "receive",
                  [](Object& object, QWidget* parent) -> gui::DialogBase* {
                      auto* receive = dynamic_cast<ObjectReceive*>(&object);
                      return receive != nullptr ? new gui::DialogReceive(receive, parent) : nullptr;
                  });
    registerMaker(ObjectType::Trace, findObjectType(ObjectType::Trace)->title, "trace",
                  [](Object& object, QWidget* parent) -> gui::DialogBase* {
                      auto* trace = dynamic_cast<ObjectTrace*>(&object);
                      return trace != nullptr ? new gui::DialogTrace(trace, parent) : nullptr;
                  });
    registerMaker(ObjectType::Replay, findObjectType(ObjectType::Replay)->title, "replay",
                  [](Object& object, QWidget* parent) -> gui::DialogBase* {
                      auto* replay = dynamic_cast<ObjectReplay*>(&object);
                      return replay != nullptr ? new gui::DialogReplay(replay, parent) : nullptr;
                  });
    registerMaker(ObjectType::Graph, findObjectType(ObjectType::Graph)->title, "oscilloscope",
                  [](Object& object, QWidget* parent) -> gui::DialogBase* {
                      auto* graph = dynamic_cast<ObjectGraph*>(&object);
                      return graph != nullptr ? new gui::DialogGraph(graph, parent) : nullptr;
                  });
}

} // namespace app
