#pragma once

#include "ReportLines.h"
#include "profile/ProfileStore.h"
#include "profile/TextProfileReader.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace zul::test {

/// Reads text profiles and gives what was reported.
class TextReader : public testing::Test
{
protected:
    // Reads a file with these lines; the messages.
    QStringList read(const QByteArray& content)
    {
        home.write(fileName, content);
        profile = used;
        EXPECT_TRUE(zul::readTextProfile(home.file(fileName), store, profile));
        const QStringList lines = zul::test::reportLines(profile.result);
        EXPECT_EQ(profile.valid, lines.isEmpty());
        return lines;
    }

    // One parameter line whose tokens are good but for those that are named by their position.
    struct Token
    {
        int position;
        const char* text;
    };
    static QByteArray line(std::initializer_list<Token> tokens)
    {
        QList<QByteArray> parts =
            QByteArray("NOC;4;100;0;0;0;0.0;0.7;0;UCHAR;Name;Unit;0;255;10;Note").split(';');
        for (const Token& token : tokens) {
            parts[token.position] = token.text;
        }
        return parts.join(';') + '\n';
    }
    QStringList readParameter(std::initializer_list<Token> tokens)
    {
        return read("<parameter>\n" + line(tokens));
    }
    // The one parameter that was read.
    const ProfileParameter& only() const
    {
        return profile.fids.begin()->second.parameters.begin()->second;
    }

    QString fileName = QStringLiteral("a.pro");
    TestHome home;
    SettableClock clock{0.0};
    ProfileStore store;
    ArincProfile used; // what the next file is read into
    ArincProfile profile;
};

} // namespace zul::test
