#include "traffic/CanAerospaceEntry.h"

#include <gtest/gtest.h>

// Letters of a CANaerospace message, shown and given back.

namespace {

using namespace canaerospaceentry;

constexpr int fourLetters = 25; // ACHAR_4
constexpr int twoLetters = 24;  // ACHAR_2

SendMsg letters(int type, std::uint32_t word)
{
    SendMsg message;
    setDataType(message, type);
    setValueWord(message, word);
    return message;
}

TEST(CanAerospaceLetters, ZerosAtTheEndAloneAreLeftOut)
{
    const auto shown = [](int type, std::uint32_t word) {
        return lineText(letters(type, word), 0).toLatin1();
    };
    EXPECT_EQ(shown(fourLetters, 0), QByteArray());
    EXPECT_EQ(shown(fourLetters, 0x41420000), QByteArray("AB"));
    EXPECT_EQ(shown(fourLetters, 0x41004300), QByteArray("A\0C", 3));
    EXPECT_EQ(shown(fourLetters, 0x00000044), QByteArray("\0\0\0D", 4));
    EXPECT_EQ(shown(twoLetters, 0x41004344), QByteArray("A")) << "the type has no more";
    EXPECT_EQ(shown(twoLetters, 0x00424344), QByteArray("\0B", 2));
}

TEST(CanAerospaceLetters, EditOfOneLetterKeepsTheOthersInTheirPlaces)
{
    SendMsg message = letters(fourLetters, 0x41004344);
    QString text = lineText(message, 0);
    ASSERT_EQ(text.size(), 4);
    enterLine(message, text);
    EXPECT_EQ(valueWord(message), 0x41004344U) << "given back as it was shown";
    text[0] = QLatin1Char('Z');
    enterLine(message, text);
    EXPECT_EQ(valueWord(message), 0x5A004344U);
}

} // namespace
