#pragma once

#include "profile/ProfileStore.h"
#include "profile/XmlProfileReader.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/unit/profile/ReportTexts.h"

#include <gtest/gtest.h>
#include <map>

namespace zul::test {

/// Attributes of an element.
using Attributes = std::map<QByteArray, QByteArray>;

/// The element of a parameter that is fine; what is given replaces or adds.
inline QByteArray parameterElement(const Attributes& changes = {})
{
    Attributes attributes{{"lcc", "EEC"},   {"doc", "100"}, {"lcl", "0"},  {"pvt", "0"},
                          {"dtn", "UCHAR"}, {"spp", "2.0"}, {"epp", "2.7"}};
    for (const auto& [name, value] : changes) {
        attributes[name] = value;
    }
    QByteArray text = "<Parameter";
    for (const auto& [name, value] : attributes) {
        text += ' ' + name + "=\"" + value + '"';
    }
    return text + "/>";
}

/// A document whose parameters begin in the third line.
inline QByteArray withParameters(const QByteArray& parameters, const QByteArray& fid = "4",
                                 const QByteArray& lists = "")
{
    return "<Arinc825Profile name=\"P\" id=\"1.2\">" + lists + "<ParameterList>\n<Sfid id=\"" +
           fid + "\">\n" + parameters + "\n</Sfid></ParameterList></Arinc825Profile>";
}

/// Reads documents and keeps what came of the last one.
class XmlProfileFixture : public testing::Test
{
protected:
    bool read(const QByteArray& content)
    {
        home.write(fileName, content);
        test::ConsoleCapture console;
        const bool result = readXmlProfile(home.file(fileName), store, profile);
        output = console.out();
        lines = reportTexts(profile.result);
        EXPECT_EQ(profile.valid, lines.empty());
        return result;
    }

    // The only parameter of a document.
    ProfileParameter readParameter(const Attributes& changes, const QByteArray& fid = "4")
    {
        EXPECT_TRUE(read(withParameters(parameterElement(changes), fid)));
        EXPECT_EQ(profile.fids.size(), 1U);
        return profile.fids.begin()->second.parameters.begin()->second;
    }

    const QString fileName = QStringLiteral("file.xml");
    test::TestHome home;
    ProfileStore store;
    ArincProfile profile;
    std::string output;
    std::vector<std::string> lines;
};

} // namespace zul::test
