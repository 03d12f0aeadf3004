#pragma once

#include "message/DeviceInfo.h"
#include "message/DeviceStatus.h"
#include "message/Message.h"

#include <cstdint>
#include <map>
#include <string>

/// The abstract CAN device that a device module makes.
///
/// A module exports two functions by plain names (`ZUL_MODULE_EXPORT`): `DeviceInfo getInfo()` and
/// `Device* createDevice()`. The application calls `recvMessage` on a reader thread while it calls
/// `sendMessage`, `status`, `baudrate` and `setProperty` on the main thread: a device must accept
/// these at the same time. No operation may throw.
///
/// The order of the virtual operations is part of the contract between application and modules.
class MESSAGE_INTERFACE_EXPORT Device
{
public:
    Device();
    /// The caller closes an open device first.
    virtual ~Device();
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    /// A copy of the description record.
    virtual DeviceInfo info();
    /// Opens the hardware with the current properties. Called only while closed. False on failure,
    /// with the reason in `errorMsg()`.
    virtual bool open() = 0;
    virtual bool close() = 0;
    /// Current bus state; `Closed` also after the hardware has been lost.
    virtual DeviceStatus status() = 0;
    virtual std::string errorMsg();
    virtual void setErrorMsg(const std::string& errorMsg);
    /// Configured bit rate in bits per second.
    virtual std::int32_t baudrate() = 0;
    /// Queues a `MessageCan` or carries out a `MessageCtrl`. The caller keeps the message, so
    /// what is to be kept is copied. False if it could not be queued.
    virtual bool sendMessage(Message* message) = 0;
    /// The next received message, or null if none is waiting. The caller owns it. Never blocks.
    virtual Message* recvMessage() = 0;
    /// Stores the pair in the property map; a device that overrides it also applies it.
    virtual void setProperty(std::string key, std::string value);

    /// The property map, valid as long as the device.
    std::map<std::string, std::string>* properties();
    /// The value text of `key`, empty if there is none.
    std::string getStringProp(const std::string& key);

protected:
    DeviceInfo m_info;
    std::string m_errorMsg;
    std::map<std::string, std::string> m_properties;
};
