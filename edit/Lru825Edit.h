#pragma once

#include "profile/Lru825Document.h"
#include "profile/Lru825Schema.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <map>

namespace zul {

/// What an item of an LRU document's tree stands for: a record, or a list of records.
enum class Lru825Item {
    Nothing,
    Header,
    Lru,
    InterfaceList,
    Interface,
    Communication,
    TransmitList,
    ReceiveList,
    Message,
    AssignmentList,
    Assignment,
    DataField,
    Reference,
    ParameterList,
    Parameter,
    EnumEntry
};

/// The selected item, and the serials of the records in which it lies, its own included.
struct Lru825Selection
{
    /// In place of a serial: no such record is selected.
    static constexpr std::uint32_t nothing = 99999999;

    Lru825Item item = Lru825Item::Nothing;
    std::uint32_t interface = nothing;
    std::uint32_t transmitMessage = nothing; ///< `nothing` while a receive message is selected
    std::uint32_t receiveMessage = nothing;
    std::uint32_t assignment = nothing;
    std::uint32_t reference = nothing;
    std::uint32_t parameter = nothing;
    std::uint32_t enumEntry = nothing;
};

/// The text of a message in the tree.
QString lru825Text(const Lru825Message& message);
/// The text of a parameter in the tree. Its number is the function code: serials mean nothing to a
/// reader and are others each time a file is opened.
QString lru825Text(const Lru825Parameter& parameter);

/// An LRU document that is being edited: the document, its value lists, and what is selected in it.
class Lru825Edit
{
public:
    /// With a new document.
    Lru825Edit() { clear(); }

    /// Makes the document a new one; nothing is selected.
    void clear();
    /// Takes the document of a file; nothing is selected. False if it cannot be read: all stays as
    /// it was.
    [[nodiscard]] bool read(const QString& path);
    /// False if the file could not be written.
    [[nodiscard]] bool write(const QString& path) const;

    const Lru825Schema& schema() const { return m_schema; }
    /// Names of interfaces and parameters are set by the functions below alone.
    Lru825Document& document() { return m_document; }
    const Lru825Document& document() const { return m_document; }

    void select(const Lru825Selection& selection) { m_selection = selection; }
    const Lru825Selection& selection() const { return m_selection; }

    // The selected record, or the one in which the selected one lies; null if there is none.
    Lru825Interface* interface();
    Lru825Message* message();
    Lru825Assignment* assignment();
    Lru825DataField* dataField();
    Lru825Reference* reference();
    Lru825Parameter* parameter();
    Lru825EnumEntry* enumEntry();

    /// Whether `add` would add something.
    bool canAdd() const;
    /// Adds a record where the selection is: to a list that is selected, or beside a record. An
    /// assignment gets the redundancy channel `rci`, a code. Gives what selects the record;
    /// `Nothing` if there was nothing to add.
    Lru825Selection add(std::uint32_t rci);
    /// Adds an entry to the enumeration of the selected parameter.
    Lru825Selection addEnumEntry();

    /// Whether a record is selected that `remove` would remove.
    bool canRemove() const;
    /// Removes the selected record; nothing is selected then. References to it keep its name. False
    /// if no record is selected.
    bool remove();

    /// Renames the selected record, if there is one. What refers to it keeps the old name.
    void setInterfaceName(const QString& name);
    void setParameterName(const QString& name);

    /// The names of all interfaces in the order of their creation, each once. The list shares its
    /// data with that of the last call if no name has changed.
    QStringList interfaceNames();
    /// The same for parameters.
    QStringList parameterNames();

private:
    std::map<std::uint32_t, Lru825Message>& selectedMessages();
    void forgetNames();
    void eraseSelected();

    Lru825Schema m_schema;
    Lru825Document m_document;
    Lru825Selection m_selection;
    bool m_areInterfaceNamesKnown = false;
    bool m_areParameterNamesKnown = false;
    QStringList m_interfaceNames;
    QStringList m_parameterNames;
};

} // namespace zul
