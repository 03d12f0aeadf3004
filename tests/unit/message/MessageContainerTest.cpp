#include "message/MessageContainer.h"

#include "message/MessageCan.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

TEST(MessageContainer, KeepsOrderSizeAndDestination)
{
    MessageContainer batch;
    EXPECT_EQ(batch.size(), 0U);
    EXPECT_EQ(batch.srcDest(), "");
    batch.addMessage(SmartPtr<Message>(new Message(3)));
    batch.addMessage(SmartPtr<Message>(new Message(4)));
    batch.setSrcDest("All Interfaces");
    EXPECT_EQ(batch.size(), 2U);
    EXPECT_EQ(batch.messages()[0]->type(), 3);
    EXPECT_EQ(batch.messages()[1]->type(), 4);
    batch.srcDest() += "!";
    EXPECT_EQ(batch.srcDest(), "All Interfaces!");
}

TEST(MessageContainer, CopySharesTheMessagesAndOutlivesTheFirst)
{
    auto first = std::make_unique<MessageContainer>();
    first->addMessage(SmartPtr<Message>(new zul::MessageCan));
    const MessageContainer copy(*first);
    EXPECT_EQ(copy.messages()[0].useCount(), 2U);
    EXPECT_EQ(copy.messages()[0].get(), first->messages()[0].get());
    first.reset();
    EXPECT_EQ(copy.messages()[0].useCount(), 1U);
    EXPECT_NE(message_cast<zul::MessageCan>(copy.messages()[0].get()), nullptr);
}

} // namespace
