#include "edit/Lru825Edit.h"

#include "profile/Lru825Reader.h"
#include "profile/Lru825Writer.h"
#include "profile/ProfileNumbers.h"

#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace zul {

namespace {

const QString newDocumentName = QStringLiteral("NoName");

template <typename Record>
Record* find(std::map<std::uint32_t, Record>& records, std::uint32_t serial)
{
    const auto found = records.find(serial);
    return found != records.end() ? &found->second : nullptr;
}

template <typename Record>
auto place(std::vector<Record>& records, std::uint32_t serial)
{
    return std::find_if(records.begin(), records.end(),
                        [serial](const Record& record) { return record.serial == serial; });
}

template <typename Record>
Record* find(std::vector<Record>& records, std::uint32_t serial)
{
    const auto found = place(records, serial);
    return found != records.end() ? &*found : nullptr;
}

// The serial of the record that was added.
template <typename Record>
std::uint32_t append(std::map<std::uint32_t, Record>& records)
{
    Record record;
    const std::uint32_t serial = record.serial;
    records.emplace(serial, std::move(record));
    return serial;
}

template <typename Record>
Record& append(std::vector<Record>& records)
{
    return records.emplace_back();
}

template <typename Record>
void erase(std::vector<Record>& records, std::uint32_t serial)
{
    const auto found = place(records, serial);
    if (found != records.end()) {
        records.erase(found);
    }
}

// References are by name: to offer a name twice would be no choice.
template <typename Record>
QStringList distinctNames(const std::map<std::uint32_t, Record>& records)
{
    QStringList names;
    QSet<QString> known;
    for (const auto& [serial, record] : records) {
        const int before = known.size();
        known.insert(record.name);
        if (known.size() != before) {
            names.append(record.name);
        }
    }
    return names;
}

} // namespace

QString lru825Text(const Lru825Message& message)
{
    return QStringLiteral("Message ") + message.name;
}

QString lru825Text(const Lru825Parameter& parameter)
{
    return QString::number(asSigned(parameter.fid)) + QLatin1Char(' ') + parameter.name;
}

void Lru825Edit::clear()
{
    m_document = Lru825Document{};
    m_document.name = newDocumentName;
    m_selection = {};
    forgetNames();
}

bool Lru825Edit::read(const QString& path)
{
    Lru825Document document;
    if (!readLru825(path, m_schema, document)) {
        return false;
    }
    m_document = std::move(document);
    m_selection = {};
    forgetNames();
    return true;
}

bool Lru825Edit::write(const QString& path) const
{
    return writeLru825(path, m_schema, m_document);
}

Lru825Interface* Lru825Edit::interface()
{
    return find(m_document.interfaces, m_selection.interface);
}

std::map<std::uint32_t, Lru825Message>& Lru825Edit::selectedMessages()
{
    const bool isReceive = m_selection.item == Lru825Item::ReceiveList ||
                           m_selection.receiveMessage != Lru825Selection::nothing;
    return isReceive ? m_document.receiveMessages : m_document.transmitMessages;
}

Lru825Message* Lru825Edit::message()
{
    const bool isReceive = m_selection.receiveMessage != Lru825Selection::nothing;
    return find(selectedMessages(),
                isReceive ? m_selection.receiveMessage : m_selection.transmitMessage);
}

Lru825Assignment* Lru825Edit::assignment()
{
    Lru825Message* owner = message();
    return owner != nullptr ? find(owner->assignments, m_selection.assignment) : nullptr;
}

Lru825DataField* Lru825Edit::dataField()
{
    Lru825Message* owner = message();
    return owner != nullptr ? &owner->dataField : nullptr;
}

Lru825Reference* Lru825Edit::reference()
{
    Lru825DataField* owner = dataField();
    return owner != nullptr ? find(owner->parameters, m_selection.reference) : nullptr;
}

Lru825Parameter* Lru825Edit::parameter()
{
    return find(m_document.parameters, m_selection.parameter);
}

Lru825EnumEntry* Lru825Edit::enumEntry()
{
    Lru825Parameter* owner = parameter();
    return owner != nullptr ? find(owner->enumEntries, m_selection.enumEntry) : nullptr;
}

bool Lru825Edit::canAdd() const
{
    switch (m_selection.item) {
    case Lru825Item::Nothing:
    case Lru825Item::Header:
    case Lru825Item::Lru:
    case Lru825Item::Communication:
        return false;
    default:
        return true;
    }
}

Lru825Selection Lru825Edit::add(std::uint32_t rci)
{
    Lru825Selection made = m_selection;
    switch (m_selection.item) {
    case Lru825Item::InterfaceList:
    case Lru825Item::Interface:
        made.item = Lru825Item::Interface;
        made.interface = append(m_document.interfaces);
        m_areInterfaceNamesKnown = false;
        return made;
    case Lru825Item::TransmitList:
    case Lru825Item::ReceiveList:
    case Lru825Item::Message: {
        auto& messages = selectedMessages();
        made.item = Lru825Item::Message;
        (&messages == &m_document.receiveMessages ? made.receiveMessage : made.transmitMessage) =
            append(messages);
        return made;
    }
    case Lru825Item::AssignmentList:
    case Lru825Item::Assignment:
        if (Lru825Message* owner = message()) {
            Lru825Assignment& assignment = append(owner->assignments);
            assignment.rci = rci;
            made.item = Lru825Item::Assignment;
            made.assignment = assignment.serial;
            return made;
        }
        return {};
    case Lru825Item::DataField:
    case Lru825Item::Reference:
        if (Lru825DataField* owner = dataField()) {
            made.item = Lru825Item::Reference;
            made.reference = append(owner->parameters).serial;
            return made;
        }
        return {};
    case Lru825Item::ParameterList:
    case Lru825Item::Parameter:
        made.item = Lru825Item::Parameter;
        made.parameter = append(m_document.parameters);
        m_areParameterNamesKnown = false;
        return made;
    case Lru825Item::EnumEntry:
        return addEnumEntry();
    default:
        return {};
    }
}

Lru825Selection Lru825Edit::addEnumEntry()
{
    Lru825Parameter* owner = parameter();
    if (owner == nullptr) {
        return {};
    }
    Lru825Selection made = m_selection;
    made.item = Lru825Item::EnumEntry;
    made.enumEntry = append(owner->enumEntries).serial;
    return made;
}

bool Lru825Edit::canRemove() const
{
    switch (m_selection.item) {
    case Lru825Item::Interface:
    case Lru825Item::Message:
    case Lru825Item::Assignment:
    case Lru825Item::Reference:
    case Lru825Item::Parameter:
    case Lru825Item::EnumEntry:
        return true;
    default:
        return false;
    }
}

bool Lru825Edit::remove()
{
    if (!canRemove()) {
        return false;
    }
    eraseSelected();
    m_selection = {};
    return true;
}

void Lru825Edit::eraseSelected()
{
    switch (m_selection.item) {
    case Lru825Item::Interface:
        m_document.interfaces.erase(m_selection.interface);
        m_areInterfaceNamesKnown = false;
        break;
    case Lru825Item::Message:
        // Serials are unique: the other list has none of this number.
        m_document.transmitMessages.erase(m_selection.transmitMessage);
        m_document.receiveMessages.erase(m_selection.receiveMessage);
        break;
    case Lru825Item::Assignment:
        if (Lru825Message* owner = message()) {
            erase(owner->assignments, m_selection.assignment);
        }
        break;
    case Lru825Item::Reference:
        if (Lru825DataField* owner = dataField()) {
            erase(owner->parameters, m_selection.reference);
        }
        break;
    case Lru825Item::Parameter:
        m_document.parameters.erase(m_selection.parameter);
        m_areParameterNamesKnown = false;
        break;
    case Lru825Item::EnumEntry:
        if (Lru825Parameter* owner = parameter()) {
            erase(owner->enumEntries, m_selection.enumEntry);
        }
        break;
    default:
        break;
    }
}

void Lru825Edit::setInterfaceName(const QString& name)
{
    if (Lru825Interface* selected = interface()) {
        selected->name = name;
        m_areInterfaceNamesKnown = false;
    }
}

void Lru825Edit::setParameterName(const QString& name)
{
    if (Lru825Parameter* selected = parameter()) {
        selected->name = name;
        m_areParameterNamesKnown = false;
    }
}

QStringList Lru825Edit::interfaceNames()
{
    if (!m_areInterfaceNamesKnown) {
        m_interfaceNames = distinctNames(m_document.interfaces);
        m_areInterfaceNamesKnown = true;
    }
    return m_interfaceNames;
}

QStringList Lru825Edit::parameterNames()
{
    if (!m_areParameterNamesKnown) {
        m_parameterNames = distinctNames(m_document.parameters);
        m_areParameterNamesKnown = true;
    }
    return m_parameterNames;
}

void Lru825Edit::forgetNames()
{
    m_areInterfaceNamesKnown = false;
    m_areParameterNamesKnown = false;
}

} // namespace zul
