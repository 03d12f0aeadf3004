#include "profile/ProfileCrossCheck.h"

#include <gtest/gtest.h>

namespace {

const QString prefix = QStringLiteral(": <b><font color=#ff0000>Error   :</b>  ");

class Cross : public testing::Test
{
protected:
    ArincProfile& add(const char* name, std::uint32_t id, std::uint32_t subId = 0)
    {
        ArincProfile& profile = profiles[QString::fromLatin1(name)];
        profile.name = QString::fromLatin1(name);
        profile.fileName = profile.name + QStringLiteral(".pro");
        profile.id = id;
        profile.subId = subId;
        return profile;
    }

    static void addParameter(ArincProfile& profile, std::uint32_t id)
    {
        ProfileParameter parameter;
        parameter.id = id;
        parameter.lcc = 2;
        parameter.fid = 4;
        parameter.doc = 100;
        profile.fids[4].parameters.emplace(parameter.serial, parameter);
    }

    QString check()
    {
        QString report;
        isClean = zul::crossCheck(profiles, report);
        EXPECT_EQ(isClean, report.isEmpty());
        return report;
    }

    static QString message(const char* file, const char* text)
    {
        return QStringLiteral("Profile ") + QLatin1String(file) + prefix + QLatin1String(text) +
               QStringLiteral("<br>");
    }

    std::map<QString, ArincProfile> profiles;
    bool isClean = false;
};

TEST_F(Cross, ReportsOfInvalidProfilesInTheOrderOfTheirNames)
{
    ArincProfile& b = add("B", 1);
    b.valid = false;
    b.result = QStringLiteral("report b ");
    ArincProfile& a = add("A", 2);
    a.valid = false;
    a.result = QStringLiteral("report a ");
    ArincProfile& c = add("C", 3);
    c.result = QStringLiteral("of a valid profile");
    EXPECT_EQ(check(), QStringLiteral("report a report b "));
}

TEST_F(Cross, MessagesStandBehindAllReports)
{
    add("A", 1, 0).userFids[100];
    ArincProfile& b = add("B", 1, 0);
    b.userFids[100];
    b.valid = false;
    b.result = QStringLiteral("report b ");
    ArincProfile& c = add("C", 3);
    c.valid = false;
    c.result = QStringLiteral("report c ");
    EXPECT_EQ(check(), QStringLiteral("report b report c ") +
                           message("B.pro", "uses the same id/sub-id name as A.pro") +
                           message("B.pro", "FID 100 already used by A.pro"));
}

TEST_F(Cross, SameIdWithOtherSubIdIsFine)
{
    add("A", 1, 0);
    add("B", 1, 1);
    EXPECT_EQ(check(), QString());
}

TEST_F(Cross, DeliberateOnlyTheLatestOfAnIdIsCompared)
{
    add("A", 1, 0);
    add("B", 1, 1);
    add("C", 1, 0);
    EXPECT_EQ(check(), QString());
    add("D", 1, 0);
    EXPECT_EQ(check(), message("D.pro", "uses the same id/sub-id name as C.pro"));
}

TEST_F(Cross, UserFidsOfTwoProfiles)
{
    add("A", 1).userFids[100];
    add("B", 2).userFids[100];
    add("C", 3).userFids[100];
    EXPECT_EQ(check(), message("B.pro", "FID 100 already used by A.pro") +
                           message("C.pro", "FID 100 already used by B.pro"));
}

TEST_F(Cross, UserUnitsOfTwoProfiles)
{
    add("A", 1).userUnits[100];
    add("B", 2).userUnits[100];
    EXPECT_EQ(check(), message("B.pro", "User Unit 100 already used by A.pro"));
}

TEST_F(Cross, IdentifierOfTwoFiles)
{
    ArincProfile& a = add("A", 1);
    addParameter(a, 77);
    addParameter(a, 77);
    EXPECT_EQ(check(), QString());
    addParameter(add("B", 2), 77);
    EXPECT_EQ(check(), message("B.pro", "LCC/FID/DOC 2/4/100 already used by A.pro"));
}

TEST_F(Cross, IdentifierOfThreeFilesNamesTheFileBefore)
{
    addParameter(add("A", 1), 77);
    addParameter(add("B", 2), 77);
    addParameter(add("C", 3), 77);
    EXPECT_EQ(check(), message("B.pro", "LCC/FID/DOC 2/4/100 already used by A.pro") +
                           message("C.pro", "LCC/FID/DOC 2/4/100 already used by B.pro"));
}

TEST_F(Cross, ProfilesOfOneFileNameShareIdentifiers)
{
    addParameter(add("A", 1), 77);
    ArincProfile& b = add("B", 2);
    addParameter(b, 77);
    b.fileName = QStringLiteral("A.pro");
    EXPECT_EQ(check(), QString());
}

TEST_F(Cross, NumbersAreShownAsSigned)
{
    add("A", 1).userFids[0xffffffff];
    add("B", 2).userFids[0xffffffff];
    EXPECT_EQ(check(), message("B.pro", "FID -1 already used by A.pro"));
}

TEST_F(Cross, FullReportOfOneProfileDoesNotSilenceTheOthers)
{
    ArincProfile& a = add("A", 1);
    a.valid = false;
    a.result = QStringLiteral("report a ") + QLatin1String(zul::reportClosing);
    ArincProfile& b = add("B", 1);
    b.valid = false;
    b.result = QStringLiteral("report b ");
    EXPECT_EQ(check(),
              a.result + b.result + message("B.pro", "uses the same id/sub-id name as A.pro"));
}

TEST_F(Cross, ReportIsBounded)
{
    ArincProfile& a = add("A", 1);
    ArincProfile& b = add("B", 2);
    for (std::uint32_t id = 0; id < 80000; ++id) {
        addParameter(a, id);
        addParameter(b, id);
    }
    QString report = check();
    EXPECT_LE(report.size(), zul::maxCheckLength + 100);
    EXPECT_TRUE(report.endsWith(QStringLiteral("Further messages are left out.</b><br>")));
    const int size = report.size();
    EXPECT_FALSE(zul::crossCheck(profiles, report));
    EXPECT_EQ(report.size(), size) << "nothing behind the closing line";
}

} // namespace
