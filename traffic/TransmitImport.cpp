#include "traffic/TransmitImport.h"

#include "profile/ProfileNumbers.h"
#include "profile/XmlSource.h"

#include <algorithm>
#include <limits>
#include <memory>

namespace transmitimport {

namespace {

constexpr const char* messageElement = "CanMsg";

// What is no number, or one that 32 bits do not hold, gives 0.
std::uint32_t wordOf(const QXmlStreamAttributes& attributes, const char* name)
{
    return static_cast<std::uint32_t>(zul::xmlText(attributes, name).toInt());
}

float singleOf(const QXmlStreamAttributes& attributes, const char* name)
{
    constexpr double largest = std::numeric_limits<float>::max();
    const double value = zul::realNumber(zul::xmlText(attributes, name));
    return static_cast<float>(std::clamp(value, -largest, largest));
}

std::unique_ptr<SendMsg> readMessage(const QXmlStreamAttributes& attributes)
{
    auto line = std::make_unique<SendMsg>();
    const QString name = zul::xmlText(attributes, "name");
    if (!name.isEmpty()) {
        line->name = name;
    }
    line->id = wordOf(attributes, "msg.identifier");
    line->byteCount = wordOf(attributes, "msg.byte_count");
    line->mode = wordOf(attributes, "msg.frame_type");
    line->min = singleOf(attributes, "min");
    line->max = singleOf(attributes, "max");
    line->actual = singleOf(attributes, "actual");
    constexpr int hexadecimal = 16;
    readPayloadText(zul::xmlText(attributes, "msg.msg"), hexadecimal, line->data);
    return line;
}

} // namespace

bool readZorbConfiguration(const QString& path, ObjectTransmit::Lines& lines)
{
    zul::XmlSource source;
    if (!source.open(path)) {
        return false;
    }
    lines.clear();
    while (source.nextChild()) {
        if (source.isAt(messageElement) && lines.size() < maxLines) {
            lines.push_back(readMessage(source.attributes()));
        }
        source.skip();
    }
    return true;
}

} // namespace transmitimport
