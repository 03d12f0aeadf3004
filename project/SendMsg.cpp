#include "project/SendMsg.h"

// Number by number, since the text of a hostile file may be very long.
void readPayloadText(const QString& text, int base, zul::MessageData& data)
{
    constexpr QLatin1Char blank(' ');
    std::int32_t index = 0;
    int begin = 0;
    while (begin < text.size() && index < zul::MessageData::size) {
        const int found = text.indexOf(blank, begin);
        const int end = found < 0 ? text.size() : found;
        if (end > begin) {
            const qlonglong value = text.midRef(begin, end - begin).toLongLong(nullptr, base);
            data[index++] = static_cast<std::uint8_t>(static_cast<qulonglong>(value) & 0xFFU);
        }
        begin = end + 1;
    }
}
