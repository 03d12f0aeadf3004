#include "app/Composition.h"

#include "comm/CanInterface.h"
#include "gui/controls/Look.h"
#include "gui/measure/DialogDial.h"
#include "gui/measure/DialogGraph.h"
#include "gui/measure/DialogStatistic.h"
#include "gui/node/DialogFunctionGen.h"
#include "gui/node/DialogNodeService.h"
#include "gui/traffic/DialogReceive.h"
#include "gui/traffic/DialogReplay.h"
#include "gui/traffic/DialogStatus.h"
#include "gui/traffic/DialogTrace.h"
#include "gui/traffic/DialogTransmit.h"
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

namespace app {

namespace {

constexpr int iconExtent = 32; // pixels; icons are shown at half of it and more

ObjectTypeInfo withIcon(ObjectTypeInfo info, const char* name)
{
    info.icon = gui::icon(name).pixmap(iconExtent);
    return info;
}

// Every window gets its type's title and its object's name in one place.
template <typename Window, typename WindowedObject = Object>
void registerMaker(ObjectType type, const char* typeTitle, const char* iconName)
{
    WindowMakers::instance().set(type, [=](Object& object, QWidget* parent) -> ObjectWindow* {
        auto* windowed = dynamic_cast<WindowedObject*>(&object);
        if (windowed == nullptr) {
            return nullptr;
        }
        auto* dialog = new Window(windowed, parent);
        dialog->setTypeTitle(QLatin1String(typeTitle));
        dialog->setName(object.name());
        dialog->setWindowIcon(gui::icon(iconName));
        return dialog;
    });
}

template <typename Window, typename WindowedObject>
void registerMaker(ObjectType type, const char* iconName)
{
    registerMaker<Window, WindowedObject>(type, findObjectType(type)->title, iconName);
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
    registerMaker<gui::DialogStatus>(ObjectType::CanInterface, statusType.title, "status");
    registerMaker<gui::DialogReceive, ObjectReceive>(ObjectType::Receive, "receive");
    registerMaker<gui::DialogTransmit, ObjectTransmit>(ObjectType::Transmit, "transmit");
    registerMaker<gui::DialogTrace, ObjectTrace>(ObjectType::Trace, "trace");
    registerMaker<gui::DialogReplay, ObjectReplay>(ObjectType::Replay, "replay");
    registerMaker<gui::DialogGraph, ObjectGraph>(ObjectType::Graph, "oscilloscope");
    registerMaker<gui::DialogDial, ObjectDial>(ObjectType::Dial, "dial");
    registerMaker<gui::DialogNodeService, ObjectNodeService>(ObjectType::NodeService,
                                                             "node-service");
    registerMaker<gui::DialogStatistic, ObjectStatistic>(ObjectType::Statistic, "statistic");
    registerMaker<gui::DialogFunctionGen, ObjectFunctionGen>(ObjectType::FunctionGen,
                                                             "function-gen");
}

} // namespace app
