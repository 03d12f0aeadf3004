#include "gui/editor/DialogProfileEditor825_3.h"

#include "core/Console.h"
#include "core/Latin1.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/editor/EditorForm.h"

#include <QStackedWidget>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QTreeWidget>

#include <array>
#include <utility>

// The document and its tree. The pages are made and filled in DialogProfileEditor825_3Build.cpp,
// what is edited in them goes to the records in DialogProfileEditor825_3Slots.cpp.

namespace gui {

namespace {

using zul::Lru825Item;
using zul::Lru825Selection;

constexpr const char* editorTitle = "Profile Editor ARINC-825";
constexpr const char* fileFilter = "Profile File (*.xml);;All Files (*.*)";
constexpr const char* fileSuffix = "xml";
constexpr QSize firstSize(940, 620); // most labels of function codes are seen in full

// Data of an item of the tree.
constexpr int itemRole = Qt::UserRole;
constexpr int serialRole = Qt::UserRole + 1;

struct IconName
{
    Lru825Item item;
    const char* name;
};

constexpr std::array<IconName, 15> iconNames{{
    {Lru825Item::Header, "profile"},
    {Lru825Item::Lru, "lru"},
    {Lru825Item::InterfaceList, "group"},
    {Lru825Item::Interface, "can-interface"},
    {Lru825Item::Communication, "group"},
    {Lru825Item::TransmitList, "transmit"},
    {Lru825Item::ReceiveList, "receive"},
    {Lru825Item::Message, "message"},
    {Lru825Item::AssignmentList, "group"},
    {Lru825Item::Assignment, "can-interface"},
    {Lru825Item::DataField, "data-field"},
    {Lru825Item::Reference, "parameter"},
    {Lru825Item::ParameterList, "group"},
    {Lru825Item::Parameter, "parameter"},
    {Lru825Item::EnumEntry, "enum-entry"},
}};

Lru825Item kindOf(const QTreeWidgetItem& item)
{
    return static_cast<Lru825Item>(item.data(0, itemRole).toInt());
}

// What is selected with an item: it and the records above it.
Lru825Selection selectionOf(const QTreeWidgetItem* item)
{
    Lru825Selection selection;
    selection.item = item != nullptr ? kindOf(*item) : Lru825Item::Nothing;
    std::uint32_t message = Lru825Selection::nothing;
    for (; item != nullptr; item = item->parent()) {
        const std::uint32_t serial = item->data(0, serialRole).toUInt();
        switch (kindOf(*item)) {
        case Lru825Item::Interface:
            selection.interface = serial;
            break;
        case Lru825Item::Message:
            message = serial;
            break;
        case Lru825Item::TransmitList:
            selection.transmitMessage = message;
            break;
        case Lru825Item::ReceiveList:
            selection.receiveMessage = message;
            break;
        case Lru825Item::Assignment:
            selection.assignment = serial;
            break;
        case Lru825Item::Reference:
            selection.reference = serial;
            break;
        case Lru825Item::Parameter:
            selection.parameter = serial;
            break;
        case Lru825Item::EnumEntry:
            selection.enumEntry = serial;
            break;
        default:
            break;
        }
    }
    return selection;
}

// Records stand in maps or in lists.
template <typename Record>
const Record& recordOf(const std::pair<const std::uint32_t, Record>& entry)
{
    return entry.second;
}
template <typename Record>
const Record& recordOf(const Record& record)
{
    return record;
}

} // namespace

DialogProfileEditor825_3::DialogProfileEditor825_3(QWidget* parent)
    : DialogEditor({editorTitle, fileFilter, fileSuffix}, parent)
{
    setWindowIcon(icon("profile-editor"));
    resize(firstSize);
    loadIcons();
    buildPages();
    startDocument();
}

void DialogProfileEditor825_3::clearDocument()
{
    m_edit.clear();
}

bool DialogProfileEditor825_3::readDocument(const QString& path)
{
    if (!m_edit.read(path)) {
        return false;
    }
    if (!document().valid) {
        zul::print("%s\n",
                   zul::toLatin1(QTextDocumentFragment::fromHtml(document().result).toPlainText())
                       .c_str());
    }
    if (document().foreignElements > 0) {
        zul::print("%s: %d elements are none of an LRU document; saving would lose them\n",
                   zul::toLatin1(path).c_str(), document().foreignElements);
    }
    return true;
}

bool DialogProfileEditor825_3::writeDocument(const QString& path)
{
    return m_edit.write(path);
}

void DialogProfileEditor825_3::loadIcons()
{
    for (const IconName& entry : iconNames) {
        m_icons.emplace(entry.item, icon(entry.name));
    }
}

QTreeWidgetItem* DialogProfileEditor825_3::makeItem(Item item, const QString& text,
                                                    std::uint32_t serial) const
{
    auto* made = new QTreeWidgetItem({text});
    made->setData(0, itemRole, static_cast<int>(item));
    made->setData(0, serialRole, serial);
    made->setIcon(0, m_icons.at(item));
    return made;
}

QTreeWidgetItem* DialogProfileEditor825_3::makeFixed(Item item, const char* text) const
{
    return makeItem(item, QLatin1String(text), Lru825Selection::nothing);
}

QTreeWidgetItem* DialogProfileEditor825_3::itemOf(const Lru825Interface& record) const
{
    return makeItem(Item::Interface, record.name, record.serial);
}

QTreeWidgetItem* DialogProfileEditor825_3::itemOf(const Lru825Message& record) const
{
    QTreeWidgetItem* message = makeItem(Item::Message, zul::lru825Text(record), record.serial);
    QTreeWidgetItem* assignments = makeFixed(Item::AssignmentList, "Interfaces");
    addItems(*assignments, record.assignments);
    QTreeWidgetItem* dataField = makeFixed(Item::DataField, "Data Field");
    addItems(*dataField, record.dataField.parameters);
    message->addChildren({assignments, dataField});
    return message;
}

QTreeWidgetItem* DialogProfileEditor825_3::itemOf(const Lru825Assignment& record) const
{
    return makeItem(Item::Assignment, record.name, record.serial);
}

QTreeWidgetItem* DialogProfileEditor825_3::itemOf(const Lru825Reference& record) const
{
    return makeItem(Item::Reference, record.name, record.serial);
}

QTreeWidgetItem* DialogProfileEditor825_3::itemOf(const Lru825Parameter& record) const
{
    QTreeWidgetItem* parameter = makeItem(Item::Parameter, zul::lru825Text(record), record.serial);
    addItems(*parameter, record.enumEntries);
    return parameter;
}

QTreeWidgetItem* DialogProfileEditor825_3::itemOf(const Lru825EnumEntry& record) const
{
    return makeItem(Item::EnumEntry, record.key, record.serial);
}

template <typename Records>
void DialogProfileEditor825_3::addItems(QTreeWidgetItem& parent, const Records& records) const
{
    QList<QTreeWidgetItem*> children;
    children.reserve(static_cast<int>(records.size()));
    for (const auto& entry : records) {
        children.append(itemOf(recordOf(entry)));
    }
    parent.addChildren(children);
}

void DialogProfileEditor825_3::fillTree()
{
    const Lru825Document& document = m_edit.document();
    QTreeWidgetItem* interfaces = makeFixed(Item::InterfaceList, "CAN Interfaces");
    addItems(*interfaces, document.interfaces);
    QTreeWidgetItem* transmit = makeFixed(Item::TransmitList, "Transmit");
    addItems(*transmit, document.transmitMessages);
    QTreeWidgetItem* receive = makeFixed(Item::ReceiveList, "Receive");
    addItems(*receive, document.receiveMessages);
    QTreeWidgetItem* communication = makeFixed(Item::Communication, "Communication");
    communication->addChildren({transmit, receive});
    QTreeWidgetItem* lru = makeFixed(Item::Lru, "LRU");
    lru->addChildren({interfaces, communication});
    QTreeWidgetItem* parameters = makeFixed(Item::ParameterList, "Parameter List");
    addItems(*parameters, document.parameters);
    tree().addTopLevelItems({makeFixed(Item::Header, "Profile Header"), lru, parameters});
    lru->setExpanded(true);
    communication->setExpanded(true);
}

void DialogProfileEditor825_3::showItem(QTreeWidgetItem* item)
{
    m_edit.select(selectionOf(item));
    addButton().setEnabled(m_edit.canAdd());
    deleteButton().setEnabled(m_edit.canRemove());
    const auto page = m_formPages.find(m_edit.selection().item);
    if (page == m_formPages.end()) {
        pages().setCurrentWidget(m_emptyPage);
        return;
    }
    (this->*page->second.fill)();
    pages().setCurrentWidget(page->second.form);
}

QTreeWidgetItem* DialogProfileEditor825_3::itemOfSelection()
{
    switch (m_edit.selection().item) {
    case Item::Interface:
        return itemOf(*m_edit.interface());
    case Item::Message:
        return itemOf(*m_edit.message());
    case Item::Assignment:
        return itemOf(*m_edit.assignment());
    case Item::Reference:
        return itemOf(*m_edit.reference());
    case Item::Parameter:
        return itemOf(*m_edit.parameter());
    case Item::EnumEntry:
        return itemOf(*m_edit.enumEntry());
    default:
        return nullptr;
    }
}

QTreeWidgetItem* DialogProfileEditor825_3::insertItem(const Lru825Selection& added)
{
    QTreeWidgetItem* current = tree().currentItem();
    if (added.item == Item::Nothing || current == nullptr) {
        return nullptr;
    }
    // It was added beside a record of its kind, or else to what was selected.
    QTreeWidgetItem* owner = kindOf(*current) == added.item ? current->parent() : current;
    m_edit.select(added);
    QTreeWidgetItem* item = itemOfSelection();
    owner->addChild(item);
    return item;
}

QTreeWidgetItem* DialogProfileEditor825_3::addRecord()
{
    // A new assignment takes the redundancy channel that its page shows.
    const QVariant rci = form(Item::Assignment).control<QwtComboBox>("assignmentRci").currentData();
    return insertItem(m_edit.add(rci.toUInt()));
}

void DialogProfileEditor825_3::slotAddEnum()
{
    addItem([this] { return insertItem(m_edit.addEnumEntry()); });
}

bool DialogProfileEditor825_3::deleteRecord()
{
    if (!m_edit.remove()) {
        return false;
    }
    delete tree().currentItem();
    return true;
}

} // namespace gui
