#include "traffic/ActiveIdentifiers.h"

#include "comm/BatchListeners.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "message/MessageCtrl.h"
#include "profile/IdentifierChoice.h"
#include "tests/unit/profile/AllocationCount.h"

#include <gmock/gmock.h>

// What the dialog that selects an identifier decides without widgets.

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zul::MessageCan;

MessageContainer batchOf(std::initializer_list<std::uint32_t> ids)
{
    MessageContainer batch;
    for (const std::uint32_t id : ids) {
        auto* frame = new MessageCan;
        frame->setId(id);
        batch.addMessage(SmartPtr<Message>(frame));
    }
    return batch;
}

TEST(ActiveIdentifiers, EachIsGivenOnceInTheOrderOfTheFirstFrames)
{
    ActiveIdentifiers active;
    EXPECT_THAT(active.update(batchOf({7, 3, 7, 0x1FFFFFFF})), ElementsAre(7, 3, 0x1FFFFFFF));
    EXPECT_THAT(active.update(batchOf({3, 9, 7})), ElementsAre(9));
    EXPECT_THAT(active.update(batchOf({9})), IsEmpty());
    EXPECT_EQ(active.count(), 4);
}

TEST(ActiveIdentifiers, ZeroAndAllBitsSetAreIdentifiersLikeOthers)
{
    ActiveIdentifiers active;
    EXPECT_THAT(active.update(batchOf({0, 0xFFFFFFFF, 0})), ElementsAre(0, 0xFFFFFFFF));
}

TEST(ActiveIdentifiers, WhatIsNoFrameIsPassedOver)
{
    MessageContainer batch = batchOf({5});
    batch.addMessage(SmartPtr<Message>(new zul::MessageCtrl));
    batch.addMessage(SmartPtr<Message>());
    ActiveIdentifiers active;
    EXPECT_THAT(active.update(batch), ElementsAre(5));
}

TEST(ActiveIdentifiers, NoneIsKeptBeyondTheMost)
{
    ActiveIdentifiers active;
    for (std::uint32_t id = 0; id < ActiveIdentifiers::maxIdentifiers - 1U; ++id) {
        active.update(batchOf({id}));
    }
    EXPECT_THAT(active.update(batchOf({0x1000000, 0x1000001})), ElementsAre(0x1000000));
    EXPECT_THAT(active.update(batchOf({0x1000001})), IsEmpty());
    EXPECT_EQ(active.count(), 100'000);
}

TEST(ActiveIdentifiers, AfterClearAllAreNewAgain)
{
    ActiveIdentifiers active;
    active.update(batchOf({1, 2}));
    active.clear();
    EXPECT_EQ(active.count(), 0);
    EXPECT_THAT(active.update(batchOf({2})), ElementsAre(2));
}

TEST(ActiveIdentifiers, KnownIdentifierTakesNoMemory)
{
    MessageContainer batch = batchOf({1, 2, 3, 0x10000000, 2});
    ActiveIdentifiers active;
    active.update(batch);
    const std::uint64_t before = zul::test::allocationCount();
    active.update(batch);
    EXPECT_EQ(zul::test::allocationCount(), before);
}

TEST(ActiveIdentifiers, TextIsDecimalBelow2048AndHexadecimalFromThereOn)
{
    EXPECT_EQ(activeIdentifierText(0), "0");
    EXPECT_EQ(activeIdentifierText(2047), "2047");
    EXPECT_EQ(activeIdentifierText(2048), "0x800");
    EXPECT_EQ(activeIdentifierText(0x1FFFFFFF), "0x1fffffff");
    EXPECT_EQ(activeIdentifierText(0xFFFFFFFF), "0xffffffff");
}

TEST(IdentifierChoice, ParameterOfAProfileIsCopied)
{
    ProfileParameter parameter;
    parameter.id = 99;
    parameter.nme = QStringLiteral("Pitch");
    parameter.parameterKind = ParameterKind::Arinc825;
    IdentifierChoice choice;
    choice.takeParameter(55, &parameter);
    EXPECT_EQ(choice.id, 55U);
    EXPECT_EQ(choice.parameter.nme, QStringLiteral("Pitch"));
    EXPECT_EQ(choice.parameter.serial, parameter.serial);
    EXPECT_EQ(choice.parameter.parameterKind, ParameterKind::Arinc825);
}

TEST(IdentifierChoice, WithoutAParameterTheOneBeforeStays)
{
    ProfileParameter parameter;
    parameter.nme = QStringLiteral("Pitch");
    IdentifierChoice choice;
    choice.takeParameter(55, &parameter);
    choice.takeParameter(0, nullptr);
    EXPECT_EQ(choice.id, 0U);
    EXPECT_EQ(choice.parameter.nme, QStringLiteral("Pitch"));
}

TEST(IdentifierChoice, ActiveIdentifierReadsRawBytesAndKeepsAllOtherFields)
{
    ProfileParameter parameter;
    parameter.id = 99;
    parameter.nme = QStringLiteral("Pitch");
    parameter.parameterKind = ParameterKind::Arinc825;
    IdentifierChoice choice;
    choice.takeParameter(99, &parameter);
    choice.takeActive(7);
    EXPECT_EQ(choice.id, 7U);
    EXPECT_EQ(choice.parameter.id, 7U);
    EXPECT_EQ(choice.parameter.parameterKind, ParameterKind::Raw);
    EXPECT_EQ(choice.parameter.nme, QStringLiteral("Pitch"));
}

TEST(BatchListeners, RemovedListenerHearsNothingMore)
{
    comm::BatchListeners listeners;
    int first = 0;
    int second = 0;
    const int number = listeners.add([&](MessageContainer&) { ++first; });
    listeners.add([&](MessageContainer&) { ++second; });
    MessageContainer batch;
    listeners.notify(batch);
    listeners.remove(number);
    listeners.remove(number); // and nobody else
    listeners.remove(0);
    listeners.notify(batch);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 2);
}

} // namespace
