#include "profile/XmlGuard.h"

#include <gtest/gtest.h>
#include <string>

namespace {

bool accepts(const std::string& text)
{
    zul::XmlGuard guard;
    return guard.accept(text);
}

std::string attributes(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += " a" + std::to_string(i) + "='='";
    }
    return text;
}

TEST(XmlGuard, TagOfManyAttributesIsRefused)
{
    EXPECT_TRUE(accepts("<r" + attributes(zul::XmlGuard::maxAttributes) + "/>"));
    EXPECT_FALSE(accepts("<r" + attributes(zul::XmlGuard::maxAttributes + 1) + "/>"));
}

TEST(XmlGuard, AttributesAreCountedByTheTag)
{
    const std::string tag = "<r" + attributes(600) + "/>";
    EXPECT_TRUE(accepts("<x>" + tag + tag + tag + "</x>"));
}

TEST(XmlGuard, WhatIsNoTagMayHaveAsManySigns)
{
    const std::string signs(5000, '=');
    EXPECT_TRUE(accepts("<r>" + signs + "</r>"));
    EXPECT_TRUE(accepts("<r><!--" + signs + "--></r>"));
    EXPECT_TRUE(accepts("<r><!--> <a " + signs + "--></r>"));
    EXPECT_TRUE(accepts("<r><![CDATA[<a " + signs + "]]></r>"));
    EXPECT_TRUE(accepts("<?p <a " + signs + "?><r/>"));
    EXPECT_TRUE(accepts("<r a='<b " + signs + "'/>"));
    EXPECT_TRUE(accepts("<r a=\"'>" + signs + "\"/>"));
}

TEST(XmlGuard, TagBehindWhatIsNoTagIsCounted)
{
    const std::string tag = "<r" + attributes(2000) + "/>";
    for (const char* before :
         {"<!-- > -->", "<!---->", "<!---> <a ' -->", "<!--> <a ' -->", "<![CDATA[>]]>", "<?p > ?>",
          "<a b='>'>", "<!DOCTYPE r>", "<!DOCTYPE r SYSTEM 'a[b>'>", "text"}) {
        EXPECT_FALSE(accepts(before + tag)) << before;
    }
}

TEST(XmlGuard, DocumentTypeWithAPartOfItsOwnIsRefused)
{
    EXPECT_TRUE(accepts("<!DOCTYPE r><r/>"));
    EXPECT_TRUE(accepts("<!DOCTYPE r SYSTEM \"a[b.dtd\"><r/>"));
    EXPECT_FALSE(accepts("<!DOCTYPE r [<!ENTITY a 'b'>]><r/>"));
    EXPECT_FALSE(accepts("<!DOCTYPE r [<!ATTLIST r a CDATA 'b'>]><r/>"));
    EXPECT_TRUE(accepts("<r>[</r>"));
    EXPECT_FALSE(accepts("<!---> <a '--><!DOCTYPE r [<!ENTITY a 'b'>]><r/>"));
    EXPECT_TRUE(accepts("<!---> <!DOCTYPE r [ --><r/>"));
}

TEST(XmlGuard, TextMayComeInPieces)
{
    const std::string text = "<!-- > --><r" + attributes(2000) + "/>";
    zul::XmlGuard guard;
    bool isAccepted = true;
    for (const char character : text) {
        isAccepted = guard.accept({&character, 1});
    }
    EXPECT_FALSE(isAccepted);
}

} // namespace
