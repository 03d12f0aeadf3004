#include "profile/Lru825Schema.h"

#include "profile/Arinc825Id.h"
#include "profile/DataTypes.h"

#include <initializer_list>

namespace {

// Codes in the order of the names, from 0 on.
Lru825ValueList listOf(std::initializer_list<const char*> names)
{
    Lru825ValueList list;
    std::uint32_t code = 0;
    for (const char* name : names) {
        list.add(QLatin1String(name), code);
        ++code;
    }
    return list;
}

} // namespace

std::uint32_t Lru825ValueList::codeOf(const QString& name)
{
    return m_codes.emplace(name, 0).first->second;
}

QString Lru825ValueList::nameOf(std::uint32_t code) const
{
    const auto found = m_names.find(code);
    return found != m_names.end() ? found->second : QString();
}

void Lru825ValueList::add(const QString& name, std::uint32_t code)
{
    m_codes[name] = code;
    m_names[code] = name;
}

Lru825Schema::Lru825Schema()
    : samplingPointModes(listOf({"SINGLE", "TRIPLE"})),
      bitRates(listOf({"83.333", "125", "250", "500", "1000"})),
      redundancyChannels(listOf({"A", "B", "C", "D"})),
      functionalStates(listOf({"NCD", "ND", "NO", "FT"})),
      identifierTypes(listOf({"OneToMany", "PeerToPeer", "UserDefined", "DirectedMessage"})),
      identifierLengths(listOf({"11bit", "29bit"})),
      fidTable(zul::makeFidTable825Part3()),
      unitTable(zul::makeUnitTable())
{
    for (const zul::arinc825::Channel& channel : zul::arinc825::channels) {
        channels.add(QLatin1String(channel.longName), channel.lcc);
    }
    for (const zul::ArincTypeInfo& type : zul::arincTypes) {
        dataTypes.add(QLatin1String(type.name), static_cast<std::uint32_t>(type.type));
    }
}
