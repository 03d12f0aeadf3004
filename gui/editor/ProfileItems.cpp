#include "gui/editor/ProfileItems.h"

#include "gui/controls/Look.h"
#include "gui/controls/ProfileTexts.h"

#include <QTreeWidget>

#include <algorithm>
#include <iterator>

namespace gui {

namespace {

constexpr int kindRole = Qt::UserRole;
constexpr int keyRole = Qt::UserRole + 1; ///< number or name of the record

constexpr std::array<ProfileItem, 6> fixedItems{ProfileItem::Header,       ProfileItem::ProfileInfo,
                                                ProfileItem::UserFids,     ProfileItem::UserUnits,
                                                ProfileItem::Enumerations, ProfileItem::Chapters};

// How many entries of the map lie before the key.
template <typename Map, typename Key>
int place(const Map& map, const Key& key)
{
    return static_cast<int>(std::distance(map.begin(), map.lower_bound(key)));
}

// The record of the key; null if there is none.
template <typename Map, typename Key>
const typename Map::mapped_type* find(const Map& map, const Key& key)
{
    const auto found = map.find(key);
    return found != map.end() ? &found->second : nullptr;
}

} // namespace

ProfileItems::ProfileItems(QTreeWidget& tree, const ArincProfile& profile)
    : m_tree(tree), m_profile(profile)
{
    std::transform(profilePages.begin(), profilePages.end(), m_icons.begin(),
                   [](const ProfilePage& page) { return icon(page.iconName); });
}

ProfileItem ProfileItems::kind(const QTreeWidgetItem& item)
{
    return static_cast<ProfileItem>(item.data(0, kindRole).toInt());
}

std::uint32_t ProfileItems::code(const QTreeWidgetItem& item)
{
    return item.data(0, keyRole).toUInt();
}

std::int32_t ProfileItems::value(const QTreeWidgetItem& item)
{
    return item.data(0, keyRole).toInt();
}

QString ProfileItems::name(const QTreeWidgetItem& item)
{
    return item.data(0, keyRole).toString();
}

QTreeWidgetItem& ProfileItems::fixed(ProfileItem kind) const
{
    const auto found = std::find(fixedItems.begin(), fixedItems.end(), kind);
    return *m_tree.topLevelItem(static_cast<int>(std::distance(fixedItems.begin(), found)));
}

QTreeWidgetItem* ProfileItems::chapter(std::uint32_t fid) const
{
    const QTreeWidgetItem& chapters = fixed(ProfileItem::Chapters);
    for (int i = 0; i < chapters.childCount(); ++i) {
        if (code(*chapters.child(i)) == fid) {
            return chapters.child(i);
        }
    }
    return nullptr;
}

QTreeWidgetItem* ProfileItems::make(ProfileItem kind, const QVariant& key) const
{
    auto* item = new QTreeWidgetItem;
    item->setData(0, kindRole, static_cast<int>(kind));
    item->setData(0, keyRole, key);
    item->setIcon(0, m_icons.at(static_cast<std::size_t>(kind)));
    return item;
}

void ProfileItems::fill()
{
    for (const ProfileItem kind : fixedItems) {
        QTreeWidgetItem* item = make(kind, QVariant());
        item->setText(0, QLatin1String(profilePage(kind).title));
        m_tree.addTopLevelItem(item);
    }
    fillCodes(ProfileItem::UserFids, ProfileItem::UserFid, m_profile.userFids);
    fillCodes(ProfileItem::UserUnits, ProfileItem::UserUnit, m_profile.userUnits);
    fillEnumerations();
    fillChapters();
}

// Children are made before their parent comes into the tree, and handed over at once: there may be
// many.
template <typename Map>
void ProfileItems::fillCodes(ProfileItem parent, ProfileItem kind, const Map& records)
{
    QList<QTreeWidgetItem*> items;
    for (const auto& [code, record] : records) {
        items << make(kind, code);
        items.back()->setText(0, codeText(code, record.name));
    }
    fixed(parent).addChildren(items);
}

void ProfileItems::fillEnumerations()
{
    QList<QTreeWidgetItem*> items;
    for (const auto& [name, enumeration] : m_profile.enums) {
        QTreeWidgetItem* item = make(ProfileItem::Enumeration, name);
        item->setText(0, name);
        for (const auto& [value, entry] : enumeration.values) {
            QTreeWidgetItem* child = make(ProfileItem::EnumValue, value);
            item->addChild(child);
            child->setText(0, enumValueText(*child));
        }
        items << item;
    }
    fixed(ProfileItem::Enumerations).addChildren(items);
}

void ProfileItems::fillChapters()
{
    QList<QTreeWidgetItem*> items;
    for (const auto& [fid, group] : m_profile.fids) {
        QTreeWidgetItem* item = make(ProfileItem::Chapter, fid);
        item->setText(0, codeText(fid, group.name));
        QList<QTreeWidgetItem*> children;
        for (const auto& [serial, parameter] : group.parameters) {
            children << make(ProfileItem::Parameter, serial);
            refreshParameter(*children.back(), group);
        }
        item->addChildren(children);
        items << item;
    }
    fixed(ProfileItem::Chapters).addChildren(items);
}

int ProfileItems::position(const QTreeWidgetItem& parent, ProfileItem kind,
                           const QVariant& key) const
{
    switch (kind) {
    case ProfileItem::UserFid:
        return place(m_profile.userFids, key.toUInt());
    case ProfileItem::UserUnit:
        return place(m_profile.userUnits, key.toUInt());
    case ProfileItem::Enumeration:
        return place(m_profile.enums, key.toString());
    case ProfileItem::Chapter:
        return place(m_profile.fids, key.toUInt());
    case ProfileItem::EnumValue:
        if (const ProfileEnum* enumeration = find(m_profile.enums, name(parent))) {
            return place(enumeration->values, key.toInt());
        }
        break;
    case ProfileItem::Parameter:
        if (const ProfileFidGroup* group = find(m_profile.fids, code(parent))) {
            return place(group->parameters, key.toUInt());
        }
        break;
    default:
        break;
    }
    return parent.childCount();
}

QTreeWidgetItem* ProfileItems::add(QTreeWidgetItem& parent, ProfileItem kind, const QVariant& key)
{
    QTreeWidgetItem* item = make(kind, key);
    parent.insertChild(position(parent, kind, key), item);
    refresh(*item);
    return item;
}

void ProfileItems::move(QTreeWidgetItem& item, const QVariant& key)
{
    QTreeWidgetItem& parent = *item.parent();
    const int from = parent.indexOfChild(&item);
    const int to = position(parent, kind(item), key);
    item.setData(0, keyRole, key);
    if (from != to) {
        // An item that is taken out is folded, and no longer the current one.
        QTreeWidgetItem* current = m_tree.currentItem();
        const bool isExpanded = item.isExpanded();
        parent.insertChild(to, parent.takeChild(from));
        item.setExpanded(isExpanded);
        m_tree.setCurrentItem(current);
    }
    refresh(item);
    if (const ProfileFidGroup* group =
            kind(item) == ProfileItem::Chapter ? find(m_profile.fids, code(item)) : nullptr) {
        for (int i = 0; i < item.childCount(); ++i) {
            refreshParameter(*item.child(i), *group); // the tool tips tell the function code
        }
    }
}

QString ProfileItems::enumValueText(const QTreeWidgetItem& item) const
{
    const ProfileEnum* enumeration = find(m_profile.enums, name(*item.parent()));
    const ProfileEnumValue* entry =
        enumeration != nullptr ? find(enumeration->values, value(item)) : nullptr;
    return QString::number(value(item)) + QStringLiteral(":  ") +
           (entry != nullptr ? entry->label : QString());
}

void ProfileItems::refreshParameter(QTreeWidgetItem& item, const ProfileFidGroup& group) const
{
    if (const ProfileParameter* parameter = find(group.parameters, code(item))) {
        item.setText(0, parameterText(*parameter));
        item.setToolTip(0, parameterToolTip(*parameter));
    }
}

void ProfileItems::refreshParameters(const std::set<std::uint32_t>& serials) const
{
    if (serials.empty()) {
        return;
    }
    const QTreeWidgetItem& chapters = fixed(ProfileItem::Chapters);
    for (int i = 0; i < chapters.childCount(); ++i) {
        const QTreeWidgetItem& chapter = *chapters.child(i);
        const ProfileFidGroup* group = find(m_profile.fids, code(chapter));
        for (int j = 0; group != nullptr && j < chapter.childCount(); ++j) {
            QTreeWidgetItem& item = *chapter.child(j);
            if (serials.count(code(item)) != 0) {
                refreshParameter(item, *group);
            }
        }
    }
}

void ProfileItems::refresh(QTreeWidgetItem& item) const
{
    switch (kind(item)) {
    case ProfileItem::UserFid:
        if (const ProfileUserFid* fid = find(m_profile.userFids, code(item))) {
            item.setText(0, codeText(fid->code, fid->name));
        }
        break;
    case ProfileItem::UserUnit:
        if (const ProfileUserUnit* unit = find(m_profile.userUnits, code(item))) {
            item.setText(0, codeText(unit->code, unit->name));
        }
        break;
    case ProfileItem::Enumeration:
        item.setText(0, name(item));
        break;
    case ProfileItem::EnumValue:
        item.setText(0, enumValueText(item));
        break;
    case ProfileItem::Chapter:
        if (const ProfileFidGroup* group = find(m_profile.fids, code(item))) {
            item.setText(0, codeText(group->fid, group->name));
        }
        break;
    case ProfileItem::Parameter:
        if (const ProfileFidGroup* group = find(m_profile.fids, code(*item.parent()))) {
            refreshParameter(item, *group);
        }
        break;
    default:
        break;
    }
}

} // namespace gui
