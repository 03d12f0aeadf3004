#pragma once

/// Everything that a device module may see, in one include.
#include "message/Device.h"
#include "message/DeviceInfo.h"
#include "message/DeviceStatus.h"
#include "message/Message.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "message/MessageCtrl.h"
#include "message/MessageData.h"
#include "message/MessageInterfaceExport.h"
#include "message/MessageStatus.h"
#include "message/SmartPtr.h"
