#include "message/MessageInterface.h"

#include <gtest/gtest.h>

// Modules that were built earlier read these objects by their layout: a change here breaks them.

namespace {

TEST(Layout, SizesOnA64BitHost)
{
    if (sizeof(void*) != 8) {
        SUCCEED() << "the numbers below are those of a 64-bit host";
        return;
    }
    EXPECT_EQ(sizeof(Message), 24U);
    EXPECT_EQ(sizeof(zul::MessageData), 64U);
    EXPECT_EQ(sizeof(zul::MessageCan), 120U);
    EXPECT_EQ(sizeof(zul::MessageCtrl), 24U);
    EXPECT_EQ(sizeof(zul::MessageCan::TimeStamp), 8U);
    EXPECT_EQ(sizeof(SmartPtr<Message>), sizeof(void*));
    EXPECT_EQ(sizeof(DeviceStatus), 4U);
    EXPECT_EQ(sizeof(PropertyKind), 4U);
}

// Calls every operation of Device through its slot, in slot order, and notes which one answered.
class SlotDevice : public Device
{
public:
    explicit SlotDevice(std::string& log) : m_log(log) {}
    ~SlotDevice() override { m_log += '1'; }
    DeviceInfo info() override
    {
        m_log += '2';
        return {};
    }
    bool open() override { return note('3'); }
    bool close() override { return note('4'); }
    DeviceStatus status() override
    {
        m_log += '5';
        return DeviceStatus::Open;
    }
    std::string errorMsg() override
    {
        m_log += '6';
        return {};
    }
    void setErrorMsg(const std::string&) override { m_log += '7'; }
    std::int32_t baudrate() override
    {
        m_log += '8';
        return 0;
    }
    bool sendMessage(Message*) override { return note('9'); }
    Message* recvMessage() override
    {
        m_log += 'a';
        return nullptr;
    }
    void setProperty(std::string, std::string) override { m_log += 'b'; }

private:
    bool note(char slot)
    {
        m_log += slot;
        return true;
    }
    std::string& m_log;
};

#if defined(__GNUC__) && defined(__x86_64__)
// By the Itanium C++ ABI the destructor takes the first two slots; a bool() slot can be called as a
// plain function that takes the object.
TEST(Layout, OpenAndCloseStandInTheirSlots)
{
    std::string log;
    SlotDevice device(log);
    using BoolSlot = bool (*)(Device*);
    BoolSlot** vtable = reinterpret_cast<BoolSlot**>(static_cast<Device*>(&device));
    EXPECT_TRUE((*vtable)[3](&device));
    EXPECT_TRUE((*vtable)[4](&device));
    EXPECT_EQ(log, "34");
}
#endif

} // namespace
