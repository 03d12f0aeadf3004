#include "profile/XmlGuard.h"

namespace zul {

bool XmlGuard::accept(std::string_view text)
{
    for (const char character : text) {
        take(character);
        m_before[0] = m_isForgotten ? '\0' : m_before[1];
        m_before[1] = m_isForgotten ? '\0' : character;
        m_isForgotten = false;
    }
    return !m_isRefused;
}

void XmlGuard::take(char character)
{
    switch (m_place) {
    case Place::Text:
        if (character == '<') {
            m_place = Place::Opened;
        }
        break;
    case Place::Opened:
        m_attributes = 0;
        m_markLength = 0;
        m_place = character == '!'   ? Place::Marked
                  : character == '?' ? Place::Instruction
                                     : Place::Tag;
        break;
    case Place::Marked:
        takeMarked(character);
        break;
    case Place::Tag:
    case Place::Doctype:
        takeInTag(character);
        break;
    case Place::Comment:
        leaveBehind('-', '-', character);
        break;
    case Place::Cdata:
        leaveBehind(']', ']', character);
        break;
    case Place::Instruction:
        leaveBehind(m_before[0], '?', character);
        break;
    }
}

void XmlGuard::takeMarked(char character)
{
    m_mark[m_markLength] = character;
    ++m_markLength;
    const std::string_view mark(m_mark, m_markLength);
    if (mark == "--") {
        m_place = Place::Comment;
        m_isForgotten = true; // these two do not end it
    } else if (mark == "[CDATA[") {
        m_place = Place::Cdata;
    } else if (mark == "DOCTYPE") {
        m_place = Place::Doctype;
    } else if (m_markLength == sizeof(m_mark)) {
        m_place = Place::Tag; // nothing known
    }
}

void XmlGuard::takeInTag(char character)
{
    if (m_quote != '\0') {
        if (character == m_quote) {
            m_quote = '\0';
        }
    } else if (character == '"' || character == '\'') {
        m_quote = character;
    } else if (character == '>') {
        m_place = Place::Text;
    } else if (character == '=') {
        ++m_attributes;
        m_isRefused = m_isRefused || m_attributes > maxAttributes;
    } else if (character == '[') {
        m_isRefused = m_isRefused || m_place == Place::Doctype;
    }
}

void XmlGuard::leaveBehind(char first, char second, char character)
{
    if (character == '>' && m_before[0] == first && m_before[1] == second) {
        m_place = Place::Text;
    }
}

} // namespace zul
