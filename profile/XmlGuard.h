#pragma once

#include <string_view>

namespace zul {

/// Looks through the UTF-8 text of an XML document for what may be well-formed and yet takes a
/// parser very long: tags of very many attributes, each of which is compared with all the others,
/// and document types that declare something. It knows just enough of XML to tell tags from texts,
/// comments and the like.
class XmlGuard
{
public:
    /// Most attributes of one tag.
    static constexpr int maxAttributes = 1000;

    /// Takes the next piece of the text. False if the document is not to be read on.
    bool accept(std::string_view text);

private:
    enum class Place { Text, Opened, Tag, Marked, Doctype, Comment, Cdata, Instruction };

    void take(char character);
    void takeMarked(char character);
    void takeInTag(char character);
    void leaveBehind(char first, char second, char character);

    Place m_place = Place::Text;
    char m_quote = '\0';          ///< the one that ends the value, within a value
    char m_before[2] = {};        ///< the two letters before, the nearer one last
    char m_mark[8] = {};          ///< what stands behind "<!"
    std::size_t m_markLength = 0; ///< letters of it
    int m_attributes = 0;         ///< of the tag
    bool m_isForgotten = false;   ///< the letters before do not count
    bool m_isRefused = false;
};

} // namespace zul
