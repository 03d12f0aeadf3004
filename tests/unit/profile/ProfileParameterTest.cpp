#include "profile/ArincProfile.h"
#include "profile/ProfileStore.h"

#include <gtest/gtest.h>

namespace {

TEST(ProfileParameter, NewOneHasItsDefaults)
{
    const ProfileParameter parameter;
    EXPECT_EQ(parameter.parameterKind, ParameterKind::Raw);
    for (const std::uint32_t number :
         {parameter.lcc, parameter.fid, parameter.doc, parameter.dfid, parameter.sid, parameter.lcl,
          parameter.pvt, parameter.sppByte, parameter.sppBit, parameter.eppByte, parameter.eppBit,
          parameter.puc, parameter.dtc, parameter.rci, parameter.id}) {
        EXPECT_EQ(number, 0U);
    }
    EXPECT_EQ(parameter.enumId, 0);
    EXPECT_EQ(parameter.upr, 0);
    EXPECT_EQ(parameter.unitLabel, QStringLiteral("Unit"));
    EXPECT_EQ(parameter.typeName, QStringLiteral("FLOAT"));
    EXPECT_EQ(parameter.nme, QStringLiteral("NewPara"));
    EXPECT_EQ(parameter.pun, QStringLiteral("Unit"));
    EXPECT_EQ(parameter.notes, QStringLiteral("Notes"));
    EXPECT_EQ(parameter.color, QStringLiteral("#ff8800"));
    EXPECT_EQ(parameter.min, 0.0);
    EXPECT_EQ(parameter.max, 1.0);
    EXPECT_EQ(parameter.lsb, 0.0);
    EXPECT_EQ(parameter.lat, 0.0);
    EXPECT_EQ(parameter.endian, 1U);
    EXPECT_FALSE(parameter.showSamples);
    EXPECT_FALSE(parameter.autoScale);
    EXPECT_EQ(parameter.yMin, 0.0);
    EXPECT_EQ(parameter.yMax, 100.0);
    EXPECT_EQ(parameter.scaleOffset, 0.0);
    EXPECT_EQ(parameter.scaleFactor, 1.0);
}

TEST(ProfileParameter, SerialsOfAllRecordsComeFromOneCounter)
{
    const std::uint32_t first = ProfileParameter().serial;
    EXPECT_EQ(ProfileEnum().serial, first + 1);
    EXPECT_EQ(ProfileEnumValue().serial, first + 2);
    EXPECT_EQ(ProfileUserFid().serial, first + 3);
    EXPECT_EQ(ProfileUserUnit().serial, first + 4);
    EXPECT_EQ(ProfileFidGroup().serial, first + 5);
    EXPECT_EQ(ProfileParameter().serial, first + 6);
}

TEST(ProfileParameter, CopyKeepsItsSerial)
{
    const ProfileParameter parameter;
    const ProfileParameter copy = parameter; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.serial, parameter.serial);
}

TEST(ProfileParameter, TravelsInSignals)
{
    const ProfileStore store;
    EXPECT_NE(QMetaType::type("ProfileParameter"), QMetaType::UnknownType);
}

} // namespace
