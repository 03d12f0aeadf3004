#pragma once

#include "profile/StandardTables.h"

#include <QString>

#include <cstdint>
#include <map>

/// A list of names that LRU documents use, and their codes, to be looked up both ways.
class Lru825ValueList
{
public:
    /// The code of a name.
    ///
    /// Deliberate: an unknown name is entered with the code 0, so that the document is written with
    /// the list's own name of that code.
    std::uint32_t codeOf(const QString& name);
    /// The name of a code; empty for an unknown one. Names that a lookup entered do not come up.
    QString nameOf(std::uint32_t code) const;

    void add(const QString& name, std::uint32_t code);

    const std::map<QString, std::uint32_t>& codes() const { return m_codes; }
    /// In the order in which an editor offers them.
    const zul::CodeTable& names() const { return m_names; }

private:
    std::map<QString, std::uint32_t> m_codes;
    zul::CodeTable m_names;
};

/// What the texts of an LRU document may be. Its tables are its own: what a document enters reaches
/// nobody else.
struct Lru825Schema
{
    Lru825Schema();

    Lru825ValueList samplingPointModes;
    Lru825ValueList bitRates; ///< kbit/s
    Lru825ValueList channels;
    Lru825ValueList redundancyChannels;
    Lru825ValueList functionalStates;
    Lru825ValueList dataTypes;
    Lru825ValueList identifierTypes;
    Lru825ValueList identifierLengths;
    zul::CodeTable fidTable; ///< function codes of ARINC 825-3
    zul::CodeTable unitTable;
};
