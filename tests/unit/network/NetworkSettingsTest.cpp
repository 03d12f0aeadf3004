#include "modules/network/NetworkSettings.h"

#include "modules/network/DeviceDescription.h"

#include <gtest/gtest.h>

using namespace cannetwork;

namespace {

std::map<std::string, std::string> written(const NetworkSettings& settings)
{
    std::map<std::string, std::string> properties;
    settings.writeTo(properties);
    return properties;
}

TEST(NetworkSettings, EveryPropertyHasAKeyAndAValue)
{
    const auto values = written({});
    const DeviceInfo info = deviceDescription();
    EXPECT_EQ(info.moduleName, "libCanNetwork");
    EXPECT_EQ(info.properties.size(), values.size());
    for (const DeviceProperty& property : info.properties) {
        EXPECT_EQ(values.count(property.key), 1U) << property.key;
    }
}

TEST(NetworkSettings, FirstValues)
{
    const std::map<std::string, std::string> expected{
        {"InterfaceName", "Network 1"}, {"Protocol", "0"},         {"PeerAddress", "127.0.0.1"},
        {"PeerPort", "20000"},          {"LocalPort", "20000"},    {"FlushTime", "1000"},
        {"AcceptOthers", "0"},          {"Group", "239.74.163.2"}, {"GroupPort", "43113"},
        {"BitRate", "1000000"},         {"ReceiveOwn", "0"}};
    EXPECT_EQ(written({}), expected);
}

TEST(NetworkSettings, ValuesAreTaken)
{
    const std::map<std::string, std::string> other{
        {"InterfaceName", "A"},    {"Protocol", "1"},      {"PeerAddress", "::1"},
        {"PeerPort", "1"},         {"LocalPort", "65535"}, {"FlushTime", "0"},
        {"AcceptOthers", "1"},     {"Group", "ff15::1"},   {"GroupPort", "2"},
        {"BitRate", "2000000000"}, {"ReceiveOwn", "1"}};
    NetworkSettings settings;
    for (const auto& [key, value] : other) {
        EXPECT_TRUE(settings.set(key, value)) << key;
    }
    EXPECT_EQ(written(settings), other);
    EXPECT_FALSE(settings.set("Colour", "red"));
}

TEST(NetworkSettings, WhatIsNoValueChangesNothing)
{
    NetworkSettings settings;
    for (const char* key : {"Protocol", "PeerPort", "LocalPort", "FlushTime", "AcceptOthers",
                            "GroupPort", "BitRate", "ReceiveOwn"}) {
        for (const char* value : {"", "x", "-1", "4294967296"}) {
            EXPECT_TRUE(settings.set(key, value));
        }
    }
    settings.set("Protocol", "2");
    settings.set("PeerPort", "0");
    settings.set("PeerPort", "65536");
    settings.set("FlushTime", "1000001");
    settings.set("AcceptOthers", "2");
    settings.set("BitRate", "0");
    EXPECT_EQ(written(settings), written({}));
}

} // namespace
