#include "modules/virtual/DeviceSettings.h"

#include "modules/virtual/BitTiming.h"
#include "modules/virtual/DeviceDescription.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <string>
#include <vector>

using namespace canvirtual;

namespace {

using Properties = std::map<std::string, std::string>;

Properties textsOf(const DeviceSettings& settings)
{
    Properties properties;
    settings.writeTo(properties);
    return properties;
}

TEST(DeviceSettings, DefaultsAgreeWithOneAnother)
{
    const DeviceSettings settings;
    const Properties properties = textsOf(settings);
    EXPECT_EQ(properties.at("BitRate"), "1000000");
    EXPECT_EQ(properties.at("BTR"), "20");
    EXPECT_EQ(properties.at("NBTP"), "0x1E003E0F");
    EXPECT_EQ(properties.at("DBTP"), "0x00001E77");
    EXPECT_EQ(properties.at("TDCR"), "0x00002000");
    EXPECT_EQ(properties.at("BusName"), "Bus A");
    EXPECT_EQ(settings.rates().nominal, 1'000'000);
    EXPECT_EQ(settings.rates().data, 2'000'000);
    EXPECT_FALSE(settings.receiveOwn());
    EXPECT_EQ(settings.scenario(), ScenarioId::None);
}

TEST(DeviceSettings, BitRateSetsTheRegisters)
{
    DeviceSettings settings;
    settings.set("BitRate", "500000");
    const Properties properties = textsOf(settings);
    EXPECT_EQ(properties.at("BTR"), "28"); // 0x001C
    EXPECT_EQ(properties.at("NBTP"), "0x3E007E1F");
}

TEST(DeviceSettings, RegistersSetTheBitRate)
{
    DeviceSettings settings;
    settings.set("NBTP", "0x3e017e1f");
    EXPECT_EQ(settings.rates().nominal, 250'000);
    EXPECT_EQ(bitRateFromBtr(settings.btr()), 250'000);
    EXPECT_EQ(textsOf(settings).at("NBTP"), "0x3E017E1F");
    settings.set("BTR", "796"); // 0x031C
    EXPECT_EQ(settings.rates().nominal, 125'000);
    EXPECT_EQ(bitRateFromNbtp(settings.nbtp()), 125'000);
    settings.set("DBTP", "0x00800E33");
    EXPECT_EQ(settings.rates().data, 4'000'000);
    EXPECT_EQ(settings.rates().nominal, 125'000);
}

TEST(DeviceSettings, RegisterOfTheSameBitRateLeavesTheOthersAlone)
{
    DeviceSettings settings;
    settings.set("BitRate", "500000");
    settings.set("NBTP", "0x26008A13"); // 500 kbit/s at another sample point
    settings.set("BTR", "58");
    EXPECT_EQ(textsOf(settings).at("NBTP"), "0x26008A13");
    EXPECT_EQ(textsOf(settings).at("BTR"), "58");
    settings.set("BitRate", "500000");
    EXPECT_EQ(textsOf(settings).at("NBTP"), "0x26008A13");
}

TEST(DeviceSettings, TextThatIsNoNumberChangesNothing)
{
    DeviceSettings settings;
    settings.set("BitRate", "250000");
    const Properties before = textsOf(settings);
    for (const char* key : {"BitRate", "BTR", "NBTP", "DBTP", "TDCR", "ReceiveOwn", "Scenario"}) {
        for (const char* value : {"", " ", "fast", "0x", "12abc", "1e6", "99999999999999999999",
                                  "-99999999999", "--1", "0x1G", "4294967296"}) {
            EXPECT_TRUE(settings.set(key, value));
            EXPECT_EQ(textsOf(settings), before) << key << " " << value;
        }
    }
    EXPECT_TRUE(settings.set("BitRate", "0"));
    EXPECT_TRUE(settings.set("BitRate", "-1"));
    EXPECT_TRUE(settings.set("Scenario", "9"));
    EXPECT_TRUE(settings.set("ReceiveOwn", "2"));
    EXPECT_EQ(textsOf(settings), before);
}

TEST(DeviceSettings, NodeHasItsOwnProperties)
{
    DeviceSettings settings;
    EXPECT_EQ(settings.node().kind, NodeKind::None);
    EXPECT_EQ(settings.node().id, 1);
    EXPECT_EQ(settings.node().pacing, 0);
    EXPECT_EQ(settings.node().fault, NodeFault::None);
    settings.set("Node", "2");
    settings.set("NodeId", "255");
    settings.set("NodePacing", "3");
    settings.set("NodeFault", "6");
    EXPECT_EQ(settings.node().kind, NodeKind::FunctionGenerator);
    EXPECT_EQ(settings.node().id, 255);
    EXPECT_EQ(settings.node().pacing, 3);
    EXPECT_EQ(settings.node().fault, NodeFault::NoEnd);
    const Properties before = textsOf(settings);
    EXPECT_EQ(before.at("Node"), "2");
    EXPECT_EQ(before.at("NodeId"), "255");
    EXPECT_EQ(before.at("NodePacing"), "3");
    EXPECT_EQ(before.at("NodeFault"), "6");
    for (const auto& [key, tooLarge] :
         Properties{{"Node", "3"}, {"NodeId", "256"}, {"NodePacing", "4"}, {"NodeFault", "7"}}) {
        EXPECT_TRUE(settings.set(key, tooLarge));
        EXPECT_TRUE(settings.set(key, "-1"));
        EXPECT_TRUE(settings.set(key, "none"));
        EXPECT_EQ(textsOf(settings), before) << key;
    }
    EXPECT_TRUE(settings.set("NodeId", "0"));
    EXPECT_EQ(textsOf(settings), before);
}

TEST(DeviceSettings, UnknownKeyIsTold)
{
    DeviceSettings settings;
    EXPECT_FALSE(settings.set("Colour", "1"));
    EXPECT_FALSE(settings.set("Colour", "red"));
}

TEST(DeviceSettings, NumbersAreReadAsTheEditorsReadThem)
{
    DeviceSettings settings;
    settings.set("BTR", "0x11C");
    EXPECT_EQ(settings.btr(), 0x11CU);
    settings.set("BTR", "034"); // octal
    EXPECT_EQ(settings.btr(), 28U);
    settings.set("NBTP", " -1 ");
    EXPECT_EQ(settings.nbtp(), nbtpMask);
}

TEST(DeviceSettings, AbsurdValuesLeavePositiveBitRatesAndAgreement)
{
    constexpr unsigned seed = 20240611;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::vector<std::string> keys = {"BitRate", "BTR", "NBTP", "DBTP", "TDCR"};
    const std::vector<std::uint32_t> corners = {0,          1,          0x7F,       0xFFFF,
                                                0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, 0xFE00007F};
    DeviceSettings settings;
    for (int round = 0; round < 5000; ++round) {
        const std::string& key = keys[random() % keys.size()];
        const auto value = static_cast<std::uint32_t>(
            round % 3 == 0 ? corners[random() % corners.size()] : random());
        settings.set(key, std::to_string(value));
        const BusRates rates = settings.rates();
        ASSERT_GT(rates.nominal, 0) << key << "=" << value;
        ASSERT_GT(rates.data, 0) << key << "=" << value;
        ASSERT_LE(rates.nominal, 26'666'667);
        // One of the two registers gives the bit rate; the other comes as near as it can.
        ASSERT_TRUE(bitRateFromNbtp(settings.nbtp()) == rates.nominal ||
                    bitRateFromBtr(settings.btr()) == rates.nominal);
        if (key != "BTR") {
            ASSERT_EQ(bitRateFromNbtp(settings.nbtp()), rates.nominal);
        }
        ASSERT_EQ(textsOf(settings).at("BitRate"), std::to_string(rates.nominal));
    }
}

TEST(DeviceSettings, SavedValuesGiveTheSameSettingsInAnyOrder)
{
    constexpr unsigned seed = 7;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 300; ++round) {
        DeviceSettings settings;
        const std::vector<std::string> bitRates = {"1000000", "500000", "83333", "125000"};
        settings.set("BitRate", bitRates[random() % bitRates.size()]);
        if (round % 2 == 0) {
            settings.set("BTR", std::to_string(random() & 0xFFFFU));
        }
        const Properties saved = textsOf(settings);
        std::vector<std::pair<std::string, std::string>> order(saved.begin(), saved.end());
        std::shuffle(order.begin(), order.end(), random);
        DeviceSettings restored;
        for (const auto& [key, value] : order) {
            restored.set(key, value);
        }
        ASSERT_EQ(textsOf(restored), saved) << "round " << round;
    }
}

TEST(DeviceSettings, SavedValuesOfAnyNbtpComeBackInMapOrder)
{
    constexpr unsigned seed = 8;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 300; ++round) {
        DeviceSettings settings;
        settings.set("NBTP", std::to_string(static_cast<std::uint32_t>(random())));
        const Properties saved = textsOf(settings);
        DeviceSettings restored;
        for (const auto& [key, value] : saved) {
            restored.set(key, value);
        }
        ASSERT_EQ(textsOf(restored), saved) << "round " << round;
    }
}

TEST(BitTiming, EveryBtrBitRateHasAnExactNbtp)
{
    for (std::uint32_t btr = 0; btr <= 0xFFFF; ++btr) {
        const std::int32_t rate = bitRateFromBtr(btr);
        ASSERT_EQ(bitRateFromNbtp(nbtpForBitRate(rate)), rate) << btr;
    }
}

TEST(DeviceDescription, EveryEditorKindHasAUser)
{
    const DeviceInfo info = deviceDescription();
    EXPECT_EQ(info.displayName, "Virtual CAN Bus");
    EXPECT_EQ(info.moduleName, "libCanVirtual");
    std::set<int> kinds;
    std::set<std::string> keys;
    for (const DeviceProperty& property : info.properties) {
        kinds.insert(static_cast<int>(property.kind));
        EXPECT_TRUE(keys.insert(property.key).second) << property.key;
        EXPECT_FALSE(property.label.empty());
        EXPECT_EQ(property.choices.empty(), property.kind == PropertyKind::Text);
    }
    EXPECT_EQ(kinds, (std::set<int>{0, 1, 2, 3, 4, 5, 6}));
    const Properties defaults = textsOf(DeviceSettings());
    EXPECT_EQ(keys.size(), defaults.size());
    for (const auto& [key, value] : defaults) {
        EXPECT_EQ(keys.count(key), 1U) << key;
    }
}

TEST(DeviceDescription, EveryChoiceIsTakenAsItIs)
{
    const DeviceInfo info = deviceDescription();
    for (const DeviceProperty& property : info.properties) {
        if (property.kind == PropertyKind::Text ||
            property.kind == PropertyKind::EditableSelection) {
            continue;
        }
        std::set<std::int32_t> values;
        for (const PropertyChoice& choice : property.choices) {
            EXPECT_TRUE(values.insert(choice.value).second) << choice.text;
            DeviceSettings settings;
            settings.set(property.key, std::to_string(choice.value));
            const std::string text = textsOf(settings).at(property.key);
            EXPECT_EQ(std::stoll(text, nullptr, 0), choice.value) << property.key;
        }
    }
}

} // namespace
