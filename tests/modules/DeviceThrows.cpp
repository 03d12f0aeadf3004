#include "tests/modules/FixtureDevice.h"

#include <stdexcept>
#include <utility>

namespace {

/// A fixture device whose operations throw, as the contract forbids: those that the property
/// "Throws" names, with blanks between them; all but `setProperty` while it is not set.
class DeviceThatThrows : public fixture::FixtureDevice
{
public:
    using FixtureDevice::FixtureDevice;

    DeviceInfo info() override
    {
        mayThrow("info");
        return FixtureDevice::info();
    }

    bool open() override
    {
        mayThrow("open");
        return FixtureDevice::open();
    }

    bool close() override
    {
        mayThrow("close");
        return FixtureDevice::close();
    }

    DeviceStatus status() override
    {
        mayThrow("status");
        return FixtureDevice::status();
    }

    std::string errorMsg() override
    {
        mayThrow("errorMsg");
        return FixtureDevice::errorMsg();
    }

    std::int32_t baudrate() override
    {
        mayThrow("baudrate");
        return FixtureDevice::baudrate();
    }

    bool sendMessage(Message* message) override
    {
        mayThrow("sendMessage");
        return FixtureDevice::sendMessage(message);
    }

    Message* recvMessage() override
    {
        if (isToThrow("recvMessage")) {
            throw 42; // not every exception is a std::exception
        }
        return FixtureDevice::recvMessage();
    }

    void setProperty(std::string key, std::string value) override
    {
        if (key == "Throws") {
            const std::lock_guard<std::mutex> lock(m_throwsMutex);
            m_throws = " " + value + " ";
            return;
        }
        mayThrow("setProperty");
        FixtureDevice::setProperty(std::move(key), std::move(value));
    }

private:
    bool isToThrow(const std::string& operation)
    {
        const std::lock_guard<std::mutex> lock(m_throwsMutex);
        return m_throws.find(" " + operation + " ") != std::string::npos;
    }

    void mayThrow(const std::string& operation)
    {
        if (isToThrow(operation)) {
            throw std::runtime_error(operation + " of the fixture");
        }
    }

    std::mutex m_throwsMutex;
    std::string m_throws = " info open close status errorMsg baudrate sendMessage recvMessage ";
};

} // namespace

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    return fixture::describe("Device throws", "libCanDeviceThrows");
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    return new DeviceThatThrows(getInfo());
}
