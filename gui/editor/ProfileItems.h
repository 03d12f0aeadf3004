#pragma once

#include "gui/editor/ProfileFields.h"
#include "profile/ArincProfile.h"

#include <QIcon>
#include <QVariant>

#include <array>
#include <cstdint>
#include <set>

class QTreeWidget;
class QTreeWidgetItem;

namespace gui {

/// The items that stand for a profile's records in a tree, in the order of the profile's maps. An
/// item knows its kind and the number or name of its record; all that it shows comes from the
/// profile.
class ProfileItems
{
public:
    /// Both belong to the caller and outlive the object.
    ProfileItems(QTreeWidget& tree, const ArincProfile& profile);

    /// Fills the empty tree.
    void fill();

    static ProfileItem kind(const QTreeWidgetItem& item);
    /// Code of a user FID or user unit, function code of a chapter, serial of a parameter.
    static std::uint32_t code(const QTreeWidgetItem& item);
    /// Of an enumeration's value.
    static std::int32_t value(const QTreeWidgetItem& item);
    /// Name of an enumeration.
    static QString name(const QTreeWidgetItem& item);

    /// The fixed item of this kind.
    QTreeWidgetItem& fixed(ProfileItem kind) const;
    /// The item of the chapter of this function code; null if there is none.
    QTreeWidgetItem* chapter(std::uint32_t fid) const;

    /// Makes the item of a record that the profile has by now, at its place below `parent`.
    QTreeWidgetItem* add(QTreeWidgetItem& parent, ProfileItem kind, const QVariant& key);
    /// Gives the item of a record its new number or name, and moves it to its place. Which item is
    /// the tree's current one stays.
    void move(QTreeWidgetItem& item, const QVariant& key);
    /// Shows what the record is called now.
    void refresh(QTreeWidgetItem& item) const;
    /// The same of the parameters with these serials.
    void refreshParameters(const std::set<std::uint32_t>& serials) const;

private:
    QTreeWidgetItem* make(ProfileItem kind, const QVariant& key) const;
    int position(const QTreeWidgetItem& parent, ProfileItem kind, const QVariant& key) const;
    template <typename Map>
    void fillCodes(ProfileItem parent, ProfileItem kind, const Map& records);
    void fillEnumerations();
    void fillChapters();
    QString enumValueText(const QTreeWidgetItem& item) const;
    void refreshParameter(QTreeWidgetItem& item, const ProfileFidGroup& group) const;

    QTreeWidget& m_tree;
    const ArincProfile& m_profile;
    std::array<QIcon, profilePages.size()> m_icons; ///< by kind
};

} // namespace gui
