#pragma once

#include "tests/unit/virtual/BusFixture.h"

#include <cstdint>
#include <string>
#include <vector>

/// A program's device, and another one with a node on the same bus.
class NodeFixture : public BusFixture
{
protected:
    using Bytes = std::vector<std::uint8_t>;

    void openNode(const Properties& properties)
    {
        m_node = openDevice(properties);
        m_program = openDevice({});
    }
    void sendBytes(std::uint32_t id, const Bytes& bytes, bool isExtended = false)
    {
        zul::MessageCan message = frame(id, static_cast<std::uint32_t>(bytes.size()));
        if (isExtended) {
            message.setMode(canvirtual::FrameMode::Extended);
        }
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            message.msg()[static_cast<std::int32_t>(i)] = bytes[i];
        }
        ASSERT_TRUE(m_program->sendMessage(&message)) << m_program->errorMsg();
    }
    /// What the program receives in `span`.
    Received listen(canvirtual::BusTime span) { return run(*m_program, span); }
    /// Identifier and payload of each frame that the program receives in `span`.
    std::vector<std::string> answers(canvirtual::BusTime span = 20 * canvirtual::millisecond)
    {
        std::vector<std::string> texts;
        for (const auto& received : listen(span).frames) {
            texts.push_back(textOf(*received));
        }
        return texts;
    }
    static std::string textOf(const zul::MessageCan& frame)
    {
        std::array<char, 16> part{};
        std::snprintf(part.data(), part.size(), "%x:", frame.id());
        std::string text = part.data();
        for (std::uint32_t i = 0; i < frame.byteCount(); ++i) {
            std::snprintf(part.data(), part.size(), " %02X",
                          frame.msg()[static_cast<std::int32_t>(i)]);
            text += part.data();
        }
        return text;
    }
    using Texts = std::vector<std::string>;

    std::unique_ptr<canvirtual::VirtualDevice> m_node;
    std::unique_ptr<canvirtual::VirtualDevice> m_program;
};
